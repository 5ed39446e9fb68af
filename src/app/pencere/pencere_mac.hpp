#pragma once
// Views of the macOS layer, shared by its .mm files only.
#import <Cocoa/Cocoa.h>
#import <WebKit/WebKit.h>

#include <memory>
#include <optional>
#include <string>

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
// Takes out of the engine's context menu what the shell does not offer and gives the link's
// and the image's entries the shell's titles; an empty menu does not open.
void baglamMenusunuBudar(NSMenu* menu);
// The command of `tusKomutlari` that a key equivalent runs, if any.
std::optional<std::string> tusKomutu(NSEvent* olay);
// Adds `adim` zoom steps (negative: out) from the wheel or a pinch.
void yakinlastirmaAdimi(double& birikim, double adim, PencereOlaylari& olaylar);
}  // namespace nevo::mac
