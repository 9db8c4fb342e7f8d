#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "state/spielstand.h"

namespace kalimbo {

// A report text built line by line. Every line ends with CR LF; whole numbers are written in plain
// decimal, without padding or a plus sign.
class Blatt {
  public:
    // Appends the pieces (texts and whole numbers) and ends the line with CR LF.
    template <class... Teile>
    Blatt& zeile(const Teile&... teile) {
        (haenge(teile), ...);
        m_text += "\r\n";
        return *this;
    }
    std::string text() && { return std::move(m_text); }

  private:
    void haenge(std::string_view teil) { m_text += teil; }
    void haenge(int zahl) { m_text += std::to_string(zahl); }

    std::string m_text;
};

// "HOM - AWA2:1": the short names of the home and away team of match `spiel` (0-based) on matchday
// `spieltag` (0-based) and the stored result, glued to the away team's name. Throws
// Laufzeitfehler::Index for an index outside the fixed limits.
std::string paarungMitErgebnis(const Spielstand& s, int spieltag, int spiel);

}  // namespace kalimbo
