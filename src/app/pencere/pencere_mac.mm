#import "app/pencere/pencere_mac.hpp"
#import <QuartzCore/QuartzCore.h>

#include "app/pencere/serit.hpp"
#include "app/pencere/yerlesim.hpp"
#include "temel/metin_mac.hpp"
#include "temel/pencere_mac.hpp"

@implementation NevoKap

- (void)layout {
  [super layout];
  [self yerlestir];
}

- (void)setFrameSize:(NSSize)olcu {
  [super setFrameSize:olcu];
  [self yerlestir];
}

- (void)yerlestir {
  if (self.window == nil) return;
  const NSRect b = self.bounds;
  const auto y =
      nevo::yerlestir({b.size.width, b.size.height}, self.window.contentLayoutRect.size.height);
  self.web.frame = nevo::mac::dikdortgen(y.web);
  self.perde.frame = nevo::mac::dikdortgen(y.perde);
  self.serit.frame = nevo::mac::dikdortgen(y.serit);
}

@end

namespace nevo::mac {
namespace {

// The core's timing curve, as Core Animation takes it.
CAMediaTimingFunction* zamanlama(const ZamanEgrisi& e) {
  const float x1 = static_cast<float>(e.x1);
  const float y1 = static_cast<float>(e.y1);
  const float x2 = static_cast<float>(e.x2);
  const float y2 = static_cast<float>(e.y2);
  return [CAMediaTimingFunction functionWithControlPoints:x1:y1:x2:y2];
}

class PencereMac final : public Pencere, public MacPenceresi {
 public:
  explicit PencereMac(NSWindow* pencere) : p_(pencere) {}
  NSWindow* _Nullable nsPenceresi() const override { return p_; }
  void boyutlanabilir(bool evet) override {
    p_.styleMask = evet ? (p_.styleMask | NSWindowStyleMaskResizable)
                        : (p_.styleMask & ~NSWindowStyleMaskResizable);
  }
  void tamEkranIzni(bool evet) override {
    p_.collectionBehavior = evet ? NSWindowCollectionBehaviorFullScreenPrimary
                                 : NSWindowCollectionBehaviorFullScreenNone;
  }
  void icerikBoyutu(Olcu olcu) override { [p_ setContentSize:NSMakeSize(olcu.en, olcu.boy)]; }
  void ortala() override { [p_ center]; }
  void oneGetir() override { [p_ makeKeyAndOrderFront:nil]; }
  bool gorunur() const override { return p_.visible; }
  void kucult() override { [p_ miniaturize:nil]; }
  Cerceve cerceve() const override {
    const NSRect c = p_.frame;
    return {c.origin.x, c.origin.y, c.size.width, c.size.height};
  }
  std::optional<Cerceve> ekranAlani() const override {
    if (p_.screen == nil) return std::nullopt;
    const NSRect c = p_.screen.visibleFrame;
    return Cerceve{c.origin.x, c.origin.y, c.size.width, c.size.height};
  }
  void cerceveyiCanlandir(Cerceve hedef, double sure) override {
    NSWindow* p = p_;
    [NSAnimationContext runAnimationGroup:^(NSAnimationContext* baglam) {
      baglam.duration = sure;
      baglam.timingFunction = zamanlama(Serit::BUYUTME_EGRISI);
      [p.animator setFrame:dikdortgen(hedef) display:YES];
    }];
  }
  void kapat() override { [p_ performClose:nil]; }
  void tamEkranDegistir() override { [p_ toggleFullScreen:nil]; }

 private:
  NSWindow* p_;
};

NSWindow* pencereOlustur(const PencereTasarimi& t) {
  NSWindow* p = [[NSWindow alloc]
      initWithContentRect:NSMakeRect(0, 0, t.olcu.en, t.olcu.boy)
                styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                          NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskFullSizeContentView
                  backing:NSBackingStoreBuffered
                    defer:NO];
  p.title = nsMetin(t.baslik);
  p.titlebarAppearsTransparent = YES;
  p.titleVisibility = NSWindowTitleHidden;
  p.opaque = NO;
  p.backgroundColor = NSColor.clearColor;
  p.minSize = NSMakeSize(t.enKucuk.en, t.enKucuk.boy);
  p.collectionBehavior = NSWindowCollectionBehaviorFullScreenNone;
  p.releasedWhenClosed = NO;
  if (!t.cerceveKayitAdi.empty()) [p setFrameAutosaveName:nsMetin(t.cerceveKayitAdi)];
  return p;
}

NSVisualEffectView* arkaPlan(NSRect cerceve) {
  NSVisualEffectView* arka = [[NSVisualEffectView alloc] initWithFrame:cerceve];
  arka.material = NSVisualEffectMaterialHUDWindow;
  arka.blendingMode = NSVisualEffectBlendingModeBehindWindow;
  arka.state = NSVisualEffectStateActive;
  arka.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  return arka;
}

class PencereKurucuMac final : public PencereKurucu {
 public:
  std::unique_ptr<Perde> kur(const PencereTasarimi& t, PencereOlaylari& olaylar,
                             const WebKuruldu& webKuruldu) override {
    NSWindow* pencere = pencereOlustur(t);
    const NSRect cerceve = NSMakeRect(0, 0, t.olcu.en, t.olcu.boy);
    WKWebView* web = nil;
    auto webPort = webKur(t, olaylar, &web);
    webKuruldu({std::make_unique<PencereMac>(pencere), std::move(webPort)});
    NSView* perde = nil;
    auto perdePort = perdeKur(cerceve, &perde);
    NevoSerit* serit = [[NevoSerit alloc] initWithOlaylar:&olaylar];
    NevoKap* kap = [[NevoKap alloc] initWithFrame:cerceve];
    kap.web = web;
    kap.perde = perde;
    kap.serit = serit;
    for (Katman katman : t.katmanlar) {
      switch (katman) {
        case Katman::Arka:
          [kap addSubview:arkaPlan(cerceve)];
          break;
        case Katman::Web:
          [kap addSubview:web];
          break;
        case Katman::Serit:
          [kap addSubview:serit];
          break;
        case Katman::Perde:
          [kap addSubview:perde];
          break;
      }
    }
    pencere.contentView = kap;
    return perdePort;
  }
  // The window's own buttons sit at the top left, where the sheet already makes room.
  std::string dekorasyonDuzeni() const override { return ""; }
};

}  // namespace

}  // namespace nevo::mac

namespace nevo {

std::unique_ptr<PencereKurucu> pencereKurucuOlustur() {
  return std::make_unique<mac::PencereKurucuMac>();
}

}  // namespace nevo
