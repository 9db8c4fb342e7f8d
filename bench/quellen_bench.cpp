// Results of a 380-match season (the 2024/25 English first division of openfootball) into a game
// made from the same file: reading the file, loading the clubs lists, pairing the names, and the
// whole of it as "kalimbo-cli ergebnisse" does it.
#include <benchmark/benchmark.h>

#include "quellen/ergebnisimport.h"
#include "quellen/spielplan.h"
#include "quellen/vereinsnamen.h"

namespace {

using namespace kalimbo;

const std::string Saison = KALIMBO_SHARED_DATA "/quellen/openfootball-2024-25-en.1.json";

Spielstand leeresSpiel() {
    Spielstand spiel;
    spiel.oeffne(neuesSpiel(ladeQuelle(Saison), "Premier League"));
    spiel.Ergebnis = Ergebnisse{};
    return spiel;
}

void BM_QuelleLesen(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(ladeQuelle(Saison));
}
BENCHMARK(BM_QuelleLesen)->Unit(benchmark::kMicrosecond);

void BM_VereinsnamenLaden(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(ladeVereinsnamen(vereinsordner()));
}
BENCHMARK(BM_VereinsnamenLaden)->Unit(benchmark::kMicrosecond);

void BM_Zuordnen(benchmark::State& state) {
    const Spielstand spiel = leeresSpiel();
    const Quelle quelle = ladeQuelle(Saison);
    const Vereinsnamen vereine = ladeVereinsnamen(vereinsordner());
    for (auto _ : state)
        benchmark::DoNotOptimize(ordneZu(quelle.mannschaften(), spiel, vereine));
}
BENCHMARK(BM_Zuordnen)->Unit(benchmark::kMicrosecond);

void BM_ErgebnisseLesenUndUebernehmen(benchmark::State& state) {
    const Spielstand spiel = leeresSpiel();
    for (auto _ : state) {
        const Quelle quelle = ladeQuelle(Saison);
        const Zuordnung z = ordneZu(quelle.mannschaften(), spiel, ladeVereinsnamen(vereinsordner()));
        benchmark::DoNotOptimize(uebernimmErgebnisse(spiel, quelle, z, false));
    }
}
BENCHMARK(BM_ErgebnisseLesenUndUebernehmen)->Unit(benchmark::kMicrosecond);

}  // namespace
