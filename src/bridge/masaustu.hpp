#pragma once
#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "bridge/sayfa_yolu.hpp"
#include "desktop/baslangic.hpp"
#include "desktop/hizli_panel.hpp"
#include "desktop/kisayol_kaydedici.hpp"
#include "desktop/kisayol_kayitcisi.hpp"
#include "desktop/menu_cubugu_ogesi.hpp"
#include "desktop/tercih.hpp"
#include "desktop/uyku_engeli.hpp"

namespace nevo {

// The integrations the bridge drives. The hot key, the quick-entry panel, the menu-bar item
// and the shortcut recorder are optional: a platform without one hands none.
struct MasaustuPortlari {
  Tercih& tercih;
  Baslangic& baslangic;
  GucKilidi& gucKilidi;
  KisayolKayitcisi* kisayol = nullptr;
  HizliPanel* hizli = nullptr;
  MenuCubuguOgesi* menu = nullptr;
  KisayolKaydedici* kaydedici = nullptr;
};

// The desktop bridge: the page's settings requests and jobs, the desktop status object,
// and the commands and quick messages sent to the page. One instance lives for the whole
// process.
class Masaustu final : public std::enable_shared_from_this<Masaustu> {
 public:
  static std::shared_ptr<Masaustu> olustur(MasaustuPortlari portlar, SayfaYolu& yol);
  Masaustu(const Masaustu&) = delete;
  Masaustu& operator=(const Masaustu&) = delete;

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
  Masaustu(MasaustuPortlari portlar, SayfaYolu& yol);
  void hizliyiDegistir();
  void kaydediciyiAc(std::int64_t istek);

  SayfaYolu& yol_;
  Tercih& tercih_;
  Baslangic& baslangic_;
  KisayolKayitcisi* const kisayol_;
  HizliPanel* const hizli_;
  MenuCubuguOgesi* const menu_;
  KisayolKaydedici* const kaydedici_;
  UykuEngeli uyku_;
};

}  // namespace nevo
