#pragma once

#include <filesystem>
#include <optional>

#include "state/spielstand.h"

namespace kalimbo {

// What showing a game writes into it, as the main window has always done, so that every program
// that prints figures prints those the window shows: the matchday shown (AktSpieltag), and for it
// the points of every slot not taking part set to -1 in the records until the next evaluation.

// Shows matchday `tag`. Throws Laufzeitfehler::Index, changing nothing, for a day outside 0..37.
void zeigeSpieltag(Spielstand& s, int tag);

// Evaluates the game (werteAus) and marks the shown matchday again.
void werteAusWieGezeigt(Spielstand& s, bool sonntagsspieleAuslassen);

// A game read from a file, as the window shows it before evaluating it: every file field the
// file's, the last selected matchday shown (0 when none is), the evaluation cleared.
void oeffneWieGezeigt(Spielstand& s, const Dateiinhalt& inhalt);

// What a program may change about a game before evaluating it.
struct Auswertungsoptionen {
    bool alle = false;         // every matchday of the season instead of the file's selection
    bool sonntag = false;      // leave out the Sunday matches of the current matchday
    std::optional<i16> regel;  // rule 0..3 instead of the file's
};

// The game in the file at `pfad` as the window shows it once opened and evaluated (oeffneWieGezeigt,
// the options, werteAusWieGezeigt). Throws Dateifehler or Laufzeitfehler.
Spielstand ladeWieGezeigt(const std::filesystem::path& pfad, const Auswertungsoptionen& optionen = {});

}  // namespace kalimbo
