#include "bridge/masaustu.hpp"

#include <utility>

#include "bridge/govde.hpp"
#include "bridge/js_kacir.hpp"

namespace nevo {

std::shared_ptr<Masaustu> Masaustu::olustur(MasaustuPortlari portlar) {
  return std::shared_ptr<Masaustu>(new Masaustu(portlar));
}

Masaustu::Masaustu(MasaustuPortlari portlar)
    : menu(portlar.menu),
      hizli(portlar.hizli),
      uyku(portlar.gucKilidi, portlar.tercih),
      kaydedici(portlar.kaydedici),
      portlar_(portlar) {}

void Masaustu::kur() {
  if (auto* kisayol = portlar_.kisayol) {
    kisayol->tetikleAyarla([zayif = weak_from_this()] {
      if (auto kopru = zayif.lock()) kopru->hizliyiDegistir();
    });
    kisayol->kur();
  }
  if (menu) menu->uygula(portlar_.tercih.menuCubugu());
}

void Masaustu::hizliyiDegistir() {
  if (!hizli) return;
  if (hizli->gorunur()) {
    hizli->gizle();
  } else {
    hizli->ac();
  }
}

void Masaustu::kapanirken() {
  if (portlar_.kisayol) portlar_.kisayol->birak();
  uyku.isler.clear();
  uyku.guncelle();
}

void Masaustu::mesaj(const nlohmann::json& govde) {
  const auto istek = tamsayiAlan(govde, "istek").value_or(0);
  const auto eylem = metinAlani(govde, "eylem").value_or("");
  const auto deger = mantiksalAlan(govde, "deger").value_or(false);
  auto& tercih = portlar_.tercih;
  if (eylem == "durum") {
    // a status query: nothing to do before the reply
  } else if (eylem == "baslangic") {
    portlar_.baslangic.ayarla(deger);
  } else if (eylem == "menu-cubugu") {
    tercih.menuCubugu(deger);
    if (menu) menu->uygula(deger);
  } else if (eylem == "uyanik") {
    tercih.uyanikTut(deger);
    uyku.guncelle();
  } else if (eylem == "kisayol-sil") {
    if (portlar_.kisayol) portlar_.kisayol->sil();
  } else if (eylem == "kisayol-kaydet") {
    kaydediciyiAc(istek);
    return;
  } else {
    return;
  }
  cevapla(istek);
}

// The reply waits for the recorder; without a window or a recorder it goes at once.
void Masaustu::kaydediciyiAc(std::int64_t istek) {
  Pencere* pencere = anaPencere ? anaPencere() : nullptr;
  if (pencere == nullptr || kaydedici == nullptr) {
    cevapla(istek);
    return;
  }
  kaydedici->ac(*pencere, [zayif = weak_from_this(), istek] {
    if (auto kopru = zayif.lock()) kopru->cevapla(istek);
  });
}

void Masaustu::cevapla(std::int64_t istek) {
  gonder(sayfaCagrisi("nevoMasaustuCevap",
                      std::to_string(istek) + ", " + metinArgumani(durumJSON())));
}

void Masaustu::isMesaji(const nlohmann::json& govde) {
  const auto is = metinAlani(govde, "is");
  if (!is) return;
  if (mantiksalAlan(govde, "acik") == true) {
    uyku.isler.insert(*is);
  } else {
    uyku.isler.erase(*is);
  }
  uyku.guncelle();
}

std::string Masaustu::durumJSON() const {
  const auto& tercih = portlar_.tercih;
  const auto& baslangic = portlar_.baslangic;
  const auto hata = baslangic.hata();
  nlohmann::json durum{
      {"baslangic", baslangic.acik()},
      {"baslangicDestekli", baslangic.destekli()},
      {"baslangicHata", hata ? nlohmann::json(*hata) : nlohmann::json(nullptr)},
      {"kisayol", tercih.kisayolKod() < 0 ? nlohmann::json(nullptr)
                                          : nlohmann::json(tercih.kisayolAd())},
      {"menuCubugu", tercih.menuCubugu()},
      {"uyanikTut", tercih.uyanikTut()},
  };
  try {
    return durum.dump();
  } catch (const nlohmann::json::exception&) {
    return "{}";
  }
}

void Masaustu::komut(std::string_view komut) {
  gonder(sayfaCagrisi("nevoKomut", metinArgumani(komut)));
}

void Masaustu::hizliMesaj(std::string_view metin) {
  gonder(sayfaCagrisi("nevoHizliMesaj", metinArgumani(metin)));
}

void Masaustu::gonder(const std::string& betik) {
  if (sayfayaGonder) sayfayaGonder(betik);
}

}  // namespace nevo
