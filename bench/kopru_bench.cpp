// Core paths of the page bridge: every desktop reply escapes and serialises the status.
#include <benchmark/benchmark.h>

#include <nlohmann/json.hpp>

#include "bridge/sayfa_cagrilari.hpp"
#include "fakes/uygulama_duzenegi.hpp"

static void JsKacir64K(benchmark::State& durum) {
  std::string metin;
  while (metin.size() < 64 * 1024) metin += "Merhaba 'dünya'\\n\n\u2028 \"alıntı\" ";
  for (auto _ : durum) benchmark::DoNotOptimize(nevo::jsKacir(metin));
  durum.SetBytesProcessed(static_cast<std::int64_t>(durum.iterations() * metin.size()));
}
BENCHMARK(JsKacir64K);

// A settings reply over the real desktop integrations on the tests' fakes of the platform.
static void MasaustuDurumIstegi(benchmark::State& durum) {
  nevo::sahte::MasaustuDuzenegi d;
  d.depo.tamsayiYaz("nevo.kisayol.kod", 49);
  d.depo.metinYaz("nevo.kisayol.ad", "Ctrl+Space");
  d.betikleriTopla();
  const auto istek = nlohmann::json::parse(R"({"istek":7,"eylem":"durum"})");
  std::size_t toplam = 0;
  for (auto _ : durum) {
    d.masaustu->mesaj(istek);
    toplam += d.betikler.back().size();
    d.betikler.clear();
  }
  benchmark::DoNotOptimize(toplam);
}
BENCHMARK(MasaustuDurumIstegi);
