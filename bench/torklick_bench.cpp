// One goal click in the main window on the 20-team sample game: the goal is added, the game is
// evaluated, the matchday view and the running table are redrawn and painted (offscreen).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "ui/bausteine/dialoge.h"
#include "ui/frmvela_haupt.h"
#include "ui/haupt/eingabefeld.h"

namespace {

void Torklick(benchmark::State& state) {
    kalimbo::ui::QtDialoge dialoge;
    kalimbo::ui::frmVela_Haupt fenster(dialoge);
    fenster.oeffne(KALIMBO_SAMPLE_DATA "/premier-league-2010-11.tip");
    fenster.show();
    QApplication::processEvents();
    auto* team = fenster.findChild<QLabel*>(QStringLiteral("lblHeimTeam_0"));
    auto* tore = fenster.findChild<kalimbo::ui::Eingabefeld*>(QStringLiteral("txtHeimErgebnis_0"));
    for (auto _ : state) {
        state.PauseTiming();
        tore->setText(QStringLiteral("0"));
        state.ResumeTiming();
        QTest::mouseClick(team, Qt::LeftButton);
        QApplication::processEvents();  // paints what the click changed
    }
    if (tore->text() != QStringLiteral("1")) state.SkipWithError("the click did not count a goal");
}
BENCHMARK(Torklick)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
