// Core paths that run on every navigation or address change.
#include <benchmark/benchmark.h>

#include "app/kip.hpp"
#include "app/pencere/gezinme.hpp"

static void GezinmeKarari(benchmark::State& durum) {
  const std::optional<std::string> istek = "https://proje.supabase.co/auth/v1/authorize?x=1";
  for (auto _ : durum) {
    benchmark::DoNotOptimize(nevo::gorunumdeKalir(istek, "https://app.nevo.ai/", "supabase.co"));
  }
}
BENCHMARK(GezinmeKarari);

static void KipKarari(benchmark::State& durum) {
  const std::optional<std::string> adres = "https://app.nevo.ai/home/sohbet/42?q=1#son";
  for (auto _ : durum) benchmark::DoNotOptimize(nevo::girisKipiMi(nevo::adresinYolu(adres)));
}
BENCHMARK(KipKarari);
