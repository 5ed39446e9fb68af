#import <Cocoa/Cocoa.h>

#include "desktop/kisayol/kisayol_levhasi.hpp"
#include "temel/geometri_mac.hpp"
#include "temel/metin_mac.hpp"
#include "temel/pencere_mac.hpp"

// The view that takes the keyboard focus in the recorder and hands it every key press,
// also those with ⌘, before any menu sees them.
@interface NevoKisayolKutusu : NSView
@property(nonatomic, copy) void (^basildi)(NSEvent*);
@end

@implementation NevoKisayolKutusu
- (BOOL)acceptsFirstResponder {
  return YES;
}
- (void)keyDown:(NSEvent*)olay {
  if (self.basildi) self.basildi(olay);
}
- (BOOL)performKeyEquivalent:(NSEvent*)olay {
  if (self.basildi) self.basildi(olay);
  return YES;
}
@end

@interface NevoKisayolHedefi : NSObject
@property(nonatomic, copy) void (^vazgec)(void);
- (void)vazgecildi:(id)gonderen;
@end

@implementation NevoKisayolHedefi
- (void)vazgecildi:(id)gonderen {
  if (self.vazgec) self.vazgec();
}
@end

namespace nevo {
namespace {

constexpr CGFloat GENISLIK = KaydediciYerlesimi::pencere.en;
constexpr CGFloat YUKSEKLIK = KaydediciYerlesimi::pencere.boy;

NSTextField* etiket(NSTextField* e, NSFont* yazi, NSColor* renk, NSRect cerceve) {
  e.font = yazi;
  e.textColor = renk;
  e.frame = cerceve;
  return e;
}

TusBasimi tusBasimi(NSEvent* olay) {
  TusBasimi tus{olay.keyCode, static_cast<std::uint64_t>(olay.modifierFlags), std::nullopt};
  if (NSString* k = olay.charactersIgnoringModifiers) tus.karakterler = mac::stdMetin(k);
  return tus;
}

// The recorder as a sheet on the window it is given.
class KisayolLevhasiMac final : public KisayolLevhasi {
 public:
  KisayolLevhasiMac() : hedef_([NevoKisayolHedefi new]) {
    hedef_.vazgec = ^{
      if (olaylar_.vazgecildi) olaylar_.vazgecildi();
    };
  }
  KisayolLevhasiMac(const KisayolLevhasiMac&) = delete;
  KisayolLevhasiMac& operator=(const KisayolLevhasiMac&) = delete;
  ~KisayolLevhasiMac() override {
    hedef_.vazgec = nil;
    kapat();
  }

  void ac(Pencere& ustunde, const KisayolMetinleri& metinler, Olaylar olaylar) override;
  void uyariYaz(const std::string& uyari) override { uyariYazi_.stringValue = mac::nsMetin(uyari); }
  void kapat() override {
    olaylar_ = {};
    NSWindow* levha = levha_;
    levha_ = nil;
    uyariYazi_ = nil;
    if (levha == nil) return;
    [levha.sheetParent endSheet:levha];
    [levha orderOut:nil];
  }

 private:
  NevoKisayolHedefi* hedef_;
  NSWindow* levha_ = nil;
  NSTextField* uyariYazi_ = nil;
  Olaylar olaylar_;
};

void KisayolLevhasiMac::ac(Pencere& ustunde, const KisayolMetinleri& metinler, Olaylar olaylar) {
  kapat();
  olaylar_ = std::move(olaylar);
  NSWindow* levha = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, GENISLIK, YUKSEKLIK)
                                                styleMask:NSWindowStyleMaskTitled
                                                  backing:NSBackingStoreBuffered
                                                    defer:NO];
  levha.title = mac::nsMetin(metinler.baslik);
  NevoKisayolKutusu* kutu =
      [[NevoKisayolKutusu alloc] initWithFrame:NSMakeRect(0, 0, GENISLIK, YUKSEKLIK)];
  kutu.basildi = ^(NSEvent* olay) {
    if (auto basildi = olaylar_.basildi) basildi(tusBasimi(olay));
  };
  [kutu addSubview:etiket([NSTextField labelWithString:mac::nsMetin(metinler.ustYazi)],
                          [NSFont systemFontOfSize:15 weight:NSFontWeightSemibold],
                          [NSColor labelColor], mac::dikdortgen(KaydediciYerlesimi::baslik))];
  [kutu addSubview:etiket([NSTextField labelWithString:mac::nsMetin(metinler.ipucu)],
                          [NSFont systemFontOfSize:12], [NSColor secondaryLabelColor],
                          mac::dikdortgen(KaydediciYerlesimi::ipucu))];
  NSTextField* uyari =
      etiket([NSTextField wrappingLabelWithString:@""], [NSFont systemFontOfSize:12],
             [NSColor systemRedColor], mac::dikdortgen(KaydediciYerlesimi::uyari));
  uyari.maximumNumberOfLines = 2;
  uyari.lineBreakMode = NSLineBreakByWordWrapping;
  [kutu addSubview:uyari];
  NSButton* vazgec = [NSButton buttonWithTitle:mac::nsMetin(metinler.vazgec)
                                        target:hedef_
                                        action:@selector(vazgecildi:)];
  vazgec.bezelStyle = NSBezelStyleRounded;
  vazgec.frame = mac::dikdortgen(KaydediciYerlesimi::vazgec);
  [kutu addSubview:vazgec];
  levha.contentView = kutu;
  levha_ = levha;
  uyariYazi_ = uyari;

  [nsPenceresi(ustunde) beginSheet:levha
                 completionHandler:^(NSModalResponse){
                 }];
  [levha makeFirstResponder:kutu];
}

}  // namespace

std::unique_ptr<KisayolLevhasi> kisayolLevhasiOlustur() {
  return std::make_unique<KisayolLevhasiMac>();
}

}  // namespace nevo
