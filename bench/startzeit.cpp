// Milliseconds from the start of main to the first paint of the main window on a sample game
// (and, on a second line, the wall-clock time of that moment in ns, for timing from the launch),
// or (with --minimal) of a minimal Qt window showing one line of text: the floor any Qt program
// with text pays (loading the font database is most of it). Run by startzeit.sh.
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>
#include <chrono>
#include <cstdio>

#include "ui/bausteine/dialoge.h"
#include "ui/frmvela_haupt.h"

namespace {

// Prints the time at which the first paint pass has finished (the first event-loop turn after the
// first paint event) and quits.
class ErsterPaint : public QObject {
  public:
    explicit ErsterPaint(const QElapsedTimer& uhr) : m_uhr(uhr) {}
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint && !m_fertig) {
            m_fertig = true;
            QTimer::singleShot(0, qApp, [this] {
                std::printf("%.2f\n%lld\n", static_cast<double>(m_uhr.nsecsElapsed()) / 1e6,
                            static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(
                                                       std::chrono::system_clock::now().time_since_epoch())
                                                       .count()));
                QApplication::quit();
            });
        }
        return false;
    }

  private:
    const QElapsedTimer& m_uhr;
    bool m_fertig = false;
};

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer uhr;
    uhr.start();
    QApplication app(argc, argv);
    ErsterPaint messung(uhr);
    app.installEventFilter(&messung);
    if (argc > 1 && QString::fromLocal8Bit(argv[1]) == QStringLiteral("--minimal")) {
        QLabel fenster(QStringLiteral("Kalimbo"));
        fenster.resize(1024, 760);
        fenster.show();
        return QApplication::exec();
    }
    QApplication::setStyle(QStringLiteral("Fusion"));
    kalimbo::ui::QtDialoge dialoge;
    kalimbo::ui::frmVela_Haupt fenster(dialoge, KALIMBO_SAMPLE_DATA "/bundesliga-2005-06.tip");
    fenster.zeigeBeimStart();
    return QApplication::exec();
}
