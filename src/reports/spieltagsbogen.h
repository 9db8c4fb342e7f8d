#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo {

// What a matchday sheet is for.
enum class Bogenart {
    Auswertung,  // results and tips, each tip in its hit colour, the players' points and places
    Live,        // tips only; the results are written in by hand while the matches run
    Tippabgabe,  // fixtures only; the players write in their tips
};

// The name of a kind on the command line: "auswertung", "live", "tippabgabe".
std::string_view bogenartName(Bogenart art);
// The kind named so on the command line; nullopt for any other text.
std::optional<Bogenart> bogenartAusName(std::string_view name);

// One cell of the sheet: its text (UTF-8, empty when left blank) and its background.
struct Bogenzelle {
    std::string text;
    Farbe hintergrund = Weiss;
    friend bool operator==(const Bogenzelle&, const Bogenzelle&) = default;
};

// The content of one matchday sheet, decided once and then drawn for paper or written as HTML.
// Every colour is a plain 0x00BBGGRR value; the symbolic system colours are already resolved.
struct Spieltagsbogen {
    struct Spieler {
        std::string name;
        Farbe farbe;
    };
    struct Spiel {
        std::string heim, gast;  // long team names
        Bogenzelle ergebnis;
        std::vector<Bogenzelle> tipps;  // one per column of `spieler`
    };
    // A row under the matches: its title and one value per player column.
    struct Summe {
        std::string titel;
        std::vector<std::string> werte;
    };

    std::string liga;              // the league line
    std::string titel;             // "Spieltag 5"
    std::string art;               // "Auswertung", "Live-Spiel" or "Tippabgabe"
    std::vector<Spieler> spieler;  // the taking-part players in slot order
    std::vector<Spiel> spiele;     // matches 0..AnzSpiele
    std::vector<Summe> summen;     // only on Auswertung: points and places on the matchday and overall
    std::string fussnote;
    std::string datum;
};

// The sheet of matchday `spieltag` (0-based, 0..AnzSpieltage) as the game stands, the evaluation
// included; `datum` is printed beside the footer. Auswertung fills results and tips and colours
// each tip by its last evaluation; Live fills the tips only; Tippabgabe neither. Throws
// Laufzeitfehler::Index for a matchday outside 0..AnzSpieltage or a team index outside 0..19.
Spieltagsbogen erstelleBogen(const Spielstand& s, int spieltag, Bogenart art, std::string datum);

// Today's date as "TT.MM.JJJJ" in local time.
std::string heutigesDatum();

}  // namespace kalimbo
