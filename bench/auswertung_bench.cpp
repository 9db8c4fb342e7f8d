// One full evaluation of a 20-team season with nine players: 3,420 tips scored when all 38
// matchdays are selected (90 when only the last one is), the league table counted and sorted, the
// players ranked. Both must take about as long: the records are rewritten in full either way.
#include <benchmark/benchmark.h>

#include "scoring/auswertung.h"
#include "volle_saison.h"

namespace {

using namespace kalimbo;

void BM_werteAus(benchmark::State& state, int gezaehlteSpieltage) {
    Spielstand s = volleSaison();
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        s.SptgAuswerten[tag] = tag >= MaxSpieltage - gezaehlteSpieltage ? 1 : 0;
    for (auto _ : state) {
        werteAus(s, false);
        benchmark::DoNotOptimize(s.Auswertung);
        benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(BM_werteAus, alle_Spieltage, MaxSpieltage);
BENCHMARK_CAPTURE(BM_werteAus, ein_Spieltag, 1);

}  // namespace
