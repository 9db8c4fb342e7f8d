#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "feld.h"
#include "zahl16.h"

namespace kalimbo {

// Fixed limits of every game: the arrays always have these sizes; an 18-team season uses the
// lower parts. The game's own counts (AnzTeams, ...) hold the highest index in use, not a number.
constexpr int MaxSpieler = 9;
constexpr int MaxTeams = 20;
constexpr int MaxSpieltage = 38;
constexpr int MaxSpiele = 10;

constexpr i16 KeinAktuellerSpieltag = 99;

constexpr Farbe Weiss = rgb(255, 255, 255);
// The platform's symbolic colour of a button face: marks a tip that was not scored.
constexpr Farbe Schaltflaechenfarbe = static_cast<Farbe>(0x8000000Fu);
// The platform's symbolic colour of window text.
constexpr Farbe Fenstertext = static_cast<Farbe>(0x80000008u);

// A colour as printed or exported: the symbolic system colours (high bit set) as the fixed
// colours they usually have — window background white, window text black, anything else the
// light grey of a button face.
constexpr Farbe druckfarbe(Farbe farbe) {
    const auto wert = static_cast<std::uint32_t>(farbe);
    if (!(wert & 0x80000000u)) return farbe;
    switch (wert & 0xFFu) {
        case 0x05:
            return Weiss;
        case 0x08:
            return rgb(0, 0, 0);
        default:
            return rgb(240, 240, 240);
    }
}

using Ergebnisse = Feld<Feld<Feld<i16, 2>, MaxSpiele>, MaxSpieltage>;  // matchday, match, side
using Tipps = Feld<Ergebnisse, MaxSpieler>;                            // player, matchday, match, side

// One coach-change period.
struct Trainerdaten {
    i16 Aktiv = 0;  // the period exists
    std::string Name;
    i16 VonSpieltag = 0;  // first matchday index
    i16 BisSpieltag = 0;  // last matchday index; 99 = up to AktSpieltagGlobal

    friend bool operator==(const Trainerdaten&, const Trainerdaten&) = default;
};

// Everything a game file holds, in file order, with the defaults of a new game.
struct Dateiinhalt {
    Feld<std::string, MaxTeams> Teamname;
    Feld<std::string, MaxTeams> TeamnameKurz;
    Feld<std::string, MaxSpieler> Spielername;
    Ergebnisse Paarung;  // team index of the home / away team
    i16 AnzSpieltage = 37;
    i16 AnzSpiele = 9;
    i16 AnzTippfelder = 89;
    i16 AnzTeams = 19;
    i16 AnzSpieler = 8;
    Feld<Farbe, MaxTeams> TabFarbe;  // background colour per table position
    Ergebnisse ErgebnisDatei;
    Tipps TippDatei;
    Feld<i16, MaxSpieltage> SptgAuswerten;  // 1 = matchday counts
    i16 AktSpieltagGlobal = KeinAktuellerSpieltag;
    Feld<i16, 2> SonntagSpiele;  // match indices of the Sunday matches of the current matchday
    Feld<i16, MaxSpieler> Teilnehmer{{1, 1, 1, 1, 1, 1, 1, 1, 1}};
    Feld<Farbe, MaxSpieler> Spielerfarbe{{rgb(0, 0, 0), rgb(253, 0, 230), rgb(0, 128, 0), rgb(153, 102, 51),
                                          rgb(0, 0, 179), rgb(255, 128, 0), rgb(22, 220, 131),
                                          rgb(179, 0, 255), rgb(204, 204, 255)}};
    Feld<std::string, 2> LigaInfo;
    // A new game starts on the 3-2-1 rule: its points and colours are the defaults below.
    i16 Modus = 2;
    Feld<i16, 3> ModusPunkte{{3, 2, 1}};
    Feld<Farbe, 3> ModusFarbe{{rgb(255, 0, 0), rgb(250, 250, 144), rgb(48, 190, 48)}};
    Feld<Trainerdaten, 10> Trainerwechsel;

