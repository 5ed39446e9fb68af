#import "app/indirme/indirme_mac.hpp"

#include <cstdint>
#include <string>

#include "temel/metin_mac.hpp"

// The download's delegate: the place is asked of the core, and its answer given to the
// web view when it comes (the save dialog closes later). The download holds its delegate
// weakly; the core's `Indirme` holds it.
API_AVAILABLE(macos(11.3))
@interface NevoIndirmeTemsilcisi : NSObject <WKDownloadDelegate>
@property(nonatomic) std::weak_ptr<nevo::IndirmeOlaylari> olaylar;
@property(nonatomic) std::uint64_t no;
@property(nonatomic, copy, nullable) void (^yerVer)(NSURL* _Nullable);
@end

@implementation NevoIndirmeTemsilcisi

- (void)download:(WKDownload*)indirme
    decideDestinationUsingResponse:(NSURLResponse*)yanit
                 suggestedFilename:(NSString*)onerilen
                 completionHandler:(void (^)(NSURL* _Nullable))bitti {
  _yerVer = bitti;
  if (auto olaylar = _olaylar.lock()) olaylar->hedefSor(_no, nevo::mac::stdMetin(onerilen));
}

- (void)downloadDidFinish:(WKDownload*)indirme {
  if (auto olaylar = _olaylar.lock()) olaylar->bitti(_no);
}

- (void)download:(WKDownload*)indirme didFailWithError:(NSError*)hata resumeData:(NSData*)devam {
  if (auto olaylar = _olaylar.lock()) olaylar->basarisiz(_no);
}

@end

namespace nevo::mac {
namespace {

class IndirmeMac final : public Indirme {
 public:
  IndirmeMac(WKDownload* indirme, NevoIndirmeTemsilcisi* temsilci) API_AVAILABLE(macos(11.3))
      : indirme_(indirme), temsilci_(temsilci) {}
  void hedefVer(const std::string& yol) override { yerVer([NSURL fileURLWithPath:nsMetin(yol)]); }
  // A download still waiting for its place is told none; one under way stops.
  void iptal() override {
    if (!yerVer(nil)) [indirme_ cancel:nil];
  }

 private:
  // Answers the web view's question once; false when it was not asked or already answered.
  bool yerVer(NSURL* _Nullable yer) {
    void (^cevap)(NSURL* _Nullable) = temsilci_.yerVer;
    temsilci_.yerVer = nil;
    if (cevap == nil) return false;
    cevap(yer);
    return true;
  }

  WKDownload* indirme_ API_AVAILABLE(macos(11.3));
  NevoIndirmeTemsilcisi* temsilci_ API_AVAILABLE(macos(11.3));
};

}  // namespace

void indirmeBasladi(WKDownload* indirme, std::weak_ptr<IndirmeOlaylari> olaylar) {
  auto o = olaylar.lock();
  NevoIndirmeTemsilcisi* temsilci = [[NevoIndirmeTemsilcisi alloc] init];
  auto sarmal = std::make_shared<IndirmeMac>(indirme, temsilci);
  if (!o) {
    [indirme cancel:nil];
    return;
  }
  const auto no = o->basladi(sarmal, stdMetin(indirme.originalRequest.URL.absoluteString));
  if (no == 0) return;
  temsilci.olaylar = olaylar;
  temsilci.no = no;
  indirme.delegate = temsilci;
}

}  // namespace nevo::mac
