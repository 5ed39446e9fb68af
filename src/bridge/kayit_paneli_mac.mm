#import <Cocoa/Cocoa.h>

#include "bridge/dosya_kaydet.hpp"
#include "temel/metin_mac.hpp"

namespace nevo {
namespace {

// NSSavePanel as its own window: the name as given, no file types, folders.
class KayitPaneliMac final : public KayitPaneli {
 public:
  void ac(const std::string& onerilenAd,
          std::function<void(std::optional<std::string>)> bitti) override {
    NSSavePanel* pano = [NSSavePanel savePanel];
    pano.nameFieldStringValue = mac::nsMetin(onerilenAd);
    pano.canCreateDirectories = YES;
    [pano beginWithCompletionHandler:^(NSModalResponse cevap) {
      if (cevap != NSModalResponseOK || pano.URL == nil || !pano.URL.fileURL) {
        bitti(std::nullopt);
        return;
      }
      bitti(std::string(pano.URL.path.fileSystemRepresentation));
    }];
  }
};

}  // namespace

std::unique_ptr<KayitPaneli> kayitPaneliOlustur() { return std::make_unique<KayitPaneliMac>(); }

}  // namespace nevo
