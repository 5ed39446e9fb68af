#import <Cocoa/Cocoa.h>
#import <UserNotifications/UserNotifications.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "bridge/bildirim.hpp"
#include "temel/metin_mac.hpp"

// The notification centre's delegate: banners with sound while the application
// is frontmost; a click, or its button, goes to `tiklandi` with the notification's
// identifier and the centre's completion handler, which it calls once the window is in front.
@interface NevoBildirimTemsilcisi : NSObject <UNUserNotificationCenterDelegate>
@property(nonatomic) std::function<void(const std::string&, void (^)(void))> tiklandi;
@end

@implementation NevoBildirimTemsilcisi

- (void)userNotificationCenter:(UNUserNotificationCenter*)merkez
       willPresentNotification:(UNNotification*)bildirim
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions))bitti {
  bitti(UNNotificationPresentationOptionBanner | UNNotificationPresentationOptionSound);
}

- (void)userNotificationCenter:(UNUserNotificationCenter*)merkez
    didReceiveNotificationResponse:(UNNotificationResponse*)cevap
             withCompletionHandler:(void (^)(void))bitti {
  if (_tiklandi) {
    _tiklandi(nevo::mac::stdMetin(cevap.notification.request.identifier), bitti);
  } else {
    bitti();
  }
}

@end

namespace nevo {
namespace {

BildirimYetkisi yetkiCevir(UNAuthorizationStatus durum) {
  switch (durum) {
    case UNAuthorizationStatusAuthorized:
      return BildirimYetkisi::yetkili;
    case UNAuthorizationStatusProvisional:
      return BildirimYetkisi::gecici;
    case UNAuthorizationStatusNotDetermined:
      return BildirimYetkisi::belirlenmedi;
    case UNAuthorizationStatusDenied:
      return BildirimYetkisi::reddedildi;
  }
  return BildirimYetkisi::bilinmeyen;
}

class BildirimMerkeziMac final : public BildirimMerkezi {
 public:
  explicit BildirimMerkeziMac(AnaKuyruk& kuyruk) : kuyruk_(kuyruk) {}

  void yetki(std::function<void(BildirimYetkisi)> bitti) override {
    AnaKuyruk* kuyruk = &kuyruk_;
    [merkez() getNotificationSettingsWithCompletionHandler:^(UNNotificationSettings* ayar) {
      const auto yetki = yetkiCevir(ayar.authorizationStatus);
      kuyruk->gonder([bitti, yetki] { bitti(yetki); });
    }];
  }
  void izinIste(std::function<void()> bitti) override {
    AnaKuyruk* kuyruk = &kuyruk_;
    [merkez()
        requestAuthorizationWithOptions:UNAuthorizationOptionAlert | UNAuthorizationOptionSound
                      completionHandler:^(BOOL, NSError*) {
                        kuyruk->gonder(bitti);
                      }];
  }
  void gonder(const std::string& baslik, const std::string& govde,
              const std::string& kimlik) override {
    UNMutableNotificationContent* icerik = [[UNMutableNotificationContent alloc] init];
    icerik.title = mac::nsMetin(baslik);
    icerik.body = mac::nsMetin(govde);
    icerik.sound = UNNotificationSound.defaultSound;
    UNNotificationRequest* istek = [UNNotificationRequest requestWithIdentifier:mac::nsMetin(kimlik)
                                                                        content:icerik
                                                                        trigger:nil];
    [merkez() addNotificationRequest:istek withCompletionHandler:nil];
  }
  // Silent; its button and a click on it do the same.
  void isBildirimi(const std::string& baslik, const std::string& govde, const std::string& kimlik,
                   const std::string& dugme, std::function<void()> tiklaninca) override {
    UNMutableNotificationContent* icerik = [[UNMutableNotificationContent alloc] init];
    icerik.title = mac::nsMetin(baslik);
    icerik.body = mac::nsMetin(govde);
    if (!dugme.empty()) icerik.categoryIdentifier = dugmeKimligi(dugme);
    UNNotificationRequest* istek = [UNNotificationRequest requestWithIdentifier:mac::nsMetin(kimlik)
                                                                        content:icerik
                                                                        trigger:nil];
    eylemler_[kimlik] = std::move(tiklaninca);
    [merkez() addNotificationRequest:istek withCompletionHandler:nil];
  }
  void bildirimiGeriCek(const std::string& kimlik) override {
    eylemler_.erase(kimlik);
    [merkez() removeDeliveredNotificationsWithIdentifiers:@[ mac::nsMetin(kimlik) ]];
  }
  void ayarlariAc() override {
    NSURL* adres =
        [NSURL URLWithString:@"x-apple.systempreferences:com.apple.preference.notifications"];
    [NSWorkspace.sharedWorkspace openURL:adres];
  }
  void temsilciOl(std::function<void()> tiklandi,
                  const std::vector<std::string>& dugmeler) override {
    temsilci_ = [[NevoBildirimTemsilcisi alloc] init];
    // The centre does not promise to call its delegate on the main thread; its completion
    // handler follows the window coming forward there.
    AnaKuyruk* kuyruk = &kuyruk_;
    temsilci_.tiklandi = [this, kuyruk, tiklandi = std::move(tiklandi)](const std::string& kimlik,
                                                                        void (^bitti)(void)) {
      // Under ARC, the capture copies the block.
      kuyruk->gonder([this, kimlik, tiklandi, bitti] {
        tiklamaGeldi(kimlik, tiklandi);
        bitti();
      });
    };
    merkez().delegate = temsilci_;  // the centre holds its delegate weakly
    dugmeleriKaydet(dugmeler);
  }

 private:
  static UNUserNotificationCenter* merkez() {
    return UNUserNotificationCenter.currentNotificationCenter;
  }
  // A button is a category of one action, both named after its title; a notification that
  // carries the button names the category. The centre shows only categories registered
  // before, all at once: these are all the shell has.
  static NSString* dugmeKimligi(const std::string& dugme) { return mac::nsMetin("dugme:" + dugme); }
  static void dugmeleriKaydet(const std::vector<std::string>& dugmeler) {
    NSArray<UNNotificationCategory*>* kategoriler = @[];
    for (const auto& dugme : dugmeler) {
      UNNotificationAction* eylem = [UNNotificationAction actionWithIdentifier:dugmeKimligi(dugme)
                                                                         title:mac::nsMetin(dugme)
                                                                       options:0];
      kategoriler = [kategoriler
          arrayByAddingObject:[UNNotificationCategory categoryWithIdentifier:dugmeKimligi(dugme)
                                                                     actions:@[ eylem ]
                                                           intentIdentifiers:@[]
                                                                     options:0]];
    }
    [merkez() setNotificationCategories:[NSSet setWithArray:kategoriler]];
  }
  // The shell's own notifications do what they were posted with; the page's bring the
  // application forward.
  void tiklamaGeldi(const std::string& kimlik, const std::function<void()>& tiklandi) {
    const auto yer = eylemler_.find(kimlik);
    if (yer == eylemler_.end()) {
      tiklandi();
    } else if (yer->second) {
      yer->second();
    }
  }

  AnaKuyruk& kuyruk_;
  NevoBildirimTemsilcisi* temsilci_ = nil;
  std::map<std::string, std::function<void()>> eylemler_;
};

}  // namespace

std::unique_ptr<BildirimMerkezi> bildirimMerkeziOlustur(AnaKuyruk& kuyruk) {
  return std::make_unique<BildirimMerkeziMac>(kuyruk);
}

}  // namespace nevo
