// Core paths of the page bridge: every desktop reply escapes and serialises the status.
#include <benchmark/benchmark.h>

#include <nlohmann/json.hpp>

#include "bridge/masaustu.hpp"
#include "bridge/sayfa_cagrilari.hpp"

namespace {

class BellekDeposu final : public nevo::TercihDeposu {
 public:
  std::optional<std::int64_t> tamsayi(const std::string&) const override { return 49; }
  std::optional<std::string> metin(const std::string&) const override { return "Ctrl+Space"; }
  std::optional<bool> mantiksal(const std::string&) const override { return true; }
  void tamsayiYaz(const std::string&, std::int64_t) override {}
  void metinYaz(const std::string&, const std::string&) override {}
  void mantiksalYaz(const std::string&, bool) override {}
};

class Sistemsiz final : public nevo::Sistem {
 public:
  void etkinlestir() override {}
  void disaridaAc(const std::string&) override {}
  void sonlandir() override {}
  std::optional<std::string> paketKimligi() const override { return "app.nevo.Nevo"; }
  void hakkindaGoster() override {}
  void gizle() override {}
  void digerleriniGizle() override {}
  std::optional<std::string> ciftTiklamaTercihi() const override { return std::nullopt; }
  [[noreturn]] void olumcul(const std::string&) override { std::abort(); }
};

class OgeSiz final : public nevo::GirisOgesi {
 public:
  bool sistemDestekler() const override { return true; }
  nevo::GirisOgesiDurumu durum() const override { return nevo::GirisOgesiDurumu::acik; }
  std::optional<std::string> kaydet() override { return std::nullopt; }
  std::optional<std::string> kaydiSil() override { return std::nullopt; }
};

class KilitSiz final : public nevo::GucKilidi {
 public:
  std::uint32_t al(const std::string&) override { return 1; }
  void birak(std::uint32_t) override {}
};

}  // namespace

static void JsKacir64K(benchmark::State& durum) {
  std::string metin;
  while (metin.size() < 64 * 1024) metin += "Merhaba 'dünya'\\n\n\u2028 \"alıntı\" ";
  for (auto _ : durum) benchmark::DoNotOptimize(nevo::jsKacir(metin));
  durum.SetBytesProcessed(static_cast<std::int64_t>(durum.iterations() * metin.size()));
}
BENCHMARK(JsKacir64K);

static void MasaustuDurumIstegi(benchmark::State& durum) {
  BellekDeposu depo;
  nevo::Tercih tercih(depo);
  Sistemsiz sistem;
  OgeSiz oge;
  nevo::Baslangic baslangic(oge, sistem);
  KilitSiz kilit;
  auto kopru = nevo::Masaustu::olustur({tercih, baslangic, kilit});
  std::size_t toplam = 0;
  kopru->sayfayaGonder = [&toplam](const std::string& betik) { toplam += betik.size(); };
  const auto istek = nlohmann::json::parse(R"({"tur":"masaustu","istek":7,"eylem":"durum"})");
  for (auto _ : durum) kopru->mesaj(istek);
  benchmark::DoNotOptimize(toplam);
}
BENCHMARK(MasaustuDurumIstegi);
