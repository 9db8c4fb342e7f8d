// The points chart of the 20-team sample game (38 matchdays, six players, totals printed for all):
// building the drawing in the core, and painting it into a bitmap of the window's picture size.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "graph/punktegrafik.h"
#include "scoring/auswertung.h"
#include "state/spieldatei.h"
#include "ui/bausteine/maler.h"

namespace {

using namespace kalimbo;

Spielstand beispielspiel() {
    Spielstand s;
    s.oeffne(ladeSpieldatei(KALIMBO_SAMPLE_DATA "/premier-league-2010-11.tip"));
    werteAus(s, false);
    return s;
}

grafik::Ansicht mitZahlen(const Spielstand& s, i16 darstellung) {
    grafik::Ansicht a = grafik::ersteAnsicht(s);
    a.Darstellung = darstellung;
    a.PunkteZeigen.fill(true);
    return a;
}

void Zeichnen(benchmark::State& state) {
    const Spielstand s = beispielspiel();
    const grafik::Ansicht a = mitZahlen(s, static_cast<i16>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(grafik::punktegrafik(s, s.getAnzSpieltage(), a));
}
BENCHMARK(Zeichnen)->Arg(grafik::Gesamtpunkte)->Arg(grafik::Spieltagspunkte)->Unit(benchmark::kMicrosecond);

void Malen(benchmark::State& state) {
    const Spielstand s = beispielspiel();
    const grafik::Zeichnung z =
        grafik::punktegrafik(s, s.getAnzSpieltage(), mitZahlen(s, static_cast<i16>(state.range(0))));
    QImage bild(861, 521, QImage::Format_RGB32);
    for (auto _ : state) {
        bild.fill(Qt::white);
        QPainter maler(&bild);
        ui::male(maler, z, QRectF(bild.rect()));
    }
}
BENCHMARK(Malen)->Arg(grafik::Gesamtpunkte)->Arg(grafik::Spieltagspunkte)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
