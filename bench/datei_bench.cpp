// Reading and writing the 20-team sample game: decoding the file's bytes into a game, encoding a
// game into the bytes, and saving it to disk (temporary file, flush to disk, rename).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <sstream>

#include "state/spieldatei.h"

namespace {

using namespace kalimbo;

const std::filesystem::path Beispiel = KALIMBO_SAMPLE_DATA "/premier-league-2010-11.tip";

void BM_DateiLesen(benchmark::State& state) {
    const std::string bytes = kodiereSpieldatei(ladeSpieldatei(Beispiel));
    for (auto _ : state) {
        std::istringstream ein(bytes);
        benchmark::DoNotOptimize(leseSpieldatei(ein, "Beispiel"));
    }
}
BENCHMARK(BM_DateiLesen)->Unit(benchmark::kMicrosecond);

void BM_DateiKodieren(benchmark::State& state) {
    const Dateiinhalt inhalt = ladeSpieldatei(Beispiel);
    for (auto _ : state)
        benchmark::DoNotOptimize(kodiereSpieldatei(inhalt));
}
BENCHMARK(BM_DateiKodieren)->Unit(benchmark::kMicrosecond);

void BM_DateiSpeichern(benchmark::State& state) {
    const Dateiinhalt inhalt = ladeSpieldatei(Beispiel);
    const auto ordner = std::filesystem::temp_directory_path() / "kalimbo-datei-bench";
    std::filesystem::create_directories(ordner);
    for (auto _ : state)
        speichereSpieldatei(ordner / "spiel.tip", inhalt);
    std::filesystem::remove_all(ordner);
}
BENCHMARK(BM_DateiSpeichern)->Unit(benchmark::kMicrosecond);

}  // namespace