    friend bool operator==(const Dateiinhalt&, const Dateiinhalt&) = default;
};

// Evaluation record of one player slot, filled by the evaluation.
struct SpielerAuswertung {
    i16 Sortierplatz = 0;  // position in the overall order, unique
    i16 Platz = 0;         // overall place; equal totals share a place
    Feld<i16, MaxSpieltage> SptgSortierplatz;
    Feld<i16, MaxSpieltage> SptgPlatz;
    i16 GesamtPunkte = 0;
    Feld<i16, MaxSpieltage> SpieltagPunkte;
    Feld<i16, 3> PunkteNachArt;           // points through fully correct, margin, tendency hits
    Feld<i16, MaxSpieler> Platzierungen;  // counted matchdays finished on place 0..8
    Feld<i16, MaxTeams> TeamPunkte;
    Feld<i16, MaxTeams> TeamPunkteKorrekt;
    Feld<i16, MaxTeams> TeamPunkteDiff;
    Feld<i16, MaxTeams> TeamPunkteTendenz;
    Feld<i16, MaxTeams> TeamSortierung;
    Feld<Feld<Farbe, MaxSpiele>, MaxSpieltage> SpielFarbe;  // matchday, match
    Feld<Feld<i16, MaxSpiele>, MaxSpieltage> Korrekt;       // hit kind 0, 1, 2 or -1

    // The record as the evaluation's reset leaves it: places equal to the slot, no points,
    // every tip white and unscored (-1).
    static SpielerAuswertung leer(int slot);

    friend bool operator==(const SpielerAuswertung&, const SpielerAuswertung&) = default;
};

// One row of a league table, indexed by team.
struct Tabellenzeile {
    std::string Name;
    i16 Punkte = 0;
    i16 Tabellenplatz = 0;  // 0-based, unique
    i16 Siege = 0;
    i16 Unentschieden = 0;
    i16 Niederlagen = 0;
    i16 Tore = 0;
    i16 Gegentore = 0;
    i16 HeimPunkte = 0, HeimSiege = 0, HeimUnentschieden = 0, HeimNiederlagen = 0, HeimTore = 0,
        HeimGegentore = 0;
    i16 AuswPunkte = 0, AuswSiege = 0, AuswUnentschieden = 0, AuswNiederlagen = 0, AuswTore = 0,
        AuswGegentore = 0;

    friend bool operator==(const Tabellenzeile&, const Tabellenzeile&) = default;
};

// Answer of getTabInfo: nothing, a number or a text, depending on the kind asked for.
using TabInfo = std::variant<std::monostate, i16, std::string>;

// One figure of a table row as getTabInfo gives it. Kinds: 0 position (0-based), 1 name,
// 2 points, 3 "goals:against", 4 difference, 5 wins, 6 draws, 7 losses; any other kind gives an
// empty value. Throws Laufzeitfehler::Ueberlauf when the difference leaves 16 bits.
TabInfo tabInfo(const Tabellenzeile& zeile, int art);

// Where HoleSpielerDaten takes the player data from (the player settings window).
class SpielerDatenQuelle {
  public:
    virtual std::string getSpielerName(int spieler) const = 0;
    virtual Farbe getSpielerFarbe(int spieler) const = 0;
    virtual i16 getTeilnehmer(int spieler) const = 0;

  protected:
    ~SpielerDatenQuelle() = default;
};

// The whole state of one prediction game: the file fields, the working arrays of results and
// tips, the evaluation records and the league table. Every accessor checks its indices and
// throws Laufzeitfehler::Index when one is outside the fixed limits.
struct Spielstand : Dateiinhalt {
    Ergebnisse Ergebnis;  // working copies used by all computation
    Tipps Tipp;
    i16 AktSpieltag = 0;  // matchday shown in the matchday view
    std::string Fussnote = "automatisch erstellt mit 'Kalimbo' - Version 5.0.1";
    Feld<Tabellenzeile, MaxTeams + 1> Tabelle;
    Feld<SpielerAuswertung, MaxSpieler> Auswertung;
    std::string Dateipfad;
    std::string Dateititel;

