#pragma once
#include <webkit2/webkit2.h>

#include "app/pencere/pencere_olaylari.hpp"
#include "app/pencere/pencere_tasarimi.hpp"
#include "app/pencere/ust_gezinme_izi.hpp"
#include "app/pencere/web_gorunum.hpp"
#include "app/pencere/yazim_denetimi_gtk.hpp"
#include "temel/glib_gtk.hpp"

namespace nevo {

// The main web view over WebKitGTK; its signals go to the application delegate.
class WebGorunumGtk final : public WebGorunum {
 public:
  WebGorunumGtk(const PencereTasarimi& tasarim, PencereOlaylari& olaylar);
  WebGorunumGtk(const WebGorunumGtk&) = delete;
  WebGorunumGtk& operator=(const WebGorunumGtk&) = delete;
  ~WebGorunumGtk() override;

  GtkWidget* parca() const { return GTK_WIDGET(web_.get()); }

  std::optional<std::string> adres() const override;
  void adresYukle(const std::string& adres) override;
  void htmlYukle(const std::string& html) override;
  void yenile() override;
  void betikCalistir(const std::string& betik) override;
  void betikSor(const std::string& betik, Cevap cevap) override;
  void betikBekle(const std::string& govde, Cevap cevap) override;
  void duzenle(const std::string& komut) override;
  void sureciBitir() override;
  void yakinlik(double oran) override;
  void yazdir() override;
  void yazimDenetiminiBaslat() override;

 private:
  void sinyalleriBagla(PencereOlaylari& olaylar);
  void duzenlemeOdaginiDinle(WebKitUserContentManager* yonetici);
  void zamanAsiminiKur();
  void zamanAsiminiKaldir();
  GNesne<WebKitWebView> web_;
  UstGezinmeIzi ustGezinmeler_;
  SinyalBaglantisi gezinmeDuyurulari_;  // cut before the record it fills ends
  guint zamanAsimi_ = 0;
  SinyalBaglantisi yanitGeldi_;
  SinyalBaglantisi yuklenemedi_;
  SinyalBaglantisi surecBitti_;  // cut before the view ends a busy process itself
  YazimDenetimiGtk yazim_;
  SinyalBaglantisi duzenlemeOdagi_;  // cut before the checker it feeds ends
};

}  // namespace nevo
