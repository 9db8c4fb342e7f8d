#include <QApplication>
#include <iostream>

#include "app/pdfbefehl.h"
#include "app/programmaufruf.h"
#include "state/produkt.h"
#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/uebersetzung.h"
#include "ui/frmvela_haupt.h"

// kalimbo [SPIEL.tip], or without any window: kalimbo --pdf AUSGABE.pdf [...] SPIEL.tip
int main(int argc, char** argv) {
    using kalimbo::app::Programmaufruf;
    const Programmaufruf aufruf = kalimbo::app::leseProgrammaufruf(argc, argv);
    switch (aufruf.art) {
        case Programmaufruf::Pdf:
            return kalimbo::app::pdfProgramm(argc, argv);
        case Programmaufruf::Hilfe:
            std::cout << kalimbo::app::Programmhilfe;
            return 0;
        case Programmaufruf::Version:
            std::cout << kalimbo::Produktname << ' ' << kalimbo::Versionszeile << '\n';
            return 0;
        case Programmaufruf::Falsch:
            std::cerr << aufruf.meldung << '\n' << kalimbo::app::Programmhilfe;
            return 2;
        case Programmaufruf::Fenster:
            break;
    }
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationName(QStringLiteral("Kalimbo"));
    kalimbo::ui::ladeQtUebersetzung(app);
    kalimbo::ui::QtDialoge dialoge;
    kalimbo::ui::frmVela_Haupt fenster(dialoge, aufruf.spiel);
    fenster.zeigeBeimStart();
    return QApplication::exec();
}
