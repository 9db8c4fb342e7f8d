// One full evaluation of a 20-team season with nine players and all 38 matchdays selected:
// 3,420 tips scored, the league table counted and sorted, the players ranked.
#include <benchmark/benchmark.h>

#include "scoring/auswertung.h"
#include "volle_saison.h"

namespace {

using namespace kalimbo;

void BM_werteAus(benchmark::State& state) {
    Spielstand s = volleSaison();
    for (auto _ : state) {
        werteAus(s, false);
        benchmark::DoNotOptimize(s.Auswertung);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_werteAus);

}  // namespace
