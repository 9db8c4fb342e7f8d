#pragma once

#include <array>
#include <string>

#include "state/spielstand.h"

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

// Hit kinds of a scored tip, as stored in SpielerAuswertung::Korrekt.
constexpr i16 KomplettRichtig = 0;
constexpr i16 RichtigeHoehe = 1;
constexpr i16 RichtigeTendenz = 2;
constexpr i16 KeinTreffer = -1;

// Name of the rule `modus` as the menu "Modus" shows it; the own rule is "Eigene Regel".
std::string regelName(i16 modus);

// Hit kind of a tip from whether it names the result exactly and from the two differences (home
// minus away goals) of tip and result: 0 fully correct, 1 correct margin of a won match, 2 correct
// tendency (a draw tipped as another draw is a tendency), -1 no hit. Written with & rather than &&
// so that a loop over many tips has no branches and the compiler vectorises it.
constexpr i16 trefferart(bool komplett, i16 tippDifferenz, i16 ergebnisDifferenz) {
    const bool hoehe = (tippDifferenz == ergebnisDifferenz) & (ergebnisDifferenz != 0);
    const bool tendenz =
        ((tippDifferenz > 0) == (ergebnisDifferenz > 0)) & ((tippDifferenz < 0) == (ergebnisDifferenz < 0));
    return komplett ? KomplettRichtig : hoehe ? RichtigeHoehe : tendenz ? RichtigeTendenz : KeinTreffer;
}

// Hit kind of one tip against the real result (goal counts as stored, 0:0 included), as
// trefferart(). The differences are overflow-checked (Laufzeitfehler::Ueberlauf).
constexpr i16 klassifiziere(i16 tippHeim, i16 tippAus, i16 ergebnisHeim, i16 ergebnisAus) {
    return trefferart(tippHeim == ergebnisHeim && tippAus == ergebnisAus, minus16(tippHeim, tippAus),
                      minus16(ergebnisHeim, ergebnisAus));
}

// The own rule as its window hands it over: points and background colour per hit kind.
struct EigeneRegel {
    std::array<i16, 3> punkte;
    std::array<Farbe, 3> farben;
};

// The points and colours of the rule in force, as the own rule's window starts from them.
EigeneRegel regelInKraft(const Spielstand& s);

// Writes the own rule's points and colours (setModus, setFarbeMod). Nothing is re-evaluated.
void setzeEigeneRegel(Spielstand& s, const EigeneRegel& regel);

// Makes `modus` the active rule. 0..2: Modus and the fixed rule's three points and colours;
// 3 (own rule): only Modus, the points and colours stay as the own-rule window left them.
// Any other value throws Laufzeitfehler::Index and changes nothing. Nothing is re-evaluated.
void waehleRegel(Spielstand& s, i16 modus);

}  // namespace kalimbo
