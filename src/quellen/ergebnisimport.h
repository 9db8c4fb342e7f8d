#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "quelle.h"
#include "state/spielstand.h"
#include "zuordnung.h"

namespace kalimbo {

// A match to which the file gives another result than the game.
struct Abweichung {
    int spieltag = 0;  // indices of the match in the game
    int spiel = 0;
    std::array<i16, 2> imSpiel{};
    std::array<i16, 2> inDatei{};
};

// What taking a file's results into a game did, to tell the manager.
struct Ergebnisbericht {
    std::string datei;    // the file's name
    int uebernommen = 0;  // results set where the game had 0:0 (a 0:0 of the file counts here too)
    int schonDa = 0;      // the game had that result already
    std::vector<Abweichung> abweichend;  // the game had another result: kept, or replaced if `ersetzt`
    bool ersetzt = false;
    std::vector<QuellSpiel> ohneGegenstueck;  // played matches of the file whose pairing the game lacks
    std::optional<Datum> von, bis;            // the dates of the file's played matches
    std::vector<int> vollstaendig;            // matchday indices of which every match now has its result
};

struct Ergebnisuebernahme {
    Spielstand spiel;
    Ergebnisbericht bericht;
};

// The results of the played matches of `quelle` taken into a copy of `spiel`'s results
// (Ergebnis), each onto the game's match of the same home and away team, whatever its matchday.
// A result is set where the game has 0:0 (an unplayed match and a goalless one look alike) or the
// same result; a different one stays unless `ersetzen`. Names of the file that `zuordnung` leaves
// open count as without counterpart. Nothing else of the game changes, so taking the same file
// twice changes nothing the second time. Throws Dateifehler, beginning with the file's name, when
// the file gives one pairing twice with different results.
Ergebnisuebernahme uebernimmErgebnisse(const Spielstand& spiel, const Quelle& quelle,
                                       const Zuordnung& zuordnung, bool ersetzen);

// The report in German, one line each for the kinds of result, the different ones and those
// without counterpart listed, then the complete matchdays.
std::string berichtText(const Ergebnisbericht& bericht, const Spielstand& spiel);

}  // namespace kalimbo
