#include "reports/bogenzeichnung.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "graph/textbreite.h"
#include "kurzesspiel.h"
#include "scoring/auswertung.h"
#include "scoring/regeln.h"

namespace kalimbo {
namespace {

using grafik::Linie;
using grafik::Rechteck;
using grafik::Text;
using grafik::Zeichnung;

template <class T>
std::vector<T> teile(const Zeichnung& z) {
    std::vector<T> alle;
    for (const auto& t : z.teile)
        if (const T* p = std::get_if<T>(&t)) alle.push_back(*p);
    return alle;
}

int anzahlTexte(const Zeichnung& z, const std::string& text) {
    const auto texte = teile<Text>(z);
    return static_cast<int>(
        std::count_if(texte.begin(), texte.end(), [&](const Text& t) { return t.text == text; }));
}

// The fills of the drawing with the text drawn in each: "rot 2:1".
std::vector<std::string> fuellungen(const Zeichnung& z) {
    const std::map<Farbe, std::string> namen{{Rot, "rot"}, {Hellgelb, "gelb"}, {Gruen, "grün"}};
    std::vector<std::string> ergebnis;
    for (const Rechteck& r : teile<Rechteck>(z)) {
        std::string inhalt;
        for (const Text& t : teile<Text>(z))
            if (t.x == r.x1 && t.breite == r.x2 - r.x1 && t.y > r.y1 && t.y < r.y2) inhalt = t.text;
        ergebnis.push_back((namen.count(r.farbe) ? namen.at(r.farbe) : "?") + ' ' + inhalt);
    }
    std::sort(ergebnis.begin(), ergebnis.end());
    return ergebnis;
}

class Bogenzeichnung : public testing::Test {
  protected:
    void SetUp() override {
        s.Tipp[2][1][0] = {{3, 2}};
        werteAus(s, false);
    }
    Zeichnung zeichne(Bogenart art, int spieltag = 1) {
        return zeichneBogen(erstelleBogen(s, spieltag, art, "24.12.2024"));
    }
    Spielstand s = test::kurzesSpiel();
};

TEST_F(Bogenzeichnung, TrefferfarbenNurInDerAuswertung) {
    EXPECT_EQ(fuellungen(zeichne(Bogenart::Auswertung)),
              (std::vector<std::string>{"gelb 3:2", "grün 0:12", "rot 0:3", "rot 1:1", "rot 2:1"}));
    // Fills first, then the grid's lines over them, the texts on top.
    std::vector<std::size_t> schichten;
    for (const auto& t : zeichne(Bogenart::Auswertung).teile)
        schichten.push_back(t.index());
    EXPECT_TRUE(std::is_sorted(schichten.begin(), schichten.end()));
    EXPECT_EQ(fuellungen(zeichne(Bogenart::Live)), std::vector<std::string>{});
    EXPECT_EQ(fuellungen(zeichne(Bogenart::Tippabgabe)), std::vector<std::string>{});
}

TEST_F(Bogenzeichnung, ZellenJeArt) {
    struct Fall {
        Bogenart art;
        int ergebnisse;  // how often "1:1" is drawn: as the result and as Carl's tip
        int tipps;       // how often Anna's "0:12" is drawn
        int summen;      // rows of points and places
    };
    for (const Fall& f : {Fall{Bogenart::Auswertung, 2, 1, 4}, Fall{Bogenart::Live, 1, 1, 0},
                          Fall{Bogenart::Tippabgabe, 0, 0, 0}}) {
        const Zeichnung z = zeichne(f.art);
        EXPECT_EQ(anzahlTexte(z, "1:1"), f.ergebnisse) << bogenartName(f.art);
        EXPECT_EQ(anzahlTexte(z, "0:12"), f.tipps) << bogenartName(f.art);
        EXPECT_EQ(anzahlTexte(z, "Platz gesamt"), f.summen > 0 ? 1 : 0) << bogenartName(f.art);
        // One line above each row and one under the last: header + 3 matches, then the sums.
        const auto linien = teile<Linie>(z);
        const auto waagerecht =
            std::count_if(linien.begin(), linien.end(), [](const Linie& l) { return l.y1 == l.y2; });
        EXPECT_EQ(waagerecht, 5 + (f.summen > 0 ? f.summen + 1 : 0)) << bogenartName(f.art);
        for (const char* immer : {"Testliga 2024/25", "Spieltag 2", "Heim", "Gast", "Ergebnis", "Bochum",
                                  "Rot & Weiß Essen", "24.12.2024"})
            EXPECT_EQ(anzahlTexte(z, immer), 1) << immer;
    }
    const Zeichnung z = zeichne(Bogenart::Auswertung);
    const auto texte = teile<Text>(z);
    const auto anna =
        std::find_if(texte.begin(), texte.end(), [](const Text& t) { return t.text == "Anna"; });
    ASSERT_NE(anna, texte.end());
    EXPECT_EQ(anna->farbe, rgb(200, 0, 0));
    EXPECT_TRUE(anna->fett);
}

// A season of `name` with `spieler` players taking part under names of `namenslaenge` letters.
Spielstand saisonspiel(const char* name, int spieler, int namenslaenge) {
    Spielstand s;
    s.oeffne(test::saison(name));
    for (int p = 0; p < MaxSpieler; ++p) {
        s.Teilnehmer[p] = p < spieler ? 1 : 0;
        s.Spielername[p] =
            static_cast<char>('A' + p) +
            std::string(static_cast<std::size_t>(namenslaenge - 1), static_cast<char>('a' + p));
    }
    test::setzeAuswahl(s, "0-33");
    werteAus(s, false);
    return s;
}

struct Seitenfall {
    const char* saison;
    int spieler, namenslaenge;
    int zeilen;  // matches of a matchday
    bool quer;
    int schrift;  // points of the grid
};

void PrintTo(const Seitenfall& f, std::ostream* aus) {
    *aus << f.saison << ", " << f.spieler << " Spieler";
}

class Seite : public testing::TestWithParam<Seitenfall> {};

TEST_P(Seite, JedesSpielEineZeileAllesInnerhalbDerRaender) {
    const Seitenfall f = GetParam();
    for (const Bogenart art : {Bogenart::Auswertung, Bogenart::Live, Bogenart::Tippabgabe}) {
        const Zeichnung z =
            zeichneBogen(erstelleBogen(saisonspiel(f.saison, f.spieler, f.namenslaenge), 4, art, "1.1.2025"));
        EXPECT_EQ(anzahlTexte(z, "–"), f.zeilen);
        EXPECT_EQ(z.breite, f.quer ? A4Lang : A4Schmal);
        EXPECT_EQ(z.hoehe, f.quer ? A4Schmal : A4Lang);
        auto innen = [&](int x, int y) {
            return x >= Seitenrand && x <= z.breite - Seitenrand && y >= Seitenrand &&
                   y <= z.hoehe - Seitenrand;
        };
        for (const Linie& l : teile<Linie>(z))
            EXPECT_TRUE(innen(l.x1, l.y1) && innen(l.x2, l.y2));
        for (const Rechteck& r : teile<Rechteck>(z))
            EXPECT_TRUE(innen(r.x1, r.y1) && innen(r.x2, r.y2));
        for (const Text& t : teile<Text>(z)) {
            // Every text fits its box, and the box lies on the page.
            EXPECT_TRUE(innen(t.x, t.y) && innen(t.x + t.breite, t.y + t.groesse * 20)) << t.text;
            EXPECT_LE(grafik::geschaetzteTextbreite(t.text, t.groesse, t.fett), t.breite) << t.text;
            if (t.text == "Heim") {
                EXPECT_EQ(t.groesse, f.schrift);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Saisons, Seite,
    testing::Values(Seitenfall{test::Saison18, 2, 5, 9, false, 10},  // narrow enough for portrait
                    Seitenfall{test::Saison20, 6, 5, 10, true, 10},  // landscape
                    Seitenfall{test::Saison18, 9, 8, 9, true, 7}),   // long names: a smaller font
    [](const testing::TestParamInfo<Seitenfall>& i) {
        return std::string(i.param.zeilen == 9 ? "Teams18_" : "Teams20_") + std::to_string(i.param.spieler) +
               "Spieler";
    });

}  // namespace
}  // namespace kalimbo
