#include "teaminfo.h"

#include <array>

#include "blatt.h"

namespace kalimbo {

namespace {

// The labels bring every figure to column 25 with tab stops every 8 columns.
void bilanz(Blatt& b, const char* ueberschrift, i16 punkte, i16 tore, i16 gegentore, i16 siege,
            i16 unentschieden, i16 niederlagen) {
    b.zeile(ueberschrift)
        .zeile("  Punkte: \t\t", punkte)
        .zeile("  Torverhältnis: \t", tore, ":", gegentore)
        .zeile("  Siege: \t\t", siege)
        .zeile("  Unentschieden: \t", unentschieden)
        .zeile("  Niederlagen: \t\t", niederlagen)
        .zeile()
        .zeile();
}

// Which matches of team t a list selects, from home team, away team and the stored goals.
using Auswahl = bool (*)(int t, int heim, int gast, int x, int y);

struct Liste {
    const char* ueberschrift;
    Auswahl auswahl;
};

constexpr std::array<Liste, 6> Listen{{
    {"  Die Heimspiele", [](int t, int h, int, int, int) { return h == t; }},
    {"  Die Auswärtsspiele", [](int t, int, int a, int, int) { return a == t; }},
    {"  Die siegreichen Spiele",
     [](int t, int h, int a, int x, int y) { return (h == t && x > y) || (a == t && y > x); }},
    {"  Die unentschiedenen Spiele",
     [](int t, int h, int a, int x, int y) { return (h == t || a == t) && x == y; }},
    {"  Die verlorenen Spiele",
     [](int t, int h, int a, int x, int y) { return (h == t && x < y) || (a == t && y < x); }},
    {"  Alle absolvierten Spiele", [](int t, int h, int a, int, int) { return h == t || a == t; }},
}};

void liste(Blatt& b, const Spielstand& s, int t, const Liste& l) {
    b.zeile(l.ueberschrift).zeile("  -");
    for (int m = 0; m <= s.getAktSpieltagGlobal(); ++m) {
        if (s.getSptgAuswerten(m) != 1) continue;
        for (int k = 0; k <= s.getAnzSpiele(); ++k) {
            if (l.auswahl(t, s.getPaarung(m, k, 0), s.getPaarung(m, k, 1), s.getErgebnis(m, k, 0),
                          s.getErgebnis(m, k, 1)))
                b.zeile("  ", paarungMitErgebnis(s, m, k));
        }
    }
}

}  // namespace

std::vector<i16> teamsAufTabellenplatz(const Spielstand& s, int zeile) {
    std::vector<i16> teams;
    for (int t = 0; t <= s.getAnzTeams(); ++t)
        if (s.Tabelle[t].Tabellenplatz == zeile) teams.push_back(static_cast<i16>(t));
    return teams;
}

std::optional<std::string> TeamInfoText(const Spielstand& s, int team) {
    if (s.getAktSpieltagGlobal() == KeinAktuellerSpieltag) return std::nullopt;
    const Tabellenzeile& r = s.Tabelle[team];
    Blatt b;
    // The name stands without the indent of the player sheet.
    b.zeile(s.getTeamName(team)).zeile("  -").zeile();
    bilanz(b, "  GESAMT", r.Punkte, r.Tore, r.Gegentore, r.Siege, r.Unentschieden, r.Niederlagen);
    bilanz(b, "  HEIM", r.HeimPunkte, r.HeimTore, r.HeimGegentore, r.HeimSiege, r.HeimUnentschieden,
           r.HeimNiederlagen);
    bilanz(b, "  AUSWÄRTS", r.AuswPunkte, r.AuswTore, r.AuswGegentore, r.AuswSiege, r.AuswUnentschieden,
           r.AuswNiederlagen);
    for (std::size_t i = 0; i < Listen.size(); ++i) {
        if (i > 0) b.zeile().zeile();
        liste(b, s, team, Listen[i]);
    }
    return std::move(b).text();
}

}  // namespace kalimbo
