#import "app/pencere/pencere_mac.hpp"

#include <algorithm>
#include <vector>

#include "app/indirme/indirme_izni.hpp"
#import "app/indirme/indirme_mac.hpp"
#include "app/pencere/izin_tablosu.hpp"
#include "app/pencere/menu_modeli.hpp"
#include "app/pencere/yazdirma_betigi.hpp"
#include "app/platform_metinleri.hpp"
#include "temel/json_mac.hpp"
#include "temel/metin_mac.hpp"

// The web view's navigation and UI delegate, its script message handlers ("nevo" and the
// page's print) and the observer of its "URL": each callback goes to the application delegate
// `Uygulama` through PencereOlaylari. Its media capture requests are decided by the permission
// table for the application at `uygulamaAdresi`.
@interface NevoWebTemsilcisi : NSObject <WKNavigationDelegate, WKUIDelegate, WKScriptMessageHandler>
- (instancetype)initWithOlaylar:(nevo::PencereOlaylari*)olaylar
                 uygulamaAdresi:(const std::string&)uygulamaAdresi;
@end

// The web view with the shell's context menu, and the keys and gestures that zoom and print.
@interface NevoWebGorunumu : WKWebView
- (instancetype)initWithFrame:(NSRect)cerceve
                configuration:(WKWebViewConfiguration*)ayar
                      olaylar:(nevo::PencereOlaylari*)olaylar;
@end

@implementation NevoWebGorunumu {
  nevo::PencereOlaylari* _olaylar;
  double _yakinlastirma;  // the wheel's and the pinch's steps not yet taken
}

- (instancetype)initWithFrame:(NSRect)cerceve
                configuration:(WKWebViewConfiguration*)ayar
                      olaylar:(nevo::PencereOlaylari*)olaylar {
  if ((self = [super initWithFrame:cerceve configuration:ayar])) _olaylar = olaylar;
  return self;
}

- (void)willOpenMenu:(NSMenu*)menu withEvent:(NSEvent*)olay {
  nevo::mac::baglamMenusunuBudar(menu);
  [super willOpenMenu:menu withEvent:olay];
}

// The page has the first say: the web view takes a key equivalent for it, and hands back one
// the page left alone the same way, which it then declines.
- (BOOL)performKeyEquivalent:(NSEvent*)olay {
  if ([super performKeyEquivalent:olay]) return YES;
  const auto komut = nevo::mac::tusKomutu(olay);
  if (!komut) return NO;
  _olaylar->tusKomutu(*komut);
  return YES;
}

- (void)scrollWheel:(NSEvent*)olay {
  if (!(olay.modifierFlags & NSEventModifierFlagCommand)) {
    [super scrollWheel:olay];
    return;
  }
  nevo::mac::yakinlastirmaAdimi(_yakinlastirma, olay.deltaY, *_olaylar);
}

// A pinch's tenth of its size is one step.
- (void)magnifyWithEvent:(NSEvent*)olay {
  nevo::mac::yakinlastirmaAdimi(_yakinlastirma, olay.magnification * 10, *_olaylar);
}

@end

namespace {
// The code of WebKit's "frame load interrupted by policy change".
constexpr NSInteger KESILEN_YUKLEME = 102;

std::optional<std::string> metin(NSURL* url) {
  if (url == nil) return std::nullopt;
  return nevo::mac::stdMetin(url.absoluteString);
}

std::vector<nevo::Izin> yakalamaIzinleri(WKMediaCaptureType tur) {
  switch (tur) {
    case WKMediaCaptureTypeCamera:
      return {nevo::Izin::Kamera};
    case WKMediaCaptureTypeMicrophone:
      return {nevo::Izin::Mikrofon};
    case WKMediaCaptureTypeCameraAndMicrophone:
      return {nevo::Izin::Kamera, nevo::Izin::Mikrofon};
  }
  return {};
}
}  // namespace

@implementation NevoWebTemsilcisi {
  nevo::PencereOlaylari* _olaylar;
  std::string _uygulamaAdresi;
}

