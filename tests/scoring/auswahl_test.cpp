#include "scoring/auswahl.h"

#include <gtest/gtest.h>

#include <functional>

#include "testdaten.h"

namespace kalimbo {
namespace {

using Wahl = std::function<Auswahlergebnis(Spielstand&)>;

// A season of 34 or 38 matchdays (9 or 10 matches), the current matchday and the selection.
Spielstand saison(int spieltage, i16 aktuell, const char* auswahl) {
    Spielstand s;
    s.AnzSpieltage = static_cast<i16>(spieltage - 1);
    s.AnzSpiele = static_cast<i16>(spieltage / 4);
    s.AnzTeams = static_cast<i16>(spieltage / 2);
    s.AktSpieltagGlobal = aktuell;
    test::setzeAuswahl(s, auswahl);
    s.Trainerwechsel[0] = {1, "A", -1, 3};
    s.Trainerwechsel[1] = {1, "B", 3, 99};
    s.Trainerwechsel[2] = {1, "C", 3, 38};
    s.Trainerwechsel[3] = {1, "D", 5, 12};
    return s;
}

Wahl letzte(int anzahl) {
    return [anzahl](Spielstand& s) { return waehleLetzte(s, anzahl); };
}
Wahl trainer(int periode) {
    return [periode](Spielstand& s) { return waehleTrainerperiode(s, periode); };
}
Wahl klick(int tag) {
    return [tag](Spielstand& s) { return schalteSpieltag(s, tag); };
}
// The same choice once the count `feld` (AnzSpiele, AnzSpieltage) holds `wert`.
Wahl mit(i16 Dateiinhalt::*feld, i16 wert, Wahl wahl) {
    return [=](Spielstand& s) {
        s.*feld = wert;
        return wahl(s);
    };
}
// The same choice in a game whose matchdays have nine matches, whatever AnzSpieltage says: the half-season
// choices take their half from the matches, "der Rückrunde" from the matchdays.
Wahl neunSpiele(Wahl wahl) {
    return mit(&Dateiinhalt::AnzSpiele, 8, wahl);
}

TEST(Auswahl, SetztGenauDieseSpieltageUndMeldetDieGeaenderten) {
    const char* const ohne = "Es ist kein aktueller Spieltag gesetzt.";
    const char* const jenseits = "Der aktuelle Spieltag 40 liegt außerhalb der Saison (0 bis 37).";
    struct Fall {
        int spieltage;  // 34 or 38
        i16 aktuell;    // AktSpieltagGlobal
        const char* vorher;
        Wahl wahl;
        const char* nachher;      // the selection afterwards, 0-based
        const char* ablehnung{};  // the refusal text, when refused
    };
    const Fall faelle[] = {
        {34, 99, "", waehleAlle, "0-33"},
        {34, 99, "0-37", waehleKeine, ""},
        {38, 99, "0-37", waehleHinrunde, "0-18"},
        {38, 99, "0-5", waehleRueckrunde, "19-37"},
        {38, 99, "0-37", neunSpiele(waehleHinrunde), "0-16, 34-37"},
        {38, 30, "", neunSpiele(waehleAbsolvierteRueckrunde), "19-30"},
        {38, 0, "0-37", waehleAlleAbsolvierten, "0"},
        {34, 20, "25-37", waehleAlleAbsolvierten, "0-20, 34-37"},
        {38, 18, "0-37", waehleAbsolvierteRueckrunde, ""},  // the last day of the first half
        {38, 25, "0-37", waehleAbsolvierteRueckrunde, "19-25"},
        {38, 1, "4", letzte(3), "4", "Es wurden noch keine 3 Spieltage absolviert."},
        {38, 2, "4", letzte(3), "0-2"},
        {34, 8, "", letzte(10), "", "Es wurden noch keine 10 Spieltage absolviert."},
        {38, 99, "1-2", letzte(24), "1-2", "Es wurden noch keine 24 Spieltage absolviert."},
        {34, 33, "", letzte(24), "10-33"},
        {38, 99, "3", klick(5), "3, 5"},
        {38, 99, "3-5", klick(3), "4-5"},
        {38, 99, "3",
         [](Spielstand& s) {  // "true" read from some file: shown as not selected
             s.SptgAuswerten[7] = -1;
             return schalteSpieltag(s, 7);
         },
         "3, 7"},
        {34, 25, "0-33", trainer(3), "5-12"},
        {34, 25, "0-33", trainer(1), "3-25"},  // open-ended: up to the current matchday
        {34, 99, "0-33", trainer(3), "5-12"},  // a closed period needs no current matchday
        // Choices that count from the current matchday, or from a coach period, say why they cannot be made
        // when the matchdays they name are not in the season, and change nothing.
        {38, 99, "2-6, 30", waehleAlleAbsolvierten, "2-6, 30", ohne},
        {38, 99, "2-6, 30", trainer(1), "2-6, 30", ohne},
        {38, 40, "2-6, 30", waehleAlleAbsolvierten, "2-6, 30", jenseits},
        {38, 40, "2-6, 30", trainer(1), "2-6, 30", jenseits},
        {38, 5, "2-6, 30", trainer(0), "2-6, 30",
         "Der Trainerwechsel „A“ nennt Spieltage außerhalb der Saison."},
        {38, 5, "2-6, 30", trainer(2), "2-6, 30",
         "Der Trainerwechsel „C“ nennt Spieltage außerhalb der Saison."},
    };
    for (const Fall& f : faelle) {
        Spielstand s = saison(f.spieltage, f.aktuell, f.vorher);
        const auto vorher = s.SptgAuswerten;
        const Auswahlergebnis e = f.wahl(s);
        SCOPED_TRACE(std::to_string(f.spieltage) + " Spieltage, aktuell " + std::to_string(f.aktuell) +
                     ", vorher \"" + f.vorher + "\"");
        EXPECT_EQ(test::auswahl(s), f.nachher);
        EXPECT_EQ(e.ablehnung, f.ablehnung ? f.ablehnung : "");
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            EXPECT_EQ(e.geaendert[tag], vorher[tag] != s.SptgAuswerten[tag]) << "Spieltag " << tag;
    }
}

TEST(Auswahl, WasAusDenSpieltagenLaeuftAendertNichts) {
    for (const Wahl& wahl : {mit(&Dateiinhalt::AnzSpieltage, 38, waehleAlle),
                             mit(&Dateiinhalt::AnzSpiele, 10, waehleHinrunde), klick(38), trainer(10)}) {
        Spielstand s = saison(38, 99, "2-6, 30");
        EXPECT_EQ(test::fehler([&] { wahl(s); }), "Index außerhalb des gültigen Bereichs");
        EXPECT_EQ(test::auswahl(s), "2-6, 30");
    }
}

TEST(Auswahl, LetzterAusgewaehlterSpieltag) {
    Spielstand s;
    EXPECT_EQ(letzterAusgewaehlterSpieltag(s), 0);
    for (const auto& [auswahl, letzter] : {std::pair{"1", 1}, {"3, 7", 7}, {"3, 37", 37}}) {
        test::setzeAuswahl(s, auswahl);
        EXPECT_EQ(letzterAusgewaehlterSpieltag(s), letzter) << auswahl;
    }
    s.SptgAuswerten[37] = -1;
    EXPECT_EQ(letzterAusgewaehlterSpieltag(s), 3);
}

}  // namespace
}  // namespace kalimbo
