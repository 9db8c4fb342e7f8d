#include "reports/haeufigkeiten.h"

#include <gtest/gtest.h>

#include "kurzesspiel.h"

namespace kalimbo {
namespace {

// Over the selected matchdays 1 and 2 of the small game: the results and every slot's tips per class ("2:1 2"
// for two of class 2:1), the hits of slots 0..3, the most frequent classes and the lists of the matches of a
// class.
TEST(Haeufigkeiten, ZaehltErgebnisseUndTippsJeKlasse) {
    Spielstand s = test::kurzesSpiel();
    const Haeufigkeiten h = zaehleHaeufigkeiten(s);
    const auto spalte = [&](auto anzahl) {
        std::string text;
        for (int k = 0; k < AnzErgebnisklassen; ++k)
            if (anzahl(k) != 0) text += klassenName(k) + ' ' + std::to_string(anzahl(k)) + ' ';
        return text;
    };
    EXPECT_EQ(spalte([&](int k) { return h.anzahl(k); }), "0:0 1 0:3 1 1:1 1 2:1 2 andere 1 ");
    const std::array<const char*, 4> tipps{"1:0 1 2:1 3 3:3 1 andere 1 ",
                                           "0:0 3 4:4 3 ",  // counted although not taking part
                                           "0:0 3 0:3 1 1:1 2 ", "0:0 6 "};
    for (int p = 0; p < 4; ++p)
        EXPECT_EQ(spalte([&](int k) { return h.anzahlTipps(p, k); }), tipps[static_cast<std::size_t>(p)]);
    EXPECT_EQ((std::array{h.treffer[0], h.treffer[1], h.treffer[2], h.treffer[3]}), (std::array{2, 0, 3, 1}));
    // Bernd tipped 0:0 and 4:4 three times each: the lower class wins the tie.
    EXPECT_EQ(
        (std::array{h.haeufigsterTipp(0), h.haeufigsterTipp(1), h.haeufigstesErgebnis(), h.hoechsteAnzahl()}),
        (std::array{21, 0, 21, 2}));
    EXPECT_EQ(spielliste(s, h, 21) + '\n' + spielliste(s, h, KlasseAndere),
              test::testdatei("berichte/spielliste-klein.txt"));

    test::setzeAuswahl(s, "");
    const Haeufigkeiten leer = zaehleHaeufigkeiten(s);
    EXPECT_EQ((std::array{leer.hoechsteAnzahl(), leer.haeufigstesErgebnis(), leer.haeufigsterTipp(0),
                          leer.treffer[0]}),
              (std::array{0, -1, -1, 0}));
}

TEST(Haeufigkeiten, ErgebnisklassenBisNeunToreUndSchattierung) {
    const std::vector<std::tuple<int, int, std::string>> klassen{
        {0, 0, "0:0"},     {0, 9, "0:9"},     {2, 1, "2:1"},     {9, 9, "9:9"},
        {10, 0, "andere"}, {0, 10, "andere"}, {-1, 2, "andere"}, {3, -1, "andere"}};
    for (const auto& [heim, gast, name] : klassen)
        EXPECT_EQ(klassenName(ergebnisklasse(static_cast<i16>(heim), static_cast<i16>(gast))), name)
            << heim << ':' << gast;
    EXPECT_EQ(ergebnisklasse(2, 1), 21);
    EXPECT_THROW(klassenName(AnzErgebnisklassen), Laufzeitfehler);
    EXPECT_THROW(klassenName(-1), Laufzeitfehler);
    // From white to the full blue, with a legible font on each.
    const std::vector<std::tuple<int, int, Farbe, Farbe>> schatten{{0, 5, Weiss, rgb(0, 0, 0)},
                                                                   {0, 0, Weiss, rgb(0, 0, 0)},
                                                                   {1, 2, rgb(142, 172, 222), rgb(0, 0, 0)},
                                                                   {5, 5, rgb(30, 90, 190), Weiss}};
    for (const auto& [anzahl, hoechste, hintergrund, schrift] : schatten) {
        EXPECT_EQ(schattierung(anzahl, hoechste), hintergrund) << anzahl << '/' << hoechste;
        EXPECT_EQ(schriftfarbeAuf(hintergrund), schrift) << anzahl << '/' << hoechste;
    }
}

}  // namespace
}  // namespace kalimbo
