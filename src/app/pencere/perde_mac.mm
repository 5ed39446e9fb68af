#import <QuartzCore/QuartzCore.h>
#import "app/pencere/pencere_mac.hpp"

#include "app/pencere/yerlesim.hpp"

namespace nevo::mac {
namespace {

class PerdeMac final : public Perde {
 public:
  explicit PerdeMac(NSView* gorunum) : gorunum_(gorunum) {}
  bool bagli() const override { return gorunum_.superview != nil; }
  void sondur(double sure, std::function<void()> bitince) override {
    NSView* gorunum = gorunum_;
    [NSAnimationContext
        runAnimationGroup:^(NSAnimationContext* baglam) {
          baglam.duration = sure;
          gorunum.animator.alphaValue = 0;
        }
        completionHandler:^{
          bitince();
        }];
  }
  void kaldir() override {
    ust_ = gorunum_.superview;
    if (ust_ == nil) return;
    NSArray<NSView*>* kardesler = ust_.subviews;
    const NSUInteger sira = [kardesler indexOfObject:gorunum_];
    ustundeki_ = sira + 1 < kardesler.count ? kardesler[sira + 1] : nil;
    [gorunum_ removeFromSuperview];
  }
  // Setting the value without an animation ends a running fade at once.
  void ort() override {
    NSView* gorunum = gorunum_;
    [NSAnimationContext runAnimationGroup:^(NSAnimationContext* baglam) {
      baglam.duration = 0;
      gorunum.animator.alphaValue = 1;
    }];
    if (gorunum_.superview != nil || ust_ == nil) return;
    if (ustundeki_ != nil) {
      [ust_ addSubview:gorunum_ positioned:NSWindowBelow relativeTo:ustundeki_];
    } else {
      [ust_ addSubview:gorunum_];
    }
    ust_ = nil;
    ustundeki_ = nil;
  }

 private:
  NSView* gorunum_;
  NSView* __weak ust_ = nil;        // the container, while the curtain is out of it
  NSView* __weak ustundeki_ = nil;  // the view that lay just above it
};

}  // namespace

// The curtain: its colour, the icon above the centre and the spinner below it, as the
// core sets them.
std::unique_ptr<Perde> perdeKur(NSRect cerceve, NSView* __strong* gorunum) {
  NSView* perde = [[NSView alloc] initWithFrame:cerceve];
  perde.wantsLayer = YES;
  const Renk r = Perde::RENK;
  perde.layer.backgroundColor =
      [NSColor colorWithRed:r.kirmizi green:r.yesil blue:r.mavi alpha:1.0].CGColor;
  perde.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  const auto y = perdeYerlesimi({cerceve.size.width, cerceve.size.height});
  const NSAutoresizingMaskOptions kenarlar =
      NSViewMinXMargin | NSViewMaxXMargin | NSViewMinYMargin | NSViewMaxYMargin;
  NSString* yol = [NSBundle.mainBundle pathForResource:@"AppIcon" ofType:@"icns"];
  NSImage* resim = yol != nil ? [[NSImage alloc] initWithContentsOfFile:yol] : nil;
  if (resim != nil) {
    NSImageView* simge = [[NSImageView alloc] initWithFrame:dikdortgen(y.simge)];
    simge.image = resim;
    simge.imageScaling = NSImageScaleProportionallyUpOrDown;
    simge.autoresizingMask = kenarlar;
    [perde addSubview:simge];
  }
  NSProgressIndicator* donen = [[NSProgressIndicator alloc] initWithFrame:dikdortgen(y.donen)];
  donen.style = NSProgressIndicatorStyleSpinning;
  donen.controlSize = NSControlSizeSmall;
  donen.autoresizingMask = kenarlar;
  [donen startAnimation:nil];
  [perde addSubview:donen];
  *gorunum = perde;
  return std::make_unique<PerdeMac>(perde);
}

}  // namespace nevo::mac
