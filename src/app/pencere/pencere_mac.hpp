#pragma once
// Views of the macOS layer, shared by its .mm files only.
#import <Cocoa/Cocoa.h>
#import <WebKit/WebKit.h>

#include <memory>

#include "app/pencere/pencere_kurucu.hpp"
#include "temel/geometri_mac.hpp"

// The container: lays out the web view, curtain and strip with the core's rule.
@interface NevoKap : NSView
@property(weak) NSView* web;
@property(weak) NSView* perde;
@property(weak) NSView* serit;
@end

// The title strip; forwards presses to the core.
@interface NevoSerit : NSView
- (instancetype)initWithOlaylar:(nevo::PencereOlaylari*)olaylar;
@end

namespace nevo::mac {
std::unique_ptr<Pencere> pencereSarmali(NSWindow* pencere);
std::unique_ptr<Perde> perdeKur(NSRect cerceve, NSView* __strong* gorunum);
std::unique_ptr<WebGorunum> webKur(const PencereTasarimi& tasarim, PencereOlaylari& olaylar,
                                   WKWebView* __strong* gorunum);
}  // namespace nevo::mac
