#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "aufruf.h"

namespace kalimbo::cli {

// How a command prints a report: in UTF-8, or in Windows-1252 with --cp1252; decimals with "." or,
// with --komma, with ",".
struct Textausgabe {
    bool cp1252 = false;
    std::string trenner = ".";
};

// The switches that choose the Textausgabe, for zerlege(), and their usage text.
const std::vector<std::string>& textausgabeSchalter();
extern const char* const AusgabeGebrauch;

// The Textausgabe chosen by the switches of `a`.
Textausgabe textausgabe(const Aufruf& a);

// Writes `text` to `aus` in the chosen encoding; throws Dateifehler when Windows-1252 lacks one of
// its characters.
void gibAus(std::ostream& aus, const std::string& text, const Textausgabe& wie);

// The game at the first positional argument as the window shows it after opening it, and the whole
// number N of the second in 0..hoechsterIndex, called `was` in the message when it is not.
struct SpielUndIndex {
    Spielstand spiel;
    int index;
};
// Throws Gebrauchsfehler unless there are exactly these two positional arguments; Dateifehler or
// Laufzeitfehler from opening the game.
SpielUndIndex spielUndIndex(const Aufruf& a, int hoechsterIndex, const std::string& was);

// Builds a report from a game (as the window shows it), an index and the decimal separator; empty
// when there is nothing to show.
using Berichtsbau = std::function<std::optional<std::string>(const Spielstand&, int, const std::string&)>;

// Runs a report command "SPIEL.tip N [AUSGABE]" (see spielUndIndex). Prints the report exactly as built,
// nothing when it is empty. Throws Gebrauchsfehler, Dateifehler or Laufzeitfehler.
int berichtsbefehl(const std::vector<std::string>& argumente, std::ostream& aus, int hoechsterIndex,
                   const std::string& was, const Berichtsbau& bau);

}  // namespace kalimbo::cli
