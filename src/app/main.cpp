#include <QApplication>

#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/uebersetzung.h"
#include "ui/frmvela_haupt.h"

// kalimbo [SPIEL.tip]
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationName(QStringLiteral("Kalimbo"));
    kalimbo::ui::ladeQtUebersetzung(app, QLocale::system());
    kalimbo::ui::QtDialoge dialoge;
    kalimbo::ui::frmVela_Haupt fenster(dialoge, argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    fenster.zeigeBeimStart();
    return QApplication::exec();
}
