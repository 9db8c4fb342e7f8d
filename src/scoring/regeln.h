#pragma once

#include <array>
#include <string>

#include "state/zahl16.h"

namespace kalimbo {

// A fixed scoring rule: points and background colour per hit kind
// (0 fully correct, 1 correct margin, 2 correct tendency).
struct FesteRegel {
    const char* name;
    std::array<i16, 3> punkte;
    std::array<Farbe, 3> farben;
};

constexpr Farbe Rot = rgb(255, 0, 0);
constexpr Farbe Hellgelb = rgb(250, 250, 144);
constexpr Farbe Gruen = rgb(48, 190, 48);

// Indexed by Modus 0..2; Modus 3 is the own rule, whose values live in the game.
constexpr std::array<FesteRegel, 3> FesteRegeln{{
    {"2-Punkte-Regel", {2, 1, 1}, {Rot, Gruen, Gruen}},
    {"3-Punkte-Regel", {3, 1, 1}, {Rot, Gruen, Gruen}},
    {"3-2-1-Regel", {3, 2, 1}, {Rot, Hellgelb, Gruen}},
}};

constexpr i16 ModusEigeneRegel = 3;

// Name of the rule `modus` as the menu "Modus" shows it; the own rule is "Eigene Regel".
std::string regelName(i16 modus);

}  // namespace kalimbo
