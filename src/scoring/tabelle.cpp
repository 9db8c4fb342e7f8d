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
    // Wins, draws and losses in the bits 0-9, 10-19 and 20-29 (see Saisonplan::ausgangHeim). A
    // team plays in at most 760 match slots, so no count reaches 1024.
    std::int32_t ausgaenge = 0;
    int tore = 0, gegentore = 0;

    void zaehle(std::int32_t ausgang, int eigene, int andere) {
        ausgaenge += ausgang;
        tore += eigene;
        gegentore += andere;
    }
    int siege() const { return ausgaenge & 1023; }
    int unentschieden() const { return (ausgaenge >> 10) & 1023; }
    int niederlagen() const { return ausgaenge >> 20; }
    int punkte() const { return 3 * siege() + unentschieden(); }  // 3 for a win, 1 for a draw
    Bilanz operator+(const Bilanz& b) const {
        return {ausgaenge + b.ausgaenge, tore + b.tore, gegentore + b.gegentore};
    }
};

void schreibe(const Bilanz& b, i16& punkte, i16& siege, i16& unentschieden, i16& niederlagen, i16& tore,
              i16& gegentore) {
    punkte = auf16(b.punkte());
    siege = auf16(b.siege());
    unentschieden = auf16(b.unentschieden());
    niederlagen = auf16(b.niederlagen());
    tore = auf16(b.tore);
    gegentore = auf16(b.gegentore);
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
    // A match that does not count adds nothing to the spare row KeinTeam, which is row 20.
    std::array<Bilanz, MaxTeams + 1> heim{}, auswaerts{};
    for (int i = 0; i < Saisonplan::Plaetze; ++i) {
        heim[plan.heim[i]].zaehle(plan.ausgangHeim[i], plan.toreHeim[i], plan.toreGast[i]);
        auswaerts[plan.gast[i]].zaehle(plan.ausgangGast[i], plan.toreGast[i], plan.toreHeim[i]);
    }
    for (int t = 0; t < s.Tabelle.groesse(); ++t) {
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
    // Points, goal difference, goals and finally the current position folded into one number that
    // orders like the keys in turn: every part below the points fits in its bits, so it never
    // reaches the next key's. Teams equal in the three keys keep their current order.
    std::array<std::int64_t, MaxTeams + 1> schluessel{};
    std::bitset<MaxTeams + 1> belegt;
    for (int t = 0; t < anzahl; ++t) {
        const Tabellenzeile& z = tabelle[t];
        const std::size_t platz = pruefeIndex(z.Tabellenplatz, static_cast<std::size_t>(anzahl));
        if (belegt[platz]) throw Laufzeitfehler(Laufzeitfehler::Index);
        belegt[platz] = true;
        const i16 differenz = auf16(std::int64_t{z.Tore} - z.Gegentore,
                                    [&] { return "bei der Tordifferenz von " + teamImText(z.Name, t); });
        schluessel[t] = (std::int64_t{z.Punkte} << 45) + (std::int64_t{differenz} << 25) +
                        (std::int64_t{z.Tore} << 5) + (MaxTeams - static_cast<int>(platz));
    }
    // A team's new position is the number of teams with a greater key: the order a stable sort gives.
    std::array<i16, MaxTeams + 1> neu{};
    for (int t = 0; t < anzahl; ++t) {
        int davor = 0;
        for (int u = 0; u < anzahl; ++u)
            davor += schluessel[u] > schluessel[t];
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
