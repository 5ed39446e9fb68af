#import <Cocoa/Cocoa.h>

#include "desktop/durum_ogesi.hpp"
#include "temel/metin_mac.hpp"

// The target of every entry of the item's menu: hands on the entry's identifier.
@interface NevoMenuHedefi : NSObject
@property(nonatomic, copy) void (^calistir)(NSString*);
- (void)basildi:(id)oge;
@end

@implementation NevoMenuHedefi
- (void)basildi:(id)oge {
  if (!self.calistir) return;
  id kimlik = [oge isKindOfClass:[NSMenuItem class]]
                  ? static_cast<NSMenuItem*>(oge).representedObject
                  : nil;
  self.calistir([kimlik isKindOfClass:[NSString class]] ? static_cast<NSString*>(kimlik) : @"");
}
@end

namespace nevo {
namespace {

// The status item in the system menu bar, square, with the application icon or its
// initial.
class DurumOgesiMac final : public DurumOgesi {
 public:
  DurumOgesiMac() : hedef_([NevoMenuHedefi new]) {}
  DurumOgesiMac(const DurumOgesiMac&) = delete;
  DurumOgesiMac& operator=(const DurumOgesiMac&) = delete;
  ~DurumOgesiMac() override {
    hedef_.calistir = nil;
    kaldir();
  }

  void goster(const DurumOgesiTasarimi& tasarim,
              std::function<void(const std::string&)> secildi) override {
    kaldir();
    auto ortak = std::make_shared<std::function<void(const std::string&)>>(std::move(secildi));
    hedef_.calistir = ^(NSString* kimlik) {
      if (*ortak) (*ortak)(mac::stdMetin(kimlik));
    };
    NSStatusItem* oge =
        [[NSStatusBar systemStatusBar] statusItemWithLength:NSSquareStatusItemLength];
    if (NSStatusBarButton* dugme = oge.button) {
      NSString* yol = [[NSBundle mainBundle] pathForResource:@"AppIcon" ofType:@"icns"];
      NSImage* simge = yol ? [[NSImage alloc] initWithContentsOfFile:yol] : nil;
      if (simge != nil) {
        simge.size = NSMakeSize(18, 18);
        dugme.image = simge;
      } else {
        dugme.title = mac::nsMetin(tasarim.basHarf);
      }
      dugme.toolTip = mac::nsMetin(tasarim.ipucu);
    }
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    for (const auto& girdi : tasarim.girdiler) {
      if (girdi.kimlik.empty()) {
        [menu addItem:[NSMenuItem separatorItem]];
        continue;
      }
      NSMenuItem* m = [[NSMenuItem alloc] initWithTitle:mac::nsMetin(girdi.baslik)
                                                 action:@selector(basildi:)
                                          keyEquivalent:@""];
      m.representedObject = mac::nsMetin(girdi.kimlik);
      m.target = hedef_;
      [menu addItem:m];
    }
    oge.menu = menu;
    oge_ = oge;
  }

  void kaldir() override {
    if (oge_ != nil) [[NSStatusBar systemStatusBar] removeStatusItem:oge_];
    oge_ = nil;
  }

 private:
  NevoMenuHedefi* hedef_;
  NSStatusItem* oge_ = nil;
};

}  // namespace

std::unique_ptr<DurumOgesi> durumOgesiOlustur() { return std::make_unique<DurumOgesiMac>(); }

}  // namespace nevo
