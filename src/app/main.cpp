#include <QApplication>

#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/uebersetzung.h"
#include "ui/frmvela_haupt.h"
#include "ui/pdfbefehl.h"

// kalimbo [SPIEL.tip], or without any window: kalimbo --pdf AUSGABE.pdf [...] SPIEL.tip
int main(int argc, char** argv) {
    if (kalimbo::ui::istPdfAufruf(argc, argv)) return kalimbo::ui::pdfProgramm(argc, argv);
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationName(QStringLiteral("Kalimbo"));
    kalimbo::ui::ladeQtUebersetzung(app, QLocale::system());
    kalimbo::ui::QtDialoge dialoge;
    kalimbo::ui::frmVela_Haupt fenster(dialoge, argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    fenster.zeigeBeimStart();
    return QApplication::exec();
}
