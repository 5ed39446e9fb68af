#import "app/indirme/indirme_mac.hpp"

#import <dispatch/dispatch.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "temel/metin_mac.hpp"

// The download's delegate: the place is asked of the core, and its answer given to the
// web view when it comes (the save dialog closes later). It watches the download's progress
// until the download ends and hands each change to the core on the main queue. The download
// holds its delegate weakly; the core's `Indirme` holds it.
API_AVAILABLE(macos(11.3))
@interface NevoIndirmeTemsilcisi : NSObject <WKDownloadDelegate>
@property(nonatomic) std::weak_ptr<nevo::IndirmeOlaylari> olaylar;
@property(nonatomic) std::uint64_t no;
@property(nonatomic, copy, nullable) void (^yerVer)(NSURL* _Nullable);
- (void)izle:(NSProgress*)ilerleme;
- (void)izlemeyiBirak;
@end

namespace {
NSString* const ALINAN = @"completedUnitCount";
}  // namespace

@implementation NevoIndirmeTemsilcisi {
  NSProgress* _izlenen;
}

- (void)izle:(NSProgress*)ilerleme {
  _izlenen = ilerleme;
  [ilerleme addObserver:self forKeyPath:ALINAN options:NSKeyValueObservingOptionNew context:nil];
}

- (void)izlemeyiBirak {
  [_izlenen removeObserver:self forKeyPath:ALINAN];
  _izlenen = nil;
}

// Progress may change on any thread. The size is unknown while the total is not positive.
- (void)observeValueForKeyPath:(NSString*)yol
                      ofObject:(id)nesne
                        change:(NSDictionary*)degisim
                       context:(void*)baglam {
  NSProgress* ilerleme = nesne;
  const auto alinan = static_cast<std::uint64_t>(std::max<int64_t>(ilerleme.completedUnitCount, 0));
  const int64_t toplam = ilerleme.totalUnitCount;
  const auto boyut =
      toplam > 0 ? std::optional<std::uint64_t>(static_cast<std::uint64_t>(toplam)) : std::nullopt;
  dispatch_async(dispatch_get_main_queue(), ^{
    if (auto olaylar = self->_olaylar.lock()) olaylar->ilerledi(self->_no, alinan, boyut);
  });
}

- (void)download:(WKDownload*)indirme
    decideDestinationUsingResponse:(NSURLResponse*)yanit
                 suggestedFilename:(NSString*)onerilen
                 completionHandler:(void (^)(NSURL* _Nullable))bitti {
  _yerVer = bitti;
  if (auto olaylar = _olaylar.lock()) olaylar->hedefSor(_no, nevo::mac::stdMetin(onerilen));
}

- (void)downloadDidFinish:(WKDownload*)indirme {
  [self izlemeyiBirak];
  if (auto olaylar = _olaylar.lock()) olaylar->bitti(_no);
}

- (void)download:(WKDownload*)indirme didFailWithError:(NSError*)hata resumeData:(NSData*)devam {
  [self izlemeyiBirak];
  if (auto olaylar = _olaylar.lock()) olaylar->basarisiz(_no);
}

@end

namespace nevo::mac {
namespace {

class IndirmeMac final : public Indirme {
 public:
  IndirmeMac(WKDownload* indirme, NevoIndirmeTemsilcisi* temsilci) API_AVAILABLE(macos(11.3))
      : indirme_(indirme), temsilci_(temsilci) {}
  // A download the core lets go of without its end (refused, cancelled at quit) is no
  // longer watched either.
  ~IndirmeMac() override API_AVAILABLE(macos(11.3)) { [temsilci_ izlemeyiBirak]; }
  IndirmeMac(const IndirmeMac&) = delete;
  IndirmeMac& operator=(const IndirmeMac&) = delete;
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
  [temsilci izle:indirme.progress];
}

}  // namespace nevo::mac
