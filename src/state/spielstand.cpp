#include "spielstand.h"

namespace kalimbo {

SpielerAuswertung SpielerAuswertung::leer(int slot) {
    SpielerAuswertung a;
    a.Sortierplatz = a.Platz = static_cast<i16>(slot);
    a.SptgSortierplatz.fuelle(static_cast<i16>(slot));
    a.SptgPlatz.fuelle(static_cast<i16>(slot));
    for (int t = 0; t < MaxTeams; ++t)
        a.TeamSortierung[t] = static_cast<i16>(t);
    for (auto& spieltag : a.SpielFarbe)
        spieltag.fuelle(Weiss);
    for (auto& spieltag : a.Korrekt)
        spieltag.fuelle(-1);
    return a;
}

Spielstand::Spielstand() {
    verwirfAuswertung();
}

void Spielstand::verwirfAuswertung() {
    for (int t = 0; t < Tabelle.groesse(); ++t) {
        Tabelle[t] = Tabellenzeile{};
        Tabelle[t].Tabellenplatz = static_cast<i16>(t);
    }
    for (int p = 0; p < MaxSpieler; ++p)
        Auswertung[p] = SpielerAuswertung::leer(p);
}

void Spielstand::oeffne(const Dateiinhalt& inhalt) {
    static_cast<Dateiinhalt&>(*this) = inhalt;
    kopiereDateiInArbeit();
    verwirfAuswertung();
}

void Spielstand::kopiereDateiInArbeit() {
    Ergebnis = ErgebnisDatei;
    Tipp = TippDatei;
}

void Spielstand::kopiereArbeitInDatei() {
    ErgebnisDatei = Ergebnis;
    TippDatei = Tipp;
}

i16 Spielstand::DiesTeam(int position) const {
    i16 team = 0;
    for (int t = 0; t <= AnzTeams; ++t) {
        if (Tabelle[t].Tabellenplatz == position) team = static_cast<i16>(t);
    }
    return team;
}

TabInfo tabInfo(const Tabellenzeile& z, int art) {
    switch (art) {
        case 0:
            return z.Tabellenplatz;
        case 1:
            return z.Name;
        case 2:
            return z.Punkte;
        case 3:
            return std::to_string(z.Tore) + ":" + std::to_string(z.Gegentore);
        case 4:
            return minus16(z.Tore, z.Gegentore);
        case 5:
            return z.Siege;
        case 6:
            return z.Unentschieden;
        case 7:
            return z.Niederlagen;
        default:
            return std::monostate{};
    }
}

void Spielstand::HoleSpielerDaten(const SpielerDatenQuelle& quelle) {
    for (int p = 0; p < MaxSpieler; ++p) {
        Spielername[p] = quelle.getSpielerName(p);
        Spielerfarbe[p] = quelle.getSpielerFarbe(p);
        Teilnehmer[p] = quelle.getTeilnehmer(p);
    }
}

}  // namespace kalimbo