    Spielstand();

    // Replaces every file field with those read from a file, copies the file's results and tips
    // into the working arrays and clears the evaluation, which belonged to the previous game.
    void oeffne(const Dateiinhalt& inhalt);
    // Evaluation records and table as before any evaluation: no points, unscored tips, table
    // positions in team order.
    void verwirfAuswertung();
    // ErgebnisDatei -> Ergebnis, TippDatei -> Tipp (after reading a file).
    void kopiereDateiInArbeit();
    // Ergebnis -> ErgebnisDatei, Tipp -> TippDatei (before writing a file).
    void kopiereArbeitInDatei();

    // Team index at the table position (the last team 0..AnzTeams holding it); 0 if none.
    i16 DiesTeam(int position) const;
    const std::string& getFussnote() const { return Fussnote; }
    const std::string& getLigaInfo() const { return LigaInfo[0]; }
    i16 getAnzSpieltage() const { return AnzSpieltage; }  // highest matchday index
    i16 getAnzTeams() const { return AnzTeams; }          // highest team index
    i16 getAnzSpiele() const { return AnzSpiele; }        // highest match index
    i16 getAktSpieltag() const { return AktSpieltag; }
    i16 getAktSpieltagGlobal() const { return AktSpieltagGlobal; }
    i16 getErgebnis(int spieltag, int spiel, int seite) const { return Ergebnis[spieltag][spiel][seite]; }
    i16 getPaarung(int spieltag, int spiel, int seite) const { return Paarung[spieltag][spiel][seite]; }
    i16 getTipp(int spieler, int spieltag, int spiel, int seite) const {
        return Tipp[spieler][spieltag][spiel][seite];
    }
    i16 getSptgAuswerten(int spieltag) const { return SptgAuswerten[spieltag]; }
    const std::string& getSpielerName(int spieler) const { return Spielername[spieler]; }
    const std::string& getTeamName(int team) const { return Teamname[team]; }
    const std::string& getTeamNameKurz(int team) const { return TeamnameKurz[team]; }
    // tabInfo of the league table's row of `team` (0..20).
    TabInfo getTabInfo(int team, int art) const { return tabInfo(Tabelle[team], art); }
    Farbe getSpielFarbe(int spieler, int spieltag, int spiel) const {
        return Auswertung[spieler].SpielFarbe[spieltag][spiel];
    }
    Farbe getSpielerFarbe(int spieler) const { return Spielerfarbe[spieler]; }
    i16 getTeilnehmer(int spieler) const { return Teilnehmer[spieler]; }
    i16 getGesamtPunkte(int spieler) const { return Auswertung[spieler].GesamtPunkte; }
    i16 getSpieltagPunkte(int spieler, int spieltag) const {
        return Auswertung[spieler].SpieltagPunkte[spieltag];
    }
    i16 getKorrekt(int spieler, int spieltag, int spiel) const {
        return Auswertung[spieler].Korrekt[spieltag][spiel];
    }
    Farbe getModusFarbe(int art) const { return ModusFarbe[art]; }
    i16 getModusPunkte(int art) const { return ModusPunkte[art]; }
    Farbe getTabFarbe(int position) const { return TabFarbe[position]; }
    void setModus(int art, i16 punkte) { ModusPunkte[art] = punkte; }
    void setFarbeMod(int art, Farbe farbe) { ModusFarbe[art] = farbe; }
    // Takes name, colour and participation of players 0..8 from the settings window.
    void HoleSpielerDaten(const SpielerDatenQuelle& quelle);
};

}  // namespace kalimbo
