// Page messages: whatever the page posts, the handler drops or handles it
// without an exception, a crash or a leak (the tests run under ASan and UBSan).
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "fakes/uygulama_duzenegi.hpp"

namespace nevo {
namespace {

using nlohmann::json;

json rastgeleDeger(std::mt19937& r, int derinlik) {
  static const char* metinler[] = {"",           "durum",  "https://a.b/",   "true",
                                   "\xff\xfe",   "ş🙂", "kisayol-kaydet", "masaustu",
                                   "\\'\n\u2028"};
  switch (std::uniform_int_distribution<int>(0, derinlik > 2 ? 5 : 7)(r)) {
    case 0:
      return nullptr;
    case 1:
      return std::uniform_int_distribution<int>(0, 1)(r) == 1;
    case 2:
      return std::uniform_int_distribution<std::int64_t>()(r);
    case 3:
      return std::uniform_real_distribution<double>(-1e20, 1e20)(r);
    case 4:
      return std::numeric_limits<std::uint64_t>::max();
    case 5:
      return metinler[std::uniform_int_distribution<std::size_t>(0, 8)(r)];
    case 6:
      return json::array({rastgeleDeger(r, derinlik + 1), rastgeleDeger(r, derinlik + 1)});
    default:
      return json::object({{"tur", rastgeleDeger(r, derinlik + 1)}});
  }
}

json rastgeleMesaj(std::mt19937& r) {
  static const char* turler[] = {"tarayicida-ac",     "bildirim-durum", "bildirim-izin-iste",
                                 "bildirim-ayarlari", "dosya-kaydet",   "bildirim",
                                 "masaustu",          "masaustu-is",    "ajan-eslestir"};
  static const char* anahtarlar[] = {"url",   "baslik", "govde", "ad", "icerik", "kod",
                                     "istek", "eylem",  "deger", "is", "acik"};
  json govde = {{"tur", turler[std::uniform_int_distribution<std::size_t>(0, 8)(r)]}};
  for (const char* anahtar : anahtarlar) {
    if (std::uniform_int_distribution<int>(0, 2)(r) == 0) govde[anahtar] = rastgeleDeger(r, 0);
  }
  return govde;
}

TEST(SayfaMesaji, RastgeleMesajlarCokmezVeAtilmaz) {
  sahte::UygulamaDuzenegi d;
  d.paketliAc();
  std::mt19937 r(2026);
  for (int i = 0; i < 3000; ++i) {
    const auto govde = rastgeleMesaj(r);
    std::string metin;
    try {
      metin = govde.dump();
    } catch (const json::exception&) {
      metin = govde.dump(-1, ' ', false, json::error_handler_t::replace);
    }
    ASSERT_NO_THROW(d.mesaj(metin)) << metin;
    if (d.levha.acik) d.levha.olaylar.vazgecildi();
    if (d.kayitPaneli.bitti) std::exchange(d.kayitPaneli.bitti, nullptr)(std::nullopt);
    if (d.bildirim.bekleyenIzin) d.bildirim.izinCevabiniVer();
  }
  ASSERT_NO_THROW(d.kuyruk.calistir());
}

TEST(SayfaMesaji, HamBaytlarSessizceDusurulur) {
  sahte::UygulamaDuzenegi d;
  d.paketliAc();
  std::mt19937 r(11);
  for (int i = 0; i < 2000; ++i) {
    std::string bayt(std::uniform_int_distribution<std::size_t>(0, 64)(r), '\0');
    for (auto& b : bayt) b = static_cast<char>(std::uniform_int_distribution<int>(0, 255)(r));
    if (i % 2 == 0) bayt = "{\"tur\":\"bildirim\",\"baslik\":\"" + bayt + "\"}";
    ASSERT_NO_THROW(d.mesaj(bayt));
  }
  d.mesaj(std::string("{\"tur\":\"masaustu\",\"eylem\":\"durum\"}\0junk", 40));
  d.kuyruk.calistir();
  EXPECT_TRUE(d.web().betikler.empty());
}

TEST(SayfaMesaji, DerinIcIceGovdeYiginiTasirmaz) {
  sahte::UygulamaDuzenegi d;
  d.paketliAc();
  const std::string derin = std::string(100000, '[') + std::string(100000, ']');
  EXPECT_NO_THROW(d.mesaj(derin));
  EXPECT_NO_THROW(d.mesaj("{\"tur\":\"bildirim\",\"x\":" + derin + "}"));
}

}  // namespace
}  // namespace nevo
