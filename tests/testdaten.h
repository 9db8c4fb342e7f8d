#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo::test {

// The two real seasons shipped with the project's shared data.
inline constexpr const char* Saison18 = "de1-2005-06";
inline constexpr const char* Saison20 = "en1-2010-11";

std::filesystem::path gemeinsameDaten(const std::string& datei);
// The bytes of a file under tests/data, such as a golden text ("berichte/teaminfo-20.txt").
std::string testdatei(const std::string& name);
// A new game built from the season's match list.
Dateiinhalt saison(const std::string& name);
// The rows of a CSV file below its header line, split at the commas (the shared data quotes nothing).
std::vector<std::vector<std::string>> leseCsv(const std::filesystem::path& pfad);

// Scores in short notation, match 0 first: "2:1 0:0 1:3". Writes the real results of a matchday,
// or one player's tips of a matchday; matches not named keep their values.
void setzeErgebnisse(Spielstand& s, int spieltag, std::string_view ergebnisse);
void setzeTipps(Spielstand& s, int spieler, int spieltag, std::string_view tipps);

// The matchdays selected by SptgAuswerten in the notation "0-2, 5" (0-based, "" for none), and
// the flags set to exactly such a list.
std::string auswahl(const Spielstand& s);
void setzeAuswahl(Spielstand& s, std::string_view auswahl);

// A hand-made game of `teams` (18 or 20) teams with umlauts in their names ("Borussia Bärstadt",
// "BÄR"), a double round robin (team teams-1 at home in match 0 of every matchday of the first
// half), players "Anna", "Bernd", "Carl", "Dora" taking part and slots 4..8 unnamed and not taking
// part. No results, no tips, no matchday selected, no current matchday; not evaluated.
Spielstand kleinesSpiel(int teams);

// Text in test notation: "→" stands for a TAB and every line break for CR LF; a line break right
// at the start is dropped, so a raw string literal can begin on its own line.
std::string crlf(std::string_view text);

std::string leseBytes(const std::filesystem::path& pfad);
void schreibeBytes(const std::filesystem::path& pfad, const std::string& bytes);

// A fresh folder under the system's temporary folder, removed with everything in it.
class TempOrdner {
  public:
    TempOrdner();
    ~TempOrdner();
    TempOrdner(const TempOrdner&) = delete;
    TempOrdner& operator=(const TempOrdner&) = delete;
    const std::filesystem::path& pfad() const { return m_pfad; }
    std::filesystem::path operator/(const std::string& name) const { return m_pfad / name; }

  private:
    std::filesystem::path m_pfad;
};

}  // namespace kalimbo::test
