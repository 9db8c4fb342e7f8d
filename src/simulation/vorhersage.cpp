#include "vorhersage.h"

namespace kalimbo {

namespace {

// The six counters of one side (home or away) of a row.
struct Seite {
    i16 &punkte, &siege, &unentschieden, &niederlagen, &tore, &gegentore;
};

Seite heimseite(Tabellenzeile& z) {
    return {z.HeimPunkte, z.HeimSiege, z.HeimUnentschieden, z.HeimNiederlagen, z.HeimTore, z.HeimGegentore};
}

Seite auswaertsseite(Tabellenzeile& z) {
    return {z.AuswPunkte, z.AuswSiege, z.AuswUnentschieden, z.AuswNiederlagen, z.AuswTore, z.AuswGegentore};
}

// Counts one match for one team, in its totals and on its side.
void zaehle(Tabellenzeile& z, const Seite& seite, i16 eigene, i16 andere) {
    const i16 punkte = eigene > andere ? 3 : eigene == andere ? 1 : 0;
    addiere(z.Punkte, punkte);
    addiere(seite.punkte, punkte);
    if (eigene > andere) {
        addiere(z.Siege, 1);
        addiere(seite.siege, 1);
    } else if (eigene == andere) {
        addiere(z.Unentschieden, 1);
        addiere(seite.unentschieden, 1);
    } else {
        addiere(z.Niederlagen, 1);
        addiere(seite.niederlagen, 1);
    }
    addiere(z.Tore, eigene);
    addiere(seite.tore, eigene);
    addiere(z.Gegentore, andere);
    addiere(seite.gegentore, andere);
}

}  // namespace

Tabellenzeilen vorhergesagteTabelle(const Spielstand& s, int spieler) {
    Tabellenzeilen tabelle;
    for (int t = 0; t < tabelle.groesse(); ++t) {
        tabelle[t].Tabellenplatz = static_cast<i16>(t);
        if (t < MaxTeams) tabelle[t].Name = s.getTeamName(t);
    }
    for (int tag = 0; tag <= s.getAnzSpieltage(); ++tag) {
        if (s.getSptgAuswerten(tag) != 1) continue;
        for (int spiel = 0; spiel <= s.getAnzSpiele(); ++spiel) {
            const i16 h = s.getTipp(spieler, tag, spiel, 0);
            const i16 a = s.getTipp(spieler, tag, spiel, 1);
            // Row 20 is no team's: a pairing naming it is out of range.
            Tabellenzeile& heim =
                tabelle[static_cast<int>(pruefeIndex(s.getPaarung(tag, spiel, 0), MaxTeams))];
            Tabellenzeile& gast =
                tabelle[static_cast<int>(pruefeIndex(s.getPaarung(tag, spiel, 1), MaxTeams))];
            zaehle(heim, heimseite(heim), h, a);
            zaehle(gast, auswaertsseite(gast), a, h);
        }
    }
    sortiereTabelle(tabelle, s.getAnzTeams());
    return tabelle;
}

std::vector<Vorhersageplatz> vorhersageNachPlatz(const Spielstand& s, const Tabellenzeilen& vorhersage) {
    std::vector<Vorhersageplatz> plaetze;
    for (int platz = 0; platz <= s.getAnzTeams(); ++platz) {
        const i16 team = teamAufPlatz(vorhersage, s.getAnzTeams(), platz);
        plaetze.push_back({team, std::get<i16>(s.getTabInfo(team, 2))});
    }
    return plaetze;
}

std::vector<i16> waehlbareSpieler(const Spielstand& s) {
    std::vector<i16> spieler;
    for (int p = 0; p < MaxSpieler; ++p)
        if (s.getTeilnehmer(p) == 1) spieler.push_back(static_cast<i16>(p));
    return spieler;
}

i16 waehleSpieler(const Spielstand& s, std::string_view name, i16 bisher) {
    for (int p = 0; p < MaxSpieler; ++p)
        if (s.getSpielerName(p) == name) return static_cast<i16>(p);
    return bisher;
}

}  // namespace kalimbo
