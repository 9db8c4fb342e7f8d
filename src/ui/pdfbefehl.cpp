#include "pdfbefehl.h"

#include <QFile>
#include <QGuiApplication>
#include <iostream>
#include <string_view>

#include "cli/bogenbefehl.h"
#include "reports/bogenzeichnung.h"
#include "state/dateischreiben.h"
#include "ui/bausteine/druckseite.h"
#include "ui/bausteine/elemente.h"

namespace kalimbo::ui {

namespace {

constexpr const char* Gebrauch =
    "Aufruf: kalimbo --pdf AUSGABE.pdf [--spieltag N] [--art auswertung|live|tippabgabe] SPIEL.tip\n";

}  // namespace

bool istPdfAufruf(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::string_view(argv[i]) == "--pdf") return true;
    return false;
}

int schreibePdf(const std::vector<std::string>& argumente, std::ostream& fehler) {
    try {
        std::vector<std::string> optionen = cli::BogenOptionen;
        optionen.push_back("--pdf");
        const cli::Aufruf a = cli::zerlege(argumente, optionen);
        const auto ausgabe = a.optionen.find("--pdf");
        if (ausgabe == a.optionen.end()) throw cli::Gebrauchsfehler{"Die Option --pdf fehlt."};
        const Spieltagsbogen bogen = cli::bogenAusAufruf(a);
        const QByteArray pdf = alsPdf(zeichneBogen(bogen), text(bogen.liga + " – " + bogen.titel));
        schreibeDateiAtomar(ausgabe->second, std::string_view(pdf.constData(), pdf.size()));
        return 0;
    } catch (const cli::Gebrauchsfehler& g) {
        fehler << g.meldung << '\n' << Gebrauch;
    } catch (const std::exception& e) {
        fehler << "Fehler: " << e.what() << '\n';
    }
    return 1;
}

int pdfProgramm(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication anwendung(argc, argv);
    return schreibePdf({argv + 1, argv + argc}, std::cerr);
}

}  // namespace kalimbo::ui
