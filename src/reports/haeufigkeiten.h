#pragma once

#include <string>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo {

// One match of the season: matchday index 0..37, match index 0..9.
struct Begegnung {
    int spieltag = 0;
    int spiel = 0;
    friend bool operator==(const Begegnung&, const Begegnung&) = default;
};

// Scores are counted in classes: home goals * 10 + away goals for 0:0 .. 9:9 (0..99), and one
// class for every score with a side outside 0..9.
constexpr int MaxToreImRaster = 9;
constexpr int KlasseAndere = 100;
constexpr int AnzErgebnisklassen = 101;

// The class of a score: 0..99 for 0:0 .. 9:9, KlasseAndere otherwise.
int ergebnisklasse(i16 heim, i16 gast);
// "2:1" for class 21, "andere" for KlasseAndere. Throws Laufzeitfehler::Index outside 0..100.
std::string klassenName(int klasse);

// How often each score occurred as a real result and as each player's tip, over the matchdays
// selected for evaluation. The counts are the lengths of the match lists.
struct Haeufigkeiten {
    // Per class: the matches that ended with that score, in matchday and match order.
    Feld<std::vector<Begegnung>, AnzErgebnisklassen> ergebnisse;
    // Per player slot and class: the matches the player tipped with that score, in order.
    Feld<Feld<std::vector<Begegnung>, AnzErgebnisklassen>, MaxSpieler> tipps;
    // Per player slot: how many tips named the result exactly.
    Feld<int, MaxSpieler> treffer;

    // Number of real results in class `klasse` 0..100 (throws Laufzeitfehler::Index outside).
    int anzahl(int klasse) const { return static_cast<int>(ergebnisse[klasse].size()); }
    // Number of tips of slot `spieler` 0..8 in class `klasse` 0..100.
    int anzahlTipps(int spieler, int klasse) const { return static_cast<int>(tipps[spieler][klasse].size()); }
    // The class slot `spieler` tipped most often, the lowest class on a tie; -1 when no match counted.
    int haeufigsterTipp(int spieler) const;
    // The class of the most frequent real result, likewise.
    int haeufigstesErgebnis() const;
    // The largest count of real results in any class (0 when no match counted).
    int hoechsteAnzahl() const;
};

// Counts the real results and the tips of all nine slots over matchdays 0..AnzSpieltage with
// SptgAuswerten 1 and their matches 0..AnzSpiele, every score as stored (an unplayed match is
// 0:0). Throws Laufzeitfehler::Index when the counts exceed the fixed limits.
Haeufigkeiten zaehleHaeufigkeiten(const Spielstand& s);

// "BAM - HSV 2:1": the short names of the match's teams and its real result. Throws
// Laufzeitfehler::Index for a matchday, match or team index outside the fixed limits.
std::string begegnungText(const Spielstand& s, const Begegnung& b);

// The matches behind class `klasse`, one per line (LF) as "Spieltag N<TAB>HEIM - GAST x:y"
// (N 1-based, x:y the real result): first the real matches that ended so under the head
// "Ergebnis 2:1: 3 Spiele" ("Andere Ergebnisse: ..." for KlasseAndere), then for every taking-part
// player a blank line, the head "NAME: 2 Tipps" and the matches the player tipped so.
std::string spielliste(const Spielstand& s, const Haeufigkeiten& h, int klasse);

// Background of a grid cell holding `anzahl` of at most `hoechste`: white for none, shading
// evenly towards a full blue for the most frequent score.
Farbe schattierung(int anzahl, int hoechste);
// Black or white, whichever reads better on `hintergrund` (a plain 0x00BBGGRR colour).
Farbe schriftfarbeAuf(Farbe hintergrund);

}  // namespace kalimbo
