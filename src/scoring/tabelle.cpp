#include "tabelle.h"

#include <array>
#include <bitset>
#include <cstdint>

#include "fehlerort.h"

namespace kalimbo {

namespace {

// A team's matches on one side (home or away), counted in plain integers; the table's 16-bit
// figures are made from these, each checked against the 16-bit range.
struct Bilanz {
    int siege = 0, unentschieden = 0, niederlagen = 0, tore = 0, gegentore = 0;

    void zaehle(int eigene, int andere) {
        siege += eigene > andere;
        unentschieden += eigene == andere;
        niederlagen += eigene < andere;
        tore += eigene;
        gegentore += andere;
    }
    int punkte() const { return 3 * siege + unentschieden; }  // 3 for a win, 1 for a draw
    Bilanz operator+(const Bilanz& b) const {
        return {siege + b.siege, unentschieden + b.unentschieden, niederlagen + b.niederlagen, tore + b.tore,
                gegentore + b.gegentore};
    }
};

void schreibe(const Bilanz& b, i16& punkte, i16& siege, i16& unentschieden, i16& niederlagen, i16& tore,
              i16& gegentore) {
    punkte = auf16(b.punkte());
    siege = auf16(b.siege);
    unentschieden = auf16(b.unentschieden);
    niederlagen = auf16(b.niederlagen);
    tore = auf16(b.tore);
    gegentore = auf16(b.gegentore);
}

// True when row `a` stands below row `b` by points, then goal difference, then goals scored.
bool schlechter(const Tabellenzeile& a, int differenzA, const Tabellenzeile& b, int differenzB) {
    if (a.Punkte != b.Punkte) return a.Punkte < b.Punkte;
    if (differenzA != differenzB) return differenzA < differenzB;
    return a.Tore < b.Tore;
}

}  // namespace

void setzeTabelleZurueck(Spielstand& s) {
    for (int t = 0; t < s.Tabelle.groesse(); ++t) {
        Tabellenzeile& z = s.Tabelle[t];
        // Rebuilt around its own name buffer, which keeps its capacity: a repeated evaluation
        // copies the team name without allocating.
        z = Tabellenzeile{.Name = std::move(z.Name)};
        if (t < MaxTeams)
            z.Name = s.Teamname[t];
        else
            z.Name.clear();
        z.Tabellenplatz = static_cast<i16>(t);
    }
}

void zaehleTabelle(Spielstand& s, bool sonntagsspieleAuslassen) {
    Saisonplan plan;
    erstelleSaisonplan(s, sonntagsspieleAuslassen, plan);
    zaehleTabelle(s, plan);
}

void zaehleTabelle(Spielstand& s, const Saisonplan& plan) {
    setzeTabelleZurueck(s);
    std::array<Bilanz, MaxTeams> heim{}, auswaerts{};
    for (int n = 0; n < plan.anzahl; ++n) {
        const int i = plan.gezaehlt[n];
        heim[plan.heim[i]].zaehle(plan.toreHeim[i], plan.toreGast[i]);
        auswaerts[plan.gast[i]].zaehle(plan.toreGast[i], plan.toreHeim[i]);
    }
    for (int t = 0; t < MaxTeams; ++t) {
        Tabellenzeile& z = s.Tabelle[t];
        const Bilanz& h = heim[t];
        const Bilanz& a = auswaerts[t];
        try {
            schreibe(h, z.HeimPunkte, z.HeimSiege, z.HeimUnentschieden, z.HeimNiederlagen, z.HeimTore,
                     z.HeimGegentore);
            schreibe(a, z.AuswPunkte, z.AuswSiege, z.AuswUnentschieden, z.AuswNiederlagen, z.AuswTore,
                     z.AuswGegentore);
            schreibe(h + a, z.Punkte, z.Siege, z.Unentschieden, z.Niederlagen, z.Tore, z.Gegentore);
        } catch (const Laufzeitfehler&) {
            throw Laufzeitfehler(Laufzeitfehler::Ueberlauf,
                                 "in der Tabellenzeile von " + teamImText(z.Name, t));
        }
    }
    sortiereTabelle(s.Tabelle, s.AnzTeams);
}

void sortiereTabelle(Tabellenzeilen& tabelle, i16 anzTeams) {
    const int anzahl = static_cast<int>(pruefeIndex(anzTeams, MaxTeams + 1)) + 1;
    std::array<int, MaxTeams + 1> platz{}, differenz{};
    std::bitset<MaxTeams + 1> belegt;
    for (int t = 0; t < anzahl; ++t) {
        const Tabellenzeile& z = tabelle[t];
        platz[t] = static_cast<int>(pruefeIndex(z.Tabellenplatz, static_cast<std::size_t>(anzahl)));
        if (belegt[platz[t]]) throw Laufzeitfehler(Laufzeitfehler::Index);
        belegt[platz[t]] = true;
        differenz[t] = auf16(std::int64_t{z.Tore} - z.Gegentore,
                             [&] { return "bei der Tordifferenz von " + teamImText(z.Name, t); });
    }
    // A team's new position is the number of teams ahead of it: those better by the three keys and
    // those equal in them at a lower position. This is the order a stable sort gives.
    std::array<i16, MaxTeams + 1> neu{};
    for (int t = 0; t < anzahl; ++t) {
        int davor = 0;
        for (int u = 0; u < anzahl; ++u) {
            const bool besser = schlechter(tabelle[t], differenz[t], tabelle[u], differenz[u]);
            const bool gleich = !besser && !schlechter(tabelle[u], differenz[u], tabelle[t], differenz[t]);
            davor += besser || (gleich && platz[u] < platz[t]);
        }
        neu[t] = static_cast<i16>(davor);
    }
    for (int t = 0; t < anzahl; ++t)
        tabelle[t].Tabellenplatz = neu[t];
}

i16 teamAufPlatz(const Tabellenzeilen& tabelle, i16 anzTeams, int platz) {
    i16 team = 0;
    for (int t = 0; t <= anzTeams; ++t)
        if (tabelle[t].Tabellenplatz == platz) team = static_cast<i16>(t);
    return team;
}

}  // namespace kalimbo
