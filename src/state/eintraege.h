#pragma once

#include <array>
#include <string>
#include <string_view>

#include "spielstand.h"

namespace kalimbo {

// Key filter of the entry boxes: digits ("0".."9") and backspace (8) pass, every other character
// code becomes the digit "0" (48), so a mistyped letter still types a number.
constexpr i16 tastenfilter(i16 taste) {
    return (taste > 57 || (taste < 48 && taste != 8)) ? i16{48} : taste;
}

// The texts of the matchday view's boxes: results per match, tips per field p * 10 + match.
struct Spieltagseintraege {
    std::array<std::string, MaxSpiele> heimErgebnis, ausErgebnis;
    std::array<std::string, MaxSpieler * MaxSpiele> heimTipp, ausTipp;
};

// Takes the boxes of the matchday shown (AktSpieltag) into Ergebnis (matches 0..AnzSpiele) and
// Tipp (all 90 fields). A home tip box showing exactly "X" keeps the stored home tip; the away
// tip is always taken. Every text is read first: a number outside the 16-bit range throws
// Laufzeitfehler::Ueberlauf and nothing is changed. Returns whether a stored value changed.
bool uebernimmEintraege(Spielstand& spiel, const Spieltagseintraege& eintraege);

// One goal more in the result box of match `spiel` for side `seite` (0 home, 1 away), counting
// from the number the box holds (an empty box counts as 0). Throws Laufzeitfehler::Ueberlauf
// beyond 32767, the box unchanged.
void zaehleTor(Spieltagseintraege& eintraege, int spiel, int seite);

// Takes the current matchday and the two Sunday match numbers as typed (read as numbers, stored
// as they are: the current matchday counts from 0, 99 = none). All three are read first: a number
// outside the 16-bit range throws Laufzeitfehler::Ueberlauf and nothing is changed.
void uebernimmAktuellenSpieltag(Spielstand& spiel, std::string_view aktuell, std::string_view sonntag0,
                                std::string_view sonntag1);

}  // namespace kalimbo
