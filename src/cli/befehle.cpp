#include "befehle.h"

#include <algorithm>
#include <ostream>

#include "aufruf.h"
#include "berichtsbefehl.h"
#include "bogenbefehl.h"
#include "ergebnisse.h"
#include "grafik.h"
#include "haeufigkeitstabelle.h"
#include "info.h"
#include "infoblaetter.h"
#include "quellen/spielplan.h"
#include "scoring/anzeige.h"
#include "simulation.h"
#include "state/produkt.h"
#include "state/spieldatei.h"
#include "tabellen.h"
#include "zusammenfuehren.h"

namespace kalimbo::cli {

namespace {

constexpr const char* AuswertungsGebrauch =
    "AUSWERTUNG:\n"
    "  --alle     alle Spieltage der Saison statt der in der Datei ausgewählten\n"
    "  --sonntag  die Sonntagsspiele des aktuellen Spieltags nicht auswerten\n"
    "  --regel N  nach Regel N: 0 = 2-Punkte-Regel, 1 = 3-Punkte-Regel, 2 = 3-2-1-Regel, 3 = eigene Regel\n";

int info(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Aufruf a = zerlege(argumente, {});
    erwarteWerte(a, 1);
    schreibeInfo(ladeWieGezeigt(a.werte[0]), aus);
    return 0;
}

int neu(const std::vector<std::string>& argumente, std::ostream&) {
    const Aufruf a = zerlege(argumente, {"--liga"});
    erwarteWerte(a, 2);
    const Quelle quelle = ladeQuelle(a.werte[0]);
    speichereSpieldatei(a.werte[1], neuesSpiel(quelle, a.option("--liga").value_or(quelle.liga)));
    return 0;
}

// Opens the game named by the only positional argument and evaluates it with the evaluating
// options, as every evaluating command starts.
Spielstand ausgewertet(const std::vector<std::string>& argumente) {
    const Aufruf a = zerlege(argumente, {"--regel"}, {"--alle", "--sonntag"});
    erwarteWerte(a, 1);
    Auswertungsoptionen optionen;
    optionen.alle = a.hat("--alle");
    optionen.sonntag = a.hat("--sonntag");
    if (const auto regel = a.option("--regel")) {
        if (regel->size() != 1 || (*regel)[0] < '0' || (*regel)[0] > '3')
            throw Gebrauchsfehler{"--regel erwartet 0, 1, 2 oder 3, nicht „" + *regel + "“."};
        optionen.regel = static_cast<i16>((*regel)[0] - '0');
    }
    return ladeWieGezeigt(a.werte[0], optionen);
}

int tabelle(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Spielstand spiel = ausgewertet(argumente);
    schreibeTabelle(spiel.Tabelle, spiel.getAnzTeams(), aus);
    return 0;
}

int spieler(const std::vector<std::string>& argumente, std::ostream& aus) {
    schreibeSpieler(ausgewertet(argumente), aus);
    return 0;
}

using Ausfuehrung = int (*)(const std::vector<std::string>&, std::ostream&);

// Every command: its name, its usage line(s) and what runs it. A new command adds one entry.
struct Befehl {
    const char* name;
    const char* gebrauch;
    Ausfuehrung ausfuehrung;
};

const std::vector<Befehl>& befehle() {
    static const std::vector<Befehl> alle{
        {"info",
         "info SPIEL.tip                         zeigt Liga, Mannschaften, Spieler, Regel und Auswahl", info},
        {"neu",
         "neu QUELLE SPIEL.tip [--liga TEXT]     legt ein neues Tippspiel aus einem Spielplan "
         "(football.json)\n"
         "                                         oder einer Saisontabelle an",
         neu},
        {"ergebnisse",
         "ergebnisse SPIEL.tip QUELLE [AUSGABE.tip] [--ersetzen] [--team \"QUELLE=SPIEL\"]...\n"
         "                                         übernimmt die Ergebnisse eines Spielplans oder einer\n"
         "                                         Ergebnisdatei (football-data.co.uk); --ersetzen auch\n"
         "                                         abweichende, --team ordnet einen Namen der Datei zu",
         ergebnisse},
        {"tabelle", "tabelle SPIEL.tip [AUSWERTUNG]         wertet aus und zeigt die Tabelle der Liga",
         tabelle},
        {"spieler",
         "spieler SPIEL.tip [AUSWERTUNG]         wertet aus und zeigt die Gesamtwertung der Spieler",
         spieler},
        {"zusammenfuehren",
         "zusammenfuehren ZIEL.tip QUELLE.tip AUSGABE.tip\n"
         "                                         führt QUELLE in ZIEL ein (Ergebnisse und Tipps von ZIEL\n"
         "                                         bleiben, wo sie nicht 0:0 sind) und speichert als AUSGABE",
         zusammenfuehren},
        {"haeufigkeiten",
         "haeufigkeiten SPIEL.tip                zeigt, wie oft jedes Ergebnis eintrat und getippt wurde",
         haeufigkeiten},
        {"html",
         "html SPIEL.tip [--spieltag N] [--art auswertung|live|tippabgabe]\n"
         "                                         zeigt einen Spieltag als HTML-Seite (N ab 1)",
         html},
        {"spielerinfo",
         "spielerinfo SPIEL.tip P [AUSGABE]      zeigt das Informationsblatt von Spieler P (0-8)",
         spielerinfo},
        {"teaminfo",
         "teaminfo SPIEL.tip T [AUSGABE]         zeigt das Informationsblatt von Mannschaft T (0-19)",
         teaminfo},
        {"simulation",
         "simulation SPIEL.tip P [AUSGABE]       zeigt, wie weit die Tipps von Spieler P (0-8) die Tabelle "
         "verfehlen",
         simulation},
        {"vorhersage",
         "vorhersage SPIEL.tip P                 zeigt die Tabelle, die die Tipps von Spieler P (0-8) "
         "ergeben",
         vorhersage},
        {"grafik",
         "grafik SPIEL.tip [--ansicht 0|1] [--zahlen] [--svg]\n"
         "                                         zeichnet die Punktegrafik aller Spieltage",
         zeigeGrafik},
    };
    return alle;
}

void schreibeGebrauch(std::ostream& aus) {
    aus << "Aufruf: kalimbo-cli BEFEHL ...        (kalimbo-cli BEFEHL --help: mehr zu einem Befehl)\n";
    for (const Befehl& b : befehle())
        aus << "  " << b.gebrauch << '\n';
    aus << AuswertungsGebrauch << AusgabeGebrauch;
}

// The usage of one command with the options its usage line names.
void schreibeGebrauch(std::ostream& aus, const Befehl& befehl) {
    const std::string_view gebrauch = befehl.gebrauch;
    aus << "Aufruf: kalimbo-cli " << gebrauch << '\n';
    if (gebrauch.find("[AUSWERTUNG]") != std::string_view::npos) aus << AuswertungsGebrauch;
    if (gebrauch.find("[AUSGABE]") != std::string_view::npos) aus << AusgabeGebrauch;
}

bool istHilfe(const std::string& argument) {
    return argument == "--help" || argument == "-h";
}

}  // namespace

int fuehreAus(const std::vector<std::string>& argumente, std::ostream& aus, std::ostream& fehler) {
    try {
        if (!argumente.empty() && istHilfe(argumente[0])) {
            schreibeGebrauch(aus);
            return 0;
        }
        if (!argumente.empty() && argumente[0] == "--version") {
            aus << "kalimbo-cli " << Versionszeile << '\n';
            return 0;
        }
        for (const Befehl& b : befehle()) {
            if (argumente.empty() || argumente[0] != b.name) continue;
            if (std::any_of(argumente.begin() + 1, argumente.end(), istHilfe)) {
                schreibeGebrauch(aus, b);
                return 0;
            }
            return b.ausfuehrung({argumente.begin() + 1, argumente.end()}, aus);
        }
        throw Gebrauchsfehler{argumente.empty() ? "" : "Unbekannter Befehl " + argumente[0] + "."};
    } catch (const Gebrauchsfehler& g) {
        if (*g.what()) fehler << g.what() << '\n';
        schreibeGebrauch(fehler);
        return 2;
    } catch (const std::exception& e) {
        fehler << "Fehler: " << deutscheMeldung(e) << '\n';
        return 1;
    }
}

}  // namespace kalimbo::cli
