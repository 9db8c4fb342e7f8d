#pragma once

#include <array>
#include <filesystem>
#include <functional>
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

// The teams of match `spiel` on matchday `spieltag`, home first.
using Paarung = std::function<std::array<int, 2>(int spieltag, int spiel)>;
// Match k between teams 2k and 2k+1, the home side changing from one matchday to the next.
std::array<int, 2> hinUndZurueck(int spieltag, int spiel);

// The one way the tests build a game: the teams `teams` ("Long name" or "Long name|KURZ"; without a bar the
// short name is the first three letters in capitals), `spieltage` matchdays of teams/2 matches paired by
// `paarung`, and the players named in `spieler` in slots 0.. ("Anna -Bernd": a leading "-" for one who does
// not take part); the other slots are empty and do not take part. No results, no tips, nothing selected.
Spielstand liga(const std::vector<std::string>& teams, int spieltage, const Paarung& paarung,
                std::string_view spieler);

// A game of `teams` (18 or 20) teams with umlauts in their names ("Borussia Bärstadt", "BÄR"), a double round
// robin (team teams-1 at home in match 0 of every matchday of the first half) and the players "Anna",
// "Bernd", "Carl", "Dora" taking part.
Spielstand kleinesSpiel(int teams);

// The real results of a matchday, or one player's tips of a matchday, in short notation, match 0 first: "2:1
// 0:0 1:3"; matches not named keep their values.
void setzeErgebnisse(Spielstand& s, int spieltag, std::string_view ergebnisse);
void setzeTipps(Spielstand& s, int spieler, int spieltag, std::string_view tipps);

// The matchdays selected by SptgAuswerten in the notation "0-2, 5" (0-based, "" for none), and the flags set
// to exactly such a list.
std::string auswahl(const Spielstand& s);
void setzeAuswahl(Spielstand& s, std::string_view auswahl);

// What `f` throws as text: the message of a Laufzeitfehler ("Überlauf", "Index außerhalb des gültigen
// Bereichs", "Division durch Null", each perhaps with where) or of a Dateifehler; "" when it throws nothing.
template <class F>
std::string fehler(F f) {
    try {
        f();
    } catch (const Laufzeitfehler& e) {
        return e.what();
    } catch (const Dateifehler& e) {
        return e.what();
    }
    return "";
}

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
