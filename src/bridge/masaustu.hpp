#pragma once
#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <utility>

#include "bridge/sayfa_yolu.hpp"
#include "desktop/baslangic.hpp"
#include "desktop/hizli_pencere.hpp"
#include "desktop/kisayol/kisayol.hpp"
#include "desktop/kisayol/kisayol_kaydedici.hpp"
#include "desktop/menu_cubugu.hpp"
#include "desktop/tercih.hpp"
#include "desktop/uyku_engeli.hpp"

namespace nevo {

// The integrations the bridge drives; each outlives the bridge.
struct MasaustuPortlari {
  Tercih& tercih;
  Baslangic& baslangic;
  GucKilidi& gucKilidi;
  Kisayol& kisayol;
  HizliPencere& hizli;
  MenuCubugu& menu;
  KisayolKaydedici& kaydedici;
};

// The desktop bridge: the page's settings requests and jobs, the desktop status object,
// and the commands and quick messages sent to the page. One instance lives for the whole
// process, longer than the application delegate: its way to the page is held weakly, and
// while there is none its scripts are dropped and it knows no main window.
class Masaustu final : public std::enable_shared_from_this<Masaustu> {
 public:
  static std::shared_ptr<Masaustu> olustur(MasaustuPortlari portlar);
  Masaustu(const Masaustu&) = delete;
  Masaustu& operator=(const Masaustu&) = delete;

  // The way to the page; a later call replaces the earlier one.
  void sayfaBagla(std::weak_ptr<SayfaYolu> yol) { yol_ = std::move(yol); }
  Pencere* anaPencere() const;
  HizliPencere& hizli() const { return hizli_; }
  MenuCubugu& menu() const { return menu_; }
  const UykuEngeli& uyku() const { return uyku_; }

  void kur();
  void kapanirken();
  void mesaj(const nlohmann::json& istek);
  void cevapla(std::int64_t istek);
  void isMesaji(const nlohmann::json& is);
  std::string durumJSON() const;
  void komut(std::string_view komut);
  void hizliMesaj(std::string_view metin);
  void sayfaDegisti();  // a new page took the view: its jobs are gone

 private:
  explicit Masaustu(MasaustuPortlari portlar);
  void gonder(const std::string& betik);
  void kaydediciyiAc(std::int64_t istek);

  std::weak_ptr<SayfaYolu> yol_;
  Tercih& tercih_;
  Baslangic& baslangic_;
  Kisayol& kisayol_;
  HizliPencere& hizli_;
  MenuCubugu& menu_;
  KisayolKaydedici& kaydedici_;
  UykuEngeli uyku_;
};

}  // namespace nevo
