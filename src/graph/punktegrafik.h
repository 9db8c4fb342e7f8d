#pragma once

#include <array>
#include <optional>
#include <string>

#include "graph/zeichnung.h"
#include "state/spielstand.h"

namespace kalimbo::grafik {

// The points chart: the players' points over the matchdays, on an area of 12920 x 7815 twips.
constexpr int GrafikBreite = 12920;
constexpr int GrafikHoehe = 7815;

// The two views of the chart (values of Ansicht::Darstellung).
constexpr i16 Gesamtpunkte = 0;     // running totals joined by lines
constexpr i16 Spieltagspunkte = 1;  // each matchday's points as a numbered square

// What the chart shows.
struct Ansicht {
    i16 Darstellung = Gesamtpunkte;  // any other value than the two views draws columns and grid only
    std::array<bool, MaxSpieler> LinieZeigen{};   // per slot: the player's marks (and lines) are drawn
    std::array<bool, MaxSpieler> PunkteZeigen{};  // per slot: the totals are printed at the marks
};

// The flags a first load sets: the total view, marks for every slot whose Teilnehmer is 1, no
// printed numbers.
Ansicht ersteAnsicht(const Spielstand& spiel);

// The scale top of the total view: the largest sum of SpieltagPunkte over matchdays 0..spieltage
// among all nine slots, taking part or not; 1 when that is 0. `spieltage` is the highest matchday
// index drawn. Throws Laufzeitfehler::Ueberlauf or ::Index.
i16 skalenspitze(const Spielstand& spiel, i16 spieltage);

// The chart of matchdays 0..spieltage (the highest index, not a count) in drawing order: one
// column per matchday (alternating greys, width 12920 / (spieltage + 1) rounded half to even),
// the grid, then the data of the view for the slots that take part and have LinieZeigen, slot 0
// first, so a later slot lies on top. All coordinates in twips, computed in checked 16-bit
// arithmetic: throws Laufzeitfehler::Ueberlauf when one leaves 16 bits (for example 480 points per
// point of the matchday view times 69 points), ::DivisionDurchNull for spieltage -1 or a scale
// top of -3, ::Index for spieltage beyond 37.
Zeichnung punktegrafik(const Spielstand& spiel, i16 spieltage, const Ansicht& ansicht);

// The matchday whose points the legend shows, whatever the chart draws (index 12).
constexpr int Legendenspieltag = 12;

// One row of the legend, as its labels show it.
struct Legendenzeile {
    std::string spieler;         // "Name  " (two blanks), or "      ---" for a slot not taking part
    std::optional<Farbe> farbe;  // the player's colour, shown bold; none for a slot not taking part
    std::string gesamtPunkte;    // GesamtPunkte, or "-"
    std::string spieltagPunkte;  // SpieltagPunkte of matchday Legendenspieltag, or "-"
    friend bool operator==(const Legendenzeile&, const Legendenzeile&) = default;
};

// The legend rows of the nine slots. Throws nothing beyond the accessors' Laufzeitfehler.
std::array<Legendenzeile, MaxSpieler> legende(const Spielstand& spiel);

}  // namespace kalimbo::grafik