- (instancetype)initWithOlaylar:(nevo::PencereOlaylari*)olaylar
                 uygulamaAdresi:(const std::string&)uygulamaAdresi {
  if ((self = [super init])) {
    _olaylar = olaylar;
    _uygulamaAdresi = uygulamaAdresi;
  }
  return self;
}

- (void)observeValueForKeyPath:(NSString*)yol
                      ofObject:(id)nesne
                        change:(NSDictionary*)degisim
                       context:(void*)baglam {
  if ([yol isEqualToString:@"URL"]) _olaylar->adresDegisti();
}

- (void)webView:(WKWebView*)web
    decidePolicyForNavigationAction:(WKNavigationAction*)eylem
                    decisionHandler:(void (^)(WKNavigationActionPolicy))karar {
  // No target frame: a new window, which the main frame's page asked for.
  const nevo::GezinmeKaynagi kaynak{eylem.targetFrame == nil || eylem.targetFrame.isMainFrame,
                                    eylem.navigationType == WKNavigationTypeLinkActivated};
  if (!_olaylar->gezinmeIzni(metin(eylem.request.URL), kaynak)) {
    karar(WKNavigationActionPolicyCancel);
  } else if (@available(macOS 11.3, *)) {
    karar(eylem.shouldPerformDownload ? WKNavigationActionPolicyDownload
                                      : WKNavigationActionPolicyAllow);
  } else {
    karar(WKNavigationActionPolicyAllow);
  }
}

// A response sent as an attachment, or of a type the view cannot show, is saved, as
// WebKitGTK does by itself; the downloads' own rules decide whether it goes on.
- (void)webView:(WKWebView*)web
    decidePolicyForNavigationResponse:(WKNavigationResponse*)yanit
                      decisionHandler:(void (^)(WKNavigationResponsePolicy))karar {
  bool ek = !yanit.canShowMIMEType;
  if (@available(macOS 11.3, *)) {
    id cevap = yanit.response;
    if (NSHTTPURLResponse* http = [cevap isKindOfClass:[NSHTTPURLResponse class]] ? cevap : nil) {
      ek = ek || nevo::ekOlarakMi(
                     nevo::mac::stdMetin([http valueForHTTPHeaderField:@"Content-Disposition"]));
    }
    karar(ek ? WKNavigationResponsePolicyDownload : WKNavigationResponsePolicyAllow);
  } else {
    karar(WKNavigationResponsePolicyAllow);
  }
}

- (void)webView:(WKWebView*)web
     navigationAction:(WKNavigationAction*)eylem
    didBecomeDownload:(WKDownload*)indirme API_AVAILABLE(macos(11.3)) {
  nevo::mac::indirmeBasladi(indirme, _olaylar->indirmeler());
}

- (void)webView:(WKWebView*)web
    navigationResponse:(WKNavigationResponse*)yanit
     didBecomeDownload:(WKDownload*)indirme API_AVAILABLE(macos(11.3)) {
  nevo::mac::indirmeBasladi(indirme, _olaylar->indirmeler());
}

- (WKWebView*)webView:(WKWebView*)web
    createWebViewWithConfiguration:(WKWebViewConfiguration*)ayar
               forNavigationAction:(WKNavigationAction*)eylem
                    windowFeatures:(WKWindowFeatures*)ozellikler {
  _olaylar->yeniPencereIstendi(metin(eylem.request.URL));
  return nil;
}

// The body goes on as JSON text, converted value by value: a value JSON cannot hold is null
// and the rest of the message stays.
- (void)userContentController:(WKUserContentController*)denetleyici
      didReceiveScriptMessage:(WKScriptMessage*)mesaj {
  const nevo::MesajKaynagi kaynak{mesaj.frameInfo.isMainFrame == YES,
                                  nevo::mac::stdMetin(mesaj.frameInfo.securityOrigin.host)};
  if ([mesaj.name isEqualToString:nevo::mac::nsMetin(nevo::YAZDIRMA_ISLEYICISI)]) {
    _olaylar->yazdirmaIstendi(kaynak);
    return;
  }
  const std::string json = nevo::mac::jsonDegeri(mesaj.body)
                               .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  _olaylar->userContentController(json, kaynak);
}

