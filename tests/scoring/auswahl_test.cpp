#include "scoring/auswahl.h"

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "testdaten.h"

namespace kalimbo {
namespace {

using Wahl = std::function<Auswahlergebnis(Spielstand&)>;

struct Fall {
    const char* name;
    int spieltage;  // 34 or 38
    i16 aktuell;    // AktSpieltagGlobal
    const char* vorher;
    Wahl wahl;
    const char* nachher;      // the selection afterwards, 0-based
    const char* ablehnung{};  // the refusal text, when refused
};

Spielstand saison(int spieltage, i16 aktuell, const char* auswahl) {
    Spielstand s;
    s.AnzSpieltage = static_cast<i16>(spieltage - 1);
    s.AnzSpiele = static_cast<i16>(spieltage / 4);  // 9 matches (index 8) or 10 (index 9)
    s.AnzTeams = static_cast<i16>(spieltage / 2);
    s.AktSpieltagGlobal = aktuell;
    test::setzeAuswahl(s, auswahl);
    return s;
}

void PrintTo(const Fall& f, std::ostream* aus) {
    *aus << f.name;
}

class Auswahl : public testing::TestWithParam<Fall> {};

TEST_P(Auswahl, SetztGenauDieseSpieltageUndMeldetDieGeaenderten) {
    const Fall& f = GetParam();
    Spielstand s = saison(f.spieltage, f.aktuell, f.vorher);
    const auto vorher = s.SptgAuswerten;
    const Auswahlergebnis e = f.wahl(s);
    EXPECT_EQ(test::auswahl(s), f.nachher);
    EXPECT_EQ(e.ablehnung, f.ablehnung ? f.ablehnung : "");
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        EXPECT_EQ(e.geaendert[tag], vorher[tag] != s.SptgAuswerten[tag]) << "Spieltag " << tag;
}

Wahl letzte(int anzahl) {
    return [anzahl](Spielstand& s) { return waehleLetzte(s, anzahl); };
}
// The same choice in a game whose matchdays have nine matches, whatever AnzSpieltage says: the
// half-season choices take their half from the matches, "der Rückrunde" from the matchdays.
Wahl neunSpiele(Wahl wahl) {
    return [wahl](Spielstand& s) {
        s.AnzSpiele = 8;
        return wahl(s);
    };
}

INSTANTIATE_TEST_SUITE_P(
    Menue, Auswahl,
    testing::Values(
        Fall{"Alle34", 34, 99, "", waehleAlle, "0-33"},  //
        Fall{"Alle38", 38, 99, "3", waehleAlle, "0-37"},
        Fall{"KeineLoeschtAuchSpieltag34Bis37", 34, 99, "0-37", waehleKeine, ""},
        Fall{"Hinrunde38", 38, 99, "0-37", waehleHinrunde, "0-18"},
        Fall{"Hinrunde34", 34, 99, "20-37", waehleHinrunde, "0-16, 34-37"},
        Fall{"Rueckrunde38", 38, 99, "0-5", waehleRueckrunde, "19-37"},
        Fall{"Rueckrunde34", 34, 99, "", waehleRueckrunde, "17-33"},
        Fall{"HinrundeAusDenSpielenJeSpieltag", 38, 99, "0-37", neunSpiele(waehleHinrunde), "0-16, 34-37"},
        Fall{"AbsolvierteRueckrundeAusDenSpieltagen", 38, 30, "", neunSpiele(waehleAbsolvierteRueckrunde),
             "19-30"},
        Fall{"AlleAbsolviertenAmErstenSpieltag", 38, 0, "0-37", waehleAlleAbsolvierten, "0"},
        Fall{"AlleAbsolviertenBisZumSaisonende", 34, 20, "25-37", waehleAlleAbsolvierten, "0-20, 34-37"},
        Fall{"AbsolvierteRueckrundeInDerHinrunde", 38, 10, "0-37", waehleAbsolvierteRueckrunde, ""},
        Fall{"AbsolvierteRueckrundeAmLetztenHinrundentag", 38, 18, "0-37", waehleAbsolvierteRueckrunde, ""},
        Fall{"AbsolvierteRueckrunde38", 38, 25, "0-37", waehleAbsolvierteRueckrunde, "19-25"},
        Fall{"AbsolvierteRueckrunde34", 34, 25, "", waehleAbsolvierteRueckrunde, "17-25"},
        Fall{"LetzteDreiMitZweiAbsolvierten", 38, 1, "4", letzte(3), "4",
             "Es wurden noch keine 3 Spieltage absolviert."},
        Fall{"LetzteDreiMitDreiAbsolvierten", 38, 2, "4", letzte(3), "0-2"},
        Fall{"LetzteSechs", 38, 20, "0-37", letzte(6), "15-20"},
        Fall{"LetzteZehnMitNeunAbsolvierten", 34, 8, "", letzte(10), "",
             "Es wurden noch keine 10 Spieltage absolviert."},
        Fall{"LetzteOhneAktuellenSpieltag", 38, 99, "1-2", letzte(24), "1-2",
             "Es wurden noch keine 24 Spieltage absolviert."},
        Fall{"LetzteVierundzwanzig", 34, 33, "", letzte(24), "10-33"},
        Fall{"SpieltagAnklicken", 38, 99, "3", [](Spielstand& s) { return schalteSpieltag(s, 5); }, "3, 5"},
        Fall{"SpieltagAbwaehlen", 38, 99, "3-5", [](Spielstand& s) { return schalteSpieltag(s, 3); }, "4-5"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Auswahl, ZweimalKlickenStelltWiederHer) {
    Spielstand s = saison(38, 99, "0-4, 9");
    s.SptgAuswerten[7] = -1;  // "true" read from some file: shown as not selected
    for (const int tag : {0, 7, 9, 20, 37}) {
        const auto vorher = s.SptgAuswerten;
        EXPECT_EQ(schalteSpieltag(s, tag).geaendert, std::bitset<MaxSpieltage>().set(tag));
        schalteSpieltag(s, tag);
        EXPECT_EQ(s.SptgAuswerten[tag], vorher[tag] == 1 ? 1 : 0) << tag;
    }
    EXPECT_EQ(test::auswahl(s), "0-4, 9");
}

TEST(Auswahl, WasAusDenSpieltagenLaeuftAendertNichts) {
    const std::vector<std::pair<const char*, Wahl>> faelle{
        {"ZuVieleSpieltage",
         [](Spielstand& s) {
             s.AnzSpieltage = 38;
             return waehleAlle(s);
         }},
        {"ZuVieleSpiele",
         [](Spielstand& s) {
             s.AnzSpiele = 10;
             return waehleHinrunde(s);
         }},
        {"Spieltag38", [](Spielstand& s) { return schalteSpieltag(s, 38); }},
        {"Trainer10", [](Spielstand& s) { return waehleTrainerperiode(s, 10); }},
    };
    for (const auto& [name, wahl] : faelle) {
        Spielstand s = saison(38, 99, "2-6, 30");
        try {
            wahl(s);
            ADD_FAILURE() << name;
        } catch (const Laufzeitfehler& e) {
            EXPECT_EQ(e.code(), Laufzeitfehler::Index) << name;
        }
        EXPECT_EQ(test::auswahl(s), "2-6, 30") << name;
    }
}

// Choices that count from the current matchday, or from a coach period, say why they cannot be
// made when the matchdays they name are not in the season, and change nothing.
TEST(Auswahl, OhneBrauchbarenAktuellenSpieltagAbgelehnt) {
    const char* const ohne = "Es ist kein aktueller Spieltag gesetzt.";
    const char* const jenseits = "Der aktuelle Spieltag 40 liegt außerhalb der Saison (0 bis 37).";
    const std::vector<std::tuple<const char*, i16, Wahl, std::string>> faelle{
        {"AlleAbsolvierten", 99, waehleAlleAbsolvierten, ohne},
        {"AbsolvierteRueckrunde", 99, waehleAbsolvierteRueckrunde, ohne},
        {"AlleAbsolviertenJenseits", 40, waehleAlleAbsolvierten, jenseits},
        {"AbsolvierteRueckrundeJenseits", 40, waehleAbsolvierteRueckrunde, jenseits},
        {"LetzteJenseits", 40, letzte(3), jenseits},
        {"OffenerTrainerJenseits", 40, [](Spielstand& s) { return waehleTrainerperiode(s, 1); }, jenseits},
        {"TrainerAbSpieltagMinusEins", 5, [](Spielstand& s) { return waehleTrainerperiode(s, 0); },
         "Der Trainerwechsel „A“ nennt Spieltage außerhalb der Saison."},
        {"TrainerBisSpieltag38", 5, [](Spielstand& s) { return waehleTrainerperiode(s, 2); },
         "Der Trainerwechsel „C“ nennt Spieltage außerhalb der Saison."},
    };
    for (const auto& [name, aktuell, wahl, meldung] : faelle) {
        Spielstand s = saison(38, aktuell, "2-6, 30");
        s.Trainerwechsel[0] = {1, "A", -1, 3};
        s.Trainerwechsel[1] = {1, "B", 3, 99};
        s.Trainerwechsel[2] = {1, "C", 3, 38};
        const Auswahlergebnis e = wahl(s);
        EXPECT_EQ(e.ablehnung, meldung) << name;
        EXPECT_TRUE(e.geaendert.none()) << name;
        EXPECT_EQ(test::auswahl(s), "2-6, 30") << name;
    }
}

TEST(Auswahl, Trainerperiode) {
    Spielstand s = saison(34, 25, "0-33");
    s.Trainerwechsel[3] = {1, "Bis Spieltag 13", 5, 12};
    s.Trainerwechsel[4] = {1, "Bis heute", 20, 99};

    Auswahlergebnis e = waehleTrainerperiode(s, 3);
    EXPECT_EQ(test::auswahl(s), "5-12");
    EXPECT_EQ(e.geaendert.count(), 34u - 8u);
    EXPECT_FALSE(e.geaendert[5]);  // deselected and selected again: unchanged

    e = waehleTrainerperiode(s, 4);
    EXPECT_EQ(test::auswahl(s), "20-25");
    EXPECT_EQ(e.ablehnung, "");

    s.AktSpieltagGlobal = 99;
    e = waehleTrainerperiode(s, 4);
    EXPECT_EQ(e.ablehnung, "Es ist kein aktueller Spieltag gesetzt.");
    EXPECT_TRUE(e.geaendert.none());
    EXPECT_EQ(test::auswahl(s), "20-25");
    EXPECT_EQ(waehleTrainerperiode(s, 3).ablehnung, "");  // a closed period needs no current matchday
}

TEST(Auswahl, LetzterAusgewaehlterSpieltag) {
    Spielstand s;
    EXPECT_EQ(letzterAusgewaehlterSpieltag(s), 0);
    test::setzeAuswahl(s, "3, 7");
    EXPECT_EQ(letzterAusgewaehlterSpieltag(s), 7);
    s.SptgAuswerten[37] = 1;
    EXPECT_EQ(letzterAusgewaehlterSpieltag(s), 37);
    s.SptgAuswerten[37] = -1;
    EXPECT_EQ(letzterAusgewaehlterSpieltag(s), 7);
}

}  // namespace
}  // namespace kalimbo
