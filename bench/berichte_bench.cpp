// The reports of a whole 20-team season (38 matchdays selected and played, nine players), built
// from the evaluated game: the longest player sheet (380 matches listed), a team sheet, and the
// simulation's predicted table with its deviation report.
#include <benchmark/benchmark.h>

#include "reports/spielerinfo.h"
#include "reports/teaminfo.h"
#include "scoring/auswertung.h"
#include "simulation/abweichung.h"
#include "simulation/vorhersage.h"
#include "volle_saison.h"

namespace {

using namespace kalimbo;

Spielstand ausgewertet() {
    Spielstand s = volleSaison();
    werteAus(s, false);
    return s;
}

void BM_SpielerInfoText(benchmark::State& state) {
    const Spielstand s = ausgewertet();
    for (auto _ : state)
        benchmark::DoNotOptimize(SpielerInfoText(s, 0, "."));
}
BENCHMARK(BM_SpielerInfoText);

void BM_TeamInfoText(benchmark::State& state) {
    const Spielstand s = ausgewertet();
    for (auto _ : state)
        benchmark::DoNotOptimize(TeamInfoText(s, 0));
}
BENCHMARK(BM_TeamInfoText);

void BM_Simulation(benchmark::State& state) {
    const Spielstand s = ausgewertet();
    for (auto _ : state)
        benchmark::DoNotOptimize(abweichungsbericht(s, 0, vorhergesagteTabelle(s, 0), "."));
}
BENCHMARK(BM_Simulation);

}  // namespace
