#import <Cocoa/Cocoa.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "agent/ajan_yerleri.hpp"
#include "app/giris.hpp"
#include "app/kabuk.hpp"
#include "app/platform_metinleri.hpp"
#include "temel/metin_mac.hpp"
#include "yapilandirma.hpp"

// The application delegate of AppKit: builds the shell once launching has finished and
// forwards each callback to the portable application delegate.
@interface TemsilciMac : NSObject <NSApplicationDelegate>
- (instancetype)initWithAdres:(std::string)adres;
@end

@implementation TemsilciMac {
  std::string _adres;
  std::unique_ptr<nevo::Kabuk> _kabuk;
}

- (instancetype)initWithAdres:(std::string)adres {
  if ((self = [super init])) _adres = std::move(adres);
  return self;
}

// The launch sequence ends with the handler of the get-URL event: links of the application's
// scheme (declared in Info.plist) arrive from here on.
- (void)applicationDidFinishLaunching:(NSNotification*)bildirim {
  _kabuk = std::make_unique<nevo::Kabuk>(
      nevo::UygulamaAyari{_adres, nevo::yapilandirma::KIMLIK_SONEKI, nevo::macMetinleri(),
                          nevo::ajanYerleriOlustur(nevo::yapilandirma::KOPRU_ADRESI)});
  _kabuk->uygulama().applicationDidFinishLaunching();
  [NSAppleEventManager.sharedAppleEventManager setEventHandler:self
                                                   andSelector:@selector(adresGeldi:withReplyEvent:)
                                                 forEventClass:kInternetEventClass
                                                    andEventID:kAEGetURL];
}

// A link's text from the event's direct object; an event without one is handed on as
// unreadable.
- (void)adresGeldi:(NSAppleEventDescriptor*)olay withReplyEvent:(NSAppleEventDescriptor*)cevap {
  if (!_kabuk) return;
  NSString* metin = [[olay paramDescriptorForKeyword:keyDirectObject] stringValue];
  if (metin == nil) {
    _kabuk->uygulama().adresGeldi(std::nullopt);
    return;
  }
  const std::string adres = nevo::mac::stdMetin(metin);
  _kabuk->uygulama().adresGeldi(adres);
}

- (void)applicationWillTerminate:(NSNotification*)bildirim {
  if (_kabuk) _kabuk->uygulama().applicationWillTerminate();
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)uygulama {
  return NO;
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)uygulama hasVisibleWindows:(BOOL)gorunur {
  if (_kabuk) _kabuk->uygulama().applicationShouldHandleReopen(gorunur);
  return YES;
}

// The menu's reload entry has no target: it reaches the delegate through the responder
// chain.
- (void)yenidenYukle {
  if (_kabuk) _kabuk->uygulama().yenidenYukle();
}

@end

static TemsilciMac* temsilci;  // NSApplication holds its delegate weakly

int main(int, char**) {
  @autoreleasepool {
    NSString* ortam = NSProcessInfo.processInfo.environment[@"NEVO_ADRES"];
    const std::string ortamDegeri = nevo::mac::stdMetin(ortam);
    const std::string adres =
        nevo::adresSec(ortam ? ortamDegeri.c_str() : nullptr, nevo::yapilandirma::VARSAYILAN_ADRES);
    NSApplication* uygulama = NSApplication.sharedApplication;
    temsilci = [[TemsilciMac alloc] initWithAdres:adres];
    uygulama.delegate = temsilci;
    [uygulama setActivationPolicy:NSApplicationActivationPolicyRegular];
    // AppKit would add dictation and emoji entries to the Edit menu and tab entries to the
    // Window menu; the menus stay exactly as the shell builds them.
    [NSUserDefaults.standardUserDefaults registerDefaults:@{
      @"NSDisabledDictationMenuItem" : @YES,
      @"NSDisabledCharacterPaletteMenuItem" : @YES,
    }];
    NSWindow.allowsAutomaticWindowTabbing = NO;
    [uygulama run];
  }
  return 0;
}