// The frame and its origin are named here, so the table decides for the request itself: the
// application's own top page is given the device, any other page or frame is refused.
- (void)webView:(WKWebView*)web
    requestMediaCapturePermissionForOrigin:(WKSecurityOrigin*)koken
                          initiatedByFrame:(WKFrameInfo*)cerceve
                                      type:(WKMediaCaptureType)tur
                           decisionHandler:(void (^)(WKPermissionDecision))karar {
  const nevo::IzinKaynagi kaynak{metin(web.URL), cerceve.isMainFrame == YES,
                                 nevo::mac::stdMetin(koken.host)};
  const auto izinler = yakalamaIzinleri(tur);
  const bool verilir = !izinler.empty() && std::all_of(izinler.begin(), izinler.end(), [&](auto i) {
    return nevo::izinVerilir(i, kaynak, _uygulamaAdresi);
  });
  karar(verilir ? WKPermissionDecisionGrant : WKPermissionDecisionDeny);
}

- (void)webView:(WKWebView*)web didCommitNavigation:(WKNavigation*)gezinme {
  _olaylar->sayfaIslendi();
}

- (void)webView:(WKWebView*)web didFinishNavigation:(WKNavigation*)gezinme {
  _olaylar->yuklemeBitti();
}

- (void)webViewWebContentProcessDidTerminate:(WKWebView*)web {
  _olaylar->webSureciBitti();
}

- (void)basarisiz:(NSError*)hata {
  if ([hata.domain isEqualToString:@"WebKitErrorDomain"] && hata.code == KESILEN_YUKLEME) {
    _olaylar->yuklemeKesildi();
    return;
  }
  NSString* adres = hata.userInfo[NSURLErrorFailingURLStringErrorKey];
  _olaylar->yuklemeBasarisiz(adres ? std::optional<std::string>(nevo::mac::stdMetin(adres))
                                   : std::nullopt);
}

- (void)webView:(WKWebView*)web didFailNavigation:(WKNavigation*)g withError:(NSError*)hata {
  [self basarisiz:hata];
}

- (void)webView:(WKWebView*)web
    didFailProvisionalNavigation:(WKNavigation*)g
                       withError:(NSError*)hata {
  [self basarisiz:hata];
}

@end

namespace nevo::mac {
namespace {

class WebGorunumMac final : public WebGorunum {
 public:
  WebGorunumMac(WKWebView* web, NevoWebTemsilcisi* temsilci) : web_(web), temsilci_(temsilci) {}
  ~WebGorunumMac() override { [web_ removeObserver:temsilci_ forKeyPath:@"URL"]; }
  std::optional<std::string> adres() const override { return metin(web_.URL); }
  void adresYukle(const std::string& adres) override {
    NSURL* url = [NSURL URLWithString:nsMetin(adres)];
    if (url == nil) return;
    [web_ loadRequest:[NSURLRequest requestWithURL:url
                                       cachePolicy:NSURLRequestUseProtocolCachePolicy
                                   timeoutInterval:ISTEK_ZAMAN_ASIMI]];
  }
  void htmlYukle(const std::string& html) override {
    [web_ loadHTMLString:nsMetin(html) baseURL:nil];
  }
  void yenile() override { [web_ reload]; }
  // WebKit on macOS has no public way to end the web content process, and it reports no
  // unresponsive page through public interfaces, so the core never asks for this here.
  void sureciBitir() override {}
  void yakinlik(double oran) override { web_.pageZoom = oran; }
  // The system checks spelling in every text view by itself.
  void yazimDenetiminiBaslat() override {}
  // The operation's view has no size of its own, and prints nothing without one.
  void yazdir() override {
    NSPrintOperation* islem = [web_ printOperationWithPrintInfo:NSPrintInfo.sharedPrintInfo];
    islem.view.frame = web_.bounds;
    if (NSWindow* pencere = web_.window) {
      [islem runOperationModalForWindow:pencere delegate:nil didRunSelector:nil contextInfo:nil];
    }
  }
  void betikCalistir(const std::string& betik) override {
    [web_ evaluateJavaScript:nsMetin(betik) completionHandler:nil];
  }
  void betikSor(const std::string& betik, Cevap cevap) override {
    [web_ evaluateJavaScript:nsMetin(betik) completionHandler:cevapBlogu(std::move(cevap))];
  }
  void betikBekle(const std::string& govde, Cevap cevap) override {
    [web_ callAsyncJavaScript:nsMetin(govde)
                    arguments:nil
                      inFrame:nil
               inContentWorld:WKContentWorld.pageWorld
            completionHandler:cevapBlogu(std::move(cevap))];
  }
  // The menu entry that runs the command names its selector, sent down the responder chain.
  void duzenle(const std::string& komut) override {
    static const std::vector<AltMenu> MENU = anaMenu(macMetinleri());
    if (const MenuOgesi* oge = duzenlemeOgesi(MENU, komut)) {
      [NSApp sendAction:NSSelectorFromString(nsMetin(oge->secici)) to:nil from:nil];
    }
  }

