#pragma once

#include <filesystem>

#include "state/spieldatei.h"
#include "state/spielstand.h"
#include "testdaten.h"

namespace kalimbo::test {

// A short game for the report and window tests: six teams (long and short names with umlauts), three matches
// a matchday, three matchdays of which 0 and 1 are selected. Anna (slot 0) and Carl (slot 2) take part in
// their colours; Bernd (slot 1) and the empty slots 3-8 do not.
//   results  matchday 1: A-B 2:1, C-D 0:0, E-F 10:2   matchday 2: B-A 2:1, D-C 1:1, F-E 0:3
//   Anna     matchday 1: 2:1 1:0 3:3                   matchday 2: 2:1 2:1 0:12
//   Bernd    matchday 1: 4:4 4:4 4:4                   matchday 2: 0:0 0:0 0:0
//   Carl     matchday 1: 0:0 0:0 0:0                   matchday 2: 1:1 1:1 0:3
// Matchday 3 (not selected) ended 2:1 everywhere and was tipped so by everybody.
inline Spielstand kurzesSpiel() {
    Spielstand s = liga({"Aachen", "Bochum", "Cottbus", "Dresden", "Rot & Weiß Essen|ESS", "Fürth|FÜR"}, 3,
                        hinUndZurueck, "Anna -Bernd Carl");
    s.LigaInfo[0] = "Testliga 2024/25";
    setzeErgebnisse(s, 0, "2:1 0:0 10:2");
    setzeErgebnisse(s, 1, "2:1 1:1 0:3");
    setzeErgebnisse(s, 2, "2:1 2:1 2:1");
    setzeTipps(s, 0, 0, "2:1 1:0 3:3");
    setzeTipps(s, 0, 1, "2:1 2:1 0:12");
    setzeTipps(s, 1, 0, "4:4 4:4 4:4");
    setzeTipps(s, 2, 1, "1:1 1:1 0:3");
    for (int p = 0; p < MaxSpieler; ++p)
        setzeTipps(s, p, 2, "2:1 2:1 2:1");
    s.Spielerfarbe[0] = rgb(200, 0, 0);
    s.Spielerfarbe[2] = rgb(0, 0, 200);
    setzeAuswahl(s, "0-1");
    return s;
}

// Writes the game with its working results and tips as a game file.
inline void speichereSpiel(Spielstand s, const std::filesystem::path& pfad) {
    s.kopiereArbeitInDatei();
    speichereSpieldatei(pfad, s);
}

}  // namespace kalimbo::test
