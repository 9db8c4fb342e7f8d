#include "ergebnisse.h"

#include <algorithm>
#include <ostream>

#include "aufruf.h"
#include "quellen/ergebnisimport.h"
#include "quellen/vereinsnamen.h"
#include "state/spieldatei.h"

namespace kalimbo::cli {

namespace {

// The team given by its long name or its number as "info" lists it (from 1).
int team(const std::string& text, const Spielstand& spiel) {
    for (int t = 0; t <= spiel.AnzTeams; ++t)
        if (spiel.Teamname[t] == text) return t;
    if (!text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return ganzeZahl(text, 1, spiel.AnzTeams + 1, "Die Nummer einer Mannschaft") - 1;
    throw Gebrauchsfehler{
        "--team: „" + text +
        "“ ist keine Mannschaft des Tippspiels (ihr Name oder ihre Nummer, wie „kalimbo-cli "
        "info“ sie zeigt)."};
}

std::map<std::string, int> paare(const Aufruf& a, const Spielstand& spiel) {
    std::map<std::string, int> gegeben;
    for (const std::string& paar : a.alle("--team")) {
        const auto gleich = paar.find('=');
        if (gleich == std::string::npos || gleich == 0)
            throw Gebrauchsfehler{"--team erwartet „QUELLE=SPIEL“, nicht „" + paar + "“."};
        gegeben[paar.substr(0, gleich)] = team(paar.substr(gleich + 1), spiel);
    }
    return gegeben;
}

// Refuses a file of another league, or one with names that meet no team or several.
void pruefe(const Zuordnung& z, const Quelle& quelle, const Spielstand& spiel) {
    if (!z.andereLiga.empty()) throw Dateifehler(quelle.vorsatz() + z.andereLiga);
    if (z.offen.empty()) return;
    std::string text =
        quelle.vorsatz() + "Diese Mannschaften der Datei lassen sich nicht eindeutig zuordnen:\n";
    for (const Zuordnung::Offen& o : z.offen) {
        text += "  „" + o.name + "“: ";
        if (o.kandidaten.empty()) text += "passt zu keiner Mannschaft";
        for (std::size_t i = 0; i < o.kandidaten.size(); ++i)
            text += (i == 0 ? "passt zu „" : ", „") + spiel.Teamname[o.kandidaten[i]] + "“";
        if (o.vorschlag >= 0)
            text += "; vielleicht --team \"" + o.name + "=" + spiel.Teamname[o.vorschlag] + "\"";
        text += "\n";
    }
    throw Dateifehler(
        text +
        "Ordnen Sie jede mit --team \"QUELLE=SPIEL\" zu (SPIEL: Name oder Nummer einer Mannschaft, "
        "wie „kalimbo-cli info“ sie zeigt).");
}

}  // namespace

int ergebnisse(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Aufruf a = zerlege(argumente, {"--team"}, {"--ersetzen"});
    if (a.werte.size() != 2 && a.werte.size() != 3) throw Gebrauchsfehler{"Falsche Anzahl von Angaben."};
    Spielstand spiel;
    spiel.oeffne(ladeSpieldatei(a.werte[0]));
    const Quelle quelle = ladeQuelle(a.werte[1]);
    const Zuordnung z =
        ordneZu(quelle.mannschaften(), spiel, ladeVereinsnamen(vereinsordner()), paare(a, spiel));
    pruefe(z, quelle, spiel);
    Ergebnisuebernahme u = uebernimmErgebnisse(spiel, quelle, z, a.hat("--ersetzen"));
    u.spiel.kopiereArbeitInDatei();
    speichereSpieldatei(a.werte.size() == 3 ? a.werte[2] : a.werte[0], u.spiel);
    aus << berichtText(u.bericht, u.spiel);
    return 0;
}

}  // namespace kalimbo::cli
