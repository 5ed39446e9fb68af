#include "app/indirme/indirme_gtk.hpp"

#include <string>
#include <utility>
#include <vector>

#include "temel/glib_gtk.hpp"

namespace nevo {
namespace {

// One engine download; its reports stop when the core lets it go.
class IndirmeGtk final : public Indirme {
 public:
  explicit IndirmeGtk(WebKitDownload* indirme) : indirme_(paylas(indirme)) {}
  void hedefVer(const std::string& yol) override {
    webkit_download_set_destination(indirme_.get(), yol.c_str());
  }
  void iptal() override { webkit_download_cancel(indirme_.get()); }
  void bagla(std::weak_ptr<IndirmeOlaylari> olaylar, std::uint64_t no);

 private:
  GNesne<WebKitDownload> indirme_;
  std::vector<SinyalBaglantisi> baglantilar_;
};

std::optional<std::uint64_t> toplamBoyut(WebKitDownload* indirme) {
  WebKitURIResponse* cevap = webkit_download_get_response(indirme);
  const guint64 boyut = cevap != nullptr ? webkit_uri_response_get_content_length(cevap) : 0;
  return boyut > 0 ? std::optional<std::uint64_t>(boyut) : std::nullopt;
}

// The engine always ends with "finished", also after "failed": the core has forgotten a
// failed download by then.
void IndirmeGtk::bagla(std::weak_ptr<IndirmeOlaylari> olaylar, std::uint64_t no) {
  auto* d = indirme_.get();
  baglantilar_.push_back(Sinyal<gboolean(WebKitDownload*, gchar*)>::bagliTut(
      d, "decide-destination", [olaylar, no](WebKitDownload*, gchar* onerilen) -> gboolean {
        if (auto o = olaylar.lock()) o->hedefSor(no, onerilen != nullptr ? onerilen : "");
        return TRUE;
      }));
  baglantilar_.push_back(Sinyal<void(WebKitDownload*, guint64)>::bagliTut(
      d, "received-data", [olaylar, no](WebKitDownload* indirme, guint64) {
        if (auto o = olaylar.lock()) {
          o->ilerledi(no, webkit_download_get_received_data_length(indirme), toplamBoyut(indirme));
        }
      }));
  baglantilar_.push_back(Sinyal<void(WebKitDownload*, GError*)>::bagliTut(
      d, "failed", [olaylar, no](WebKitDownload*, GError*) {
        if (auto o = olaylar.lock()) o->basarisiz(no);
      }));
  baglantilar_.push_back(
      Sinyal<void(WebKitDownload*)>::bagliTut(d, "finished", [olaylar, no](WebKitDownload*) {
        if (auto o = olaylar.lock()) o->bitti(no);
      }));
}

const char* istekAdresi(WebKitDownload* indirme) {
  const char* adres = webkit_uri_request_get_uri(webkit_download_get_request(indirme));
  return adres != nullptr ? adres : "";
}

}  // namespace

void indirmeleriBagla(WebKitWebContext* baglam, std::weak_ptr<IndirmeOlaylari> olaylar) {
  Sinyal<void(WebKitWebContext*, WebKitDownload*)>::bagla(
      baglam, "download-started",
      [olaylar = std::move(olaylar)](WebKitWebContext*, WebKitDownload* indirme) {
        auto o = olaylar.lock();
        if (!o) {
          webkit_download_cancel(indirme);
          return;
        }
        auto sarmal = std::make_shared<IndirmeGtk>(indirme);
        const auto no = o->basladi(sarmal, istekAdresi(indirme));
        if (no != 0) sarmal->bagla(olaylar, no);
      });
}

}  // namespace nevo