 private:
  // A script's completion: its boolean result goes to `cevap`.
  static void (^cevapBlogu(Cevap cevap))(id, NSError*) {
    return ^(id sonuc, NSError* hata) {
      std::optional<bool> deger;
      if (hata == nil && [sonuc isKindOfClass:NSNumber.class] &&
          CFGetTypeID((__bridge CFTypeRef)sonuc) == CFBooleanGetTypeID()) {
        deger = [sonuc boolValue];
      }
      cevap(deger);
    };
  }
  WKWebView* web_;
  NevoWebTemsilcisi* temsilci_;  // the web view holds its delegates weakly
};

}  // namespace

std::unique_ptr<WebGorunum> webKur(const PencereTasarimi& tasarim, PencereOlaylari& olaylar,
                                   WKWebView* __strong* gorunum) {
  WKWebViewConfiguration* ayar = [[WKWebViewConfiguration alloc] init];
  ayar.applicationNameForUserAgent = nsMetin(tasarim.kullaniciAraciAdi);
  for (const std::string& betik : {tasarim.stilBetigi, std::string(yazdirmaBetigi())}) {
    [ayar.userContentController
        addUserScript:[[WKUserScript alloc] initWithSource:nsMetin(betik)
                                             injectionTime:WKUserScriptInjectionTimeAtDocumentStart
                                          forMainFrameOnly:YES]];
  }
  NevoWebTemsilcisi* temsilci = [[NevoWebTemsilcisi alloc] initWithOlaylar:&olaylar
                                                            uygulamaAdresi:tasarim.uygulamaAdresi];
  [ayar.userContentController addScriptMessageHandler:temsilci name:@"nevo"];
  [ayar.userContentController addScriptMessageHandler:temsilci name:nsMetin(YAZDIRMA_ISLEYICISI)];
  const NSRect cerceve = NSMakeRect(0, 0, tasarim.olcu.en, tasarim.olcu.boy);
  WKWebView* web = [[NevoWebGorunumu alloc] initWithFrame:cerceve
                                            configuration:ayar
                                                  olaylar:&olaylar];
  web.navigationDelegate = temsilci;
  web.UIDelegate = temsilci;
  web.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  [web setValue:@NO forKey:@"drawsBackground"];
  web.underPageBackgroundColor = NSColor.clearColor;
  [web addObserver:temsilci forKeyPath:@"URL" options:NSKeyValueObservingOptionNew context:nil];
  *gorunum = web;
  return std::make_unique<WebGorunumMac>(web, temsilci);
}

}  // namespace nevo::mac
