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
      tercih_(portlar.tercih),
      baslangic_(portlar.baslangic),
      kisayol_(portlar.kisayol) {}

void Masaustu::kur() {
  if (kisayol_) {
    kisayol_->tetikleAyarla([zayif = weak_from_this()] {
      if (auto kopru = zayif.lock()) kopru->hizliyiDegistir();
    });
    kisayol_->kur();
  }
  if (menu) menu->uygula(tercih_.menuCubugu());
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
  if (kisayol_) kisayol_->birak();
  uyku.isler.clear();
  uyku.guncelle();
}

void Masaustu::mesaj(const nlohmann::json& govde) {
  const auto istek = tamsayiAlan(govde, "istek").value_or(0);
  const auto eylem = metinAlani(govde, "eylem").value_or("");
  const auto deger = mantiksalAlan(govde, "deger").value_or(false);
  if (eylem == "durum") {
    // a status query: nothing to do before the reply
  } else if (eylem == "baslangic") {
    baslangic_.ayarla(deger);
  } else if (eylem == "menu-cubugu") {
    tercih_.menuCubugu(deger);
    if (menu) menu->uygula(deger);
  } else if (eylem == "uyanik") {
    tercih_.uyanikTut(deger);
    uyku.guncelle();
  } else if (eylem == "kisayol-sil") {
    if (kisayol_) kisayol_->sil();
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
  const auto hata = baslangic_.hata();
  nlohmann::json durum{
      {"baslangic", baslangic_.acik()},
      {"baslangicDestekli", baslangic_.destekli()},
      {"baslangicHata", hata ? nlohmann::json(*hata) : nlohmann::json(nullptr)},
      {"kisayol", tercih_.kisayolKod() < 0 ? nlohmann::json(nullptr)
                                           : nlohmann::json(tercih_.kisayolAd())},
      {"menuCubugu", tercih_.menuCubugu()},
      {"uyanikTut", tercih_.uyanikTut()},
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
