#include "bridge/masaustu.hpp"

#include <utility>

#include "bridge/govde.hpp"
#include "bridge/sayfa_cagrilari.hpp"

namespace nevo {

std::shared_ptr<Masaustu> Masaustu::olustur(MasaustuPortlari portlar) {
  return std::shared_ptr<Masaustu>(new Masaustu(portlar));
}

Masaustu::Masaustu(MasaustuPortlari portlar)
    : tercih_(portlar.tercih),
      baslangic_(portlar.baslangic),
      kisayol_(portlar.kisayol),
      hizli_(portlar.hizli),
      menu_(portlar.menu),
      kaydedici_(portlar.kaydedici),
      uyku_(portlar.gucKilidi, portlar.tercih) {}

// The hot key opens the panel, or hides it when it shows.
void Masaustu::kur() {
  kisayol_.tetikleAyarla([zayif = weak_from_this()] {
    if (auto kopru = zayif.lock()) kopru->hizli_.acKapat();
  });
  kisayol_.kur();
  menu_.uygula(tercih_.menuCubugu());
}

void Masaustu::kapanirken() {
  kisayol_.birak();
  uyku_.temizle();
}

void Masaustu::sayfaDegisti() { uyku_.temizle(); }

void Masaustu::mesaj(const nlohmann::json& govde) {
  const auto istek = tamsayiAlan(govde, "istek").value_or(0);
  const auto eylem = metinAlani(govde, "eylem").value_or("");
  const auto deger = mantiksalAlan(govde, "deger").value_or(false);
  if (eylem == "durum") {
    // a status query: the reply alone
  } else if (eylem == "baslangic") {
    baslangic_.ayarla(deger);
  } else if (eylem == "menu-cubugu") {
    tercih_.menuCubugu(deger);
    menu_.uygula(deger);
  } else if (eylem == "uyanik") {
    tercih_.uyanikTut(deger);
    uyku_.tercihDegisti();
  } else if (eylem == "kisayol-sil") {
    kisayol_.sil();
  } else if (eylem == "kisayol-kaydet") {
    kaydediciyiAc(istek);
    return;
  } else {
    return;
  }
  cevapla(istek);
}

// The reply waits for the recorder; without a window it goes at once.
void Masaustu::kaydediciyiAc(std::int64_t istek) {
  Pencere* pencere = anaPencere();
  if (pencere == nullptr) {
    cevapla(istek);
    return;
  }
  kaydedici_.ac(*pencere, [zayif = weak_from_this(), istek] {
    if (auto kopru = zayif.lock()) kopru->cevapla(istek);
  });
}

void Masaustu::cevapla(std::int64_t istek) { gonder(nevoMasaustuCevap(istek, durumJSON())); }

void Masaustu::isMesaji(const nlohmann::json& govde) {
  const auto is = metinAlani(govde, "is");
  if (!is) return;
  if (mantiksalAlan(govde, "acik") == true) {
    uyku_.ekle(*is);
  } else {
    uyku_.cikar(*is);
  }
}

// Each store is read once for the whole object.
std::string Masaustu::durumJSON() const {
  const auto baslangic = baslangic_.durum();
  const auto tercih = tercih_.hepsi();
  // A stored value out of range is no shortcut, for the page as for registration.
  const bool kisayolVar = tercih.kisayolKod >= 0 && kisayolDegeriGecerli(tercih.kisayolKod) &&
                          kisayolDegeriGecerli(tercih.kisayolMod);
  nlohmann::json durum{
      {"baslangic", baslangic.acik},
      {"baslangicDestekli", baslangic.destekli},
      {"baslangicHata", baslangic.hata ? nlohmann::json(*baslangic.hata) : nlohmann::json(nullptr)},
      {"kisayol", kisayolVar ? nlohmann::json(tercih.kisayolAd) : nlohmann::json(nullptr)},
      {"menuCubugu", tercih.menuCubugu},
      {"uyanikTut", tercih.uyanikTut},
  };
  try {
    return durum.dump();
  } catch (const nlohmann::json::exception&) {
    return "{}";
  }
}

void Masaustu::komut(std::string_view komut) { gonder(nevoKomut(komut)); }

void Masaustu::hizliMesaj(std::string_view metin) { gonder(nevoHizliMesaj(metin)); }

Pencere* Masaustu::anaPencere() const {
  const auto yol = yol_.lock();
  return yol ? yol->anaPencere() : nullptr;
}

void Masaustu::gonder(const std::string& betik) {
  if (auto yol = yol_.lock()) yol->sayfayaGonder(betik);
}

}  // namespace nevo
