#import <Cocoa/Cocoa.h>
#import <QuartzCore/QuartzCore.h>

#include "desktop/hizli_gorunum.hpp"
#include "temel/geometri_mac.hpp"
#include "temel/metin_mac.hpp"

// The field's target and delegate: Return sends, and Escape, which the field editor turns
// into the standard cancel command and offers the delegate first, closes the panel.
@interface NevoHizliHedef : NSObject <NSTextFieldDelegate>
@property(nonatomic, copy) void (^gonderildi)(void);
@property(nonatomic, copy) void (^kapat)(void);
- (void)gonderildi:(id)gonderen;
@end

@implementation NevoHizliHedef
- (void)gonderildi:(id)gonderen {
  if (self.gonderildi) self.gonderildi();
}
- (BOOL)control:(NSControl*)alan textView:(NSTextView*)duzenleyici doCommandBySelector:(SEL)komut {
  if (komut != @selector(cancelOperation:)) return NO;
  if (self.kapat) self.kapat();
  return YES;
}
@end

namespace nevo {
namespace {

// Titled, non-activating panel with full-size content.
constexpr NSWindowStyleMask PANEL_BICEMI = NSWindowStyleMaskTitled |
                                           NSWindowStyleMaskNonactivatingPanel |
                                           NSWindowStyleMaskFullSizeContentView;

// The floating quick-entry panel: created on first showing, then kept.
class HizliGorunumMac final : public HizliGorunum {
 public:
  HizliGorunumMac() : hedef_([NevoHizliHedef new]) {}
  HizliGorunumMac(const HizliGorunumMac&) = delete;
  HizliGorunumMac& operator=(const HizliGorunumMac&) = delete;
  ~HizliGorunumMac() override {
    hedef_.gonderildi = nil;
    hedef_.kapat = nil;
  }

  void gonderildiAyarla(std::function<void()> gonderildi) override {
    auto ortak = std::make_shared<std::function<void()>>(std::move(gonderildi));
    hedef_.gonderildi = ^{
      if (*ortak) (*ortak)();
    };
  }
  bool gorunur() const override { return panel_ != nil && panel_.visible; }
  void goster() override;
  void gizle() override { [panel_ orderOut:nil]; }
  std::string metin() const override { return alan_ ? mac::stdMetin(alan_.stringValue) : ""; }
  void metinYaz(const std::string& yeni) override {
    if (alan_) alan_.stringValue = mac::nsMetin(yeni);
  }

 private:
  void kur();

  NevoHizliHedef* hedef_;
  NSPanel* panel_ = nil;
  NSTextField* alan_ = nil;
};

void HizliGorunumMac::kur() {
  const NSRect cerceve =
      NSMakeRect(0, 0, HizliPanelYerlesimi::pencere.en, HizliPanelYerlesimi::pencere.boy);
  NSPanel* panel = [[NSPanel alloc] initWithContentRect:cerceve
                                              styleMask:PANEL_BICEMI
                                                backing:NSBackingStoreBuffered
                                                  defer:NO];
  panel.titlebarAppearsTransparent = YES;
  panel.titleVisibility = NSWindowTitleHidden;
  panel.movableByWindowBackground = YES;
  panel.level = NSFloatingWindowLevel;
  panel.hidesOnDeactivate = YES;
  panel.releasedWhenClosed = NO;
  panel.backgroundColor = [NSColor clearColor];

  NSVisualEffectView* zemin = [[NSVisualEffectView alloc] initWithFrame:cerceve];
  zemin.material = NSVisualEffectMaterialHUDWindow;
  zemin.blendingMode = NSVisualEffectBlendingModeBehindWindow;
  zemin.state = NSVisualEffectStateActive;
  zemin.wantsLayer = YES;
  zemin.layer.cornerRadius = HizliPanelYerlesimi::koseYaricapi;
  zemin.layer.masksToBounds = YES;
  zemin.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;

  NSTextField* alan =
      [[NSTextField alloc] initWithFrame:mac::dikdortgen(HizliPanelYerlesimi::alan)];
  alan.placeholderString = mac::nsMetin(HizliPanelYerlesimi::yerTutucu);
  alan.font = [NSFont systemFontOfSize:20];
  alan.bordered = NO;
  alan.drawsBackground = NO;
  alan.focusRingType = NSFocusRingTypeNone;
  alan.delegate = hedef_;
  alan.target = hedef_;
  alan.action = @selector(gonderildi:);
  alan.autoresizingMask = NSViewWidthSizable;
  __weak NSPanel* zayifPanel = panel;
  hedef_.kapat = ^{
    [zayifPanel orderOut:nil];
  };

  [zemin addSubview:alan];
  panel.contentView = zemin;
  panel_ = panel;
  alan_ = alan;
}

void HizliGorunumMac::goster() {
  if (panel_ == nil) kur();
  [panel_ center];
  [NSApp activateIgnoringOtherApps:YES];
  [panel_ makeKeyAndOrderFront:nil];
  [panel_ makeFirstResponder:alan_];
}

}  // namespace

std::unique_ptr<HizliGorunum> hizliGorunumOlustur() { return std::make_unique<HizliGorunumMac>(); }

}  // namespace nevo
