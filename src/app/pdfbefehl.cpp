#include "pdfbefehl.h"

#include <QGuiApplication>
#include <iostream>

#include "reports/bogenauftrag.h"
#include "reports/bogenzeichnung.h"
#include "state/dateischreiben.h"
#include "state/fehler.h"
#include "ui/bausteine/druckseite.h"
#include "ui/bausteine/elemente.h"

namespace kalimbo::app {

namespace {

constexpr const char* Gebrauch =
    "Aufruf: kalimbo --pdf AUSGABE.pdf [--spieltag N] [--art auswertung|live|tippabgabe] SPIEL.tip\n";

struct Pdfauftrag {
    std::string ausgabe;
    Bogenauftrag bogen;
};

// The options in any order, each with its value, and the game file.
Pdfauftrag lies(const std::vector<std::string>& argumente) {
    Pdfauftrag auftrag;
    std::vector<std::string> werte;
    for (std::size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        if (!arg.starts_with("--")) {
            werte.push_back(arg);
            continue;
        }
        if (arg != "--pdf" && arg != "--spieltag" && arg != "--art")
            throw FalscheAngabe("Unbekannte Option " + arg + ".");
        if (i + 1 >= argumente.size()) throw FalscheAngabe("Der Option " + arg + " fehlt ihr Wert.");
        const std::string& wert = argumente[++i];
        if (arg == "--pdf")
            auftrag.ausgabe = wert;
        else
            (arg == "--art" ? auftrag.bogen.art : auftrag.bogen.spieltag) = wert;
    }
    if (werte.size() != 1) throw FalscheAngabe("Falsche Anzahl von Angaben.");
    if (auftrag.ausgabe.empty()) throw FalscheAngabe("Die Option --pdf fehlt.");
    auftrag.bogen.spiel = werte[0];
    return auftrag;
}

}  // namespace

int schreibePdf(const std::vector<std::string>& argumente, std::ostream& fehler) {
    try {
        const Pdfauftrag auftrag = lies(argumente);
        const Spieltagsbogen bogen = erstelleBogen(auftrag.bogen);
        const QByteArray pdf = ui::alsPdf(zeichneBogen(bogen), ui::text(bogen.liga + " – " + bogen.titel));
        schreibeDateiAtomar(auftrag.ausgabe, std::string_view(pdf.constData(), pdf.size()));
        return 0;
    } catch (const FalscheAngabe& f) {
        fehler << f.what() << '\n' << Gebrauch;
    } catch (const std::exception& e) {
        fehler << "Fehler: " << deutscheMeldung(e) << '\n';
    }
    return 1;
}

int pdfProgramm(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication anwendung(argc, argv);
    return schreibePdf({argv + 1, argv + argc}, std::cerr);
}

}  // namespace kalimbo::app
