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
  void kaldir() override { [gorunum_ removeFromSuperview]; }

 private:
  NSView* gorunum_;
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
