#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "temel/pencere.hpp"
#include "bridge/masaustu_portlari.hpp"
#include "desktop/baslangic.hpp"
#include "desktop/tercih.hpp"
#include "desktop/uyku_engeli.hpp"

namespace nevo {

// The integrations the bridge drives. The four of subsystem 4 that a platform may not
// offer yet are optional.
struct MasaustuPortlari {
  Tercih& tercih;
  Baslangic& baslangic;
  GucKilidi& gucKilidi;
  KisayolKayitcisi* kisayol = nullptr;
  HizliPanel* hizli = nullptr;
  MenuCubuguOgesi* menu = nullptr;
  KisayolKaydedici* kaydedici = nullptr;
};

// The desktop bridge (Part 2.2). One instance lives for the whole process.
class Masaustu final : public std::enable_shared_from_this<Masaustu> {
 public:
  static std::shared_ptr<Masaustu> olustur(MasaustuPortlari portlar);
  Masaustu(const Masaustu&) = delete;
  Masaustu& operator=(const Masaustu&) = delete;

  MenuCubuguOgesi* const menu;
  HizliPanel* const hizli;
  UykuEngeli uyku;
  KisayolKaydedici* const kaydedici;
  std::function<Pencere*()> anaPencere;
  std::function<void(const std::string&)> sayfayaGonder;

  void kur();
  void kapanirken();
  void mesaj(const nlohmann::json& istek);
  void cevapla(std::int64_t istek);
  void isMesaji(const nlohmann::json& is);
  std::string durumJSON() const;
  void komut(std::string_view komut);
  void hizliMesaj(std::string_view metin);

 private:
  explicit Masaustu(MasaustuPortlari portlar);
  void gonder(const std::string& betik);
  void hizliyiDegistir();
  void kaydediciyiAc(std::int64_t istek);

  Tercih& tercih_;
  Baslangic& baslangic_;
  KisayolKayitcisi* const kisayol_;
};

}  // namespace nevo
