#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "reports/spieltagsbogen.h"

namespace kalimbo {

// A matchday sheet asked for as a command line names it (--spieltag N, --art NAME).
struct Bogenauftrag {
    std::string spiel;                    // the game file
    std::optional<std::string> spieltag;  // counted from 1; none: the last selected matchday
    std::optional<std::string> art;       // auswertung, live or tippabgabe; none: auswertung
};

// A matchday the game has not, or a kind that does not exist: the asker's mistake. The message is
// German and names the option.
class FalscheAngabe : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

// The sheet asked for, from the game as the window shows it once opened (ladeWieGezeigt), dated
// today. Throws FalscheAngabe, Dateifehler or Laufzeitfehler.
Spieltagsbogen erstelleBogen(const Bogenauftrag& auftrag);

}  // namespace kalimbo
