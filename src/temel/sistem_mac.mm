#import <Cocoa/Cocoa.h>

#include <cstdio>
#include <cstdlib>

#include "temel/metin_mac.hpp"
#include "temel/sistem.hpp"

namespace nevo {
namespace {

class SistemMac final : public Sistem {
 public:
  void etkinlestir() override { [NSApp activateIgnoringOtherApps:YES]; }
  void disaridaAc(const std::string& adres) override {
    NSURL* url = [NSURL URLWithString:mac::nsMetin(adres)];
    if (url != nil) [[NSWorkspace sharedWorkspace] openURL:url];
  }
  void sonlandir() override { [NSApp terminate:nil]; }
  void klasordeGoster(const std::string& yol) override {
    [[NSWorkspace sharedWorkspace]
        activateFileViewerSelectingURLs:@[ [NSURL fileURLWithPath:mac::nsMetin(yol)] ]];
  }
  std::optional<std::string> paketKimligi() const override {
    NSString* kimlik = NSBundle.mainBundle.bundleIdentifier;
    if (kimlik == nil) return std::nullopt;
    return mac::stdMetin(kimlik);
  }
  void hakkindaGoster() override { [NSApp orderFrontStandardAboutPanel:nil]; }
  void gizle() override { [NSApp hide:nil]; }
  void digerleriniGizle() override { [NSApp hideOtherApplications:nil]; }
  std::optional<std::string> ciftTiklamaTercihi() const override {
    NSString* deger =
        [NSUserDefaults.standardUserDefaults stringForKey:@"AppleActionOnDoubleClick"];
    if (deger == nil) return std::nullopt;
    return mac::stdMetin(deger);
  }
  [[noreturn]] void olumcul(const std::string& neden) override {
    std::fprintf(stderr, "nevo: %s\n", neden.c_str());
    std::exit(EXIT_FAILURE);
  }
};

}  // namespace

std::unique_ptr<Sistem> sistemOlustur() { return std::make_unique<SistemMac>(); }

}  // namespace nevo
