#include "state/spieldatei.h"

#include <gtest/gtest.h>

#include <sstream>

#include "kurzesspiel.h"
#include "state/dateifelder.h"

namespace kalimbo {
namespace {

Dateiinhalt lies(const std::string& bytes) {
    std::istringstream ein(bytes);
    return leseSpieldatei(ein, "test.tip");
}

// A game that uses every field with values that are easy to get wrong: umlauts and the euro sign, negative
// numbers, colours with the high bit set, coach records, tips of every player. Its bytes are the golden file
// spieldateien/voll.tip.
Dateiinhalt volleDatei() {
    Dateiinhalt d = test::kleinesSpiel(20);
    d.Spielername = {{"Jürgen", "Bärbel", "€uro-Ölf", "", "Zoë", "x", "Œuvre", "y", "Ähm"}};
    for (int p = 0; p < MaxSpieler; ++p)
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            for (int k = 0; k < MaxSpiele; ++k)
                d.TippDatei[p][tag][k] = {
                    {static_cast<i16>((p + tag + k) % 5), static_cast<i16>((p * tag + k) % 4)}};
    d.ErgebnisDatei[37][9] = {{-3, 32767}};
    d.ErgebnisDatei[0][1] = {{258, 1}};
    d.SptgAuswerten[5] = 1;
    d.SptgAuswerten[37] = -1;
    d.AktSpieltagGlobal = 21;
    d.SonntagSpiele = {{7, 8}};
    d.Teilnehmer = {{1, 0, -1, 1, 1, 0, 0, 1, 1}};
    d.Spielerfarbe[3] = static_cast<Farbe>(0x8000000F);
    d.TabFarbe[0] = rgb(1, 2, 3);
    d.LigaInfo = {{"Premier League 2010/11", "zweite Zeile"}};
    d.Modus = 3;
    d.ModusPunkte = {{5, -2, 1}};
    d.Trainerwechsel[0] = {1, "Hütter (Frankfurt)", 0, 12};
    d.Trainerwechsel[9] = {-1, "offen", 13, 99};
    return d;
}

TEST(Spieldatei, GoldeneDateiHinUndZurueck) {
    const Dateiinhalt d = volleDatei();
    const std::string bytes = test::testdatei("spieldateien/voll.tip");
    EXPECT_EQ(kodiereSpieldatei(d), bytes);
    EXPECT_EQ(lies(bytes), d);
    EXPECT_EQ(lies(bytes + "Reste einer älteren, längeren Datei"), d);
    EXPECT_EQ(kodiereSpieldatei(Dateiinhalt{}).size(), 17148u);
}

TEST(Spieldatei, JedeVerkuerzteDateiWirdAbgelehntUndDasSpielBleibt) {
    const std::string bytes = kodiereSpieldatei(volleDatei());
    Spielstand spiel = test::kurzesSpiel();
    const Spielstand vorher = spiel;
    for (std::size_t laenge = 0; laenge < bytes.size(); ++laenge)
        ASSERT_NE(test::fehler([&] {
                      spiel.oeffne(lies(bytes.substr(0, laenge)));
                  }).find("„test.tip“ ist beschädigt oder keine Tippspiel-Datei"),
                  std::string::npos)
            << laenge;
    EXPECT_EQ(kodiereSpieldatei(spiel), kodiereSpieldatei(vorher));
    EXPECT_EQ(spiel.Ergebnis, vorher.Ergebnis);
}

TEST(Spieldatei, HoechstensSoVielWieDieGroessteSpieldateiWirdGelesen) {
    struct LangeTexte {
        void zahl(i16&) {}
        void farbe(Farbe&) {}
        void text(std::string& s) { s.assign(32767, 'a'); }
    } lang;
    Dateiinhalt groesste;
    datei::besucheFelder(groesste, lang);
    const std::string bytes = kodiereSpieldatei(groesste);
    EXPECT_EQ(lies(bytes), groesste);
    EXPECT_EQ(test::fehler([&] { lies(bytes + '\0'); }),
              "Die Datei „test.tip“ ist beschädigt oder keine Tippspiel-Datei: sie ist größer als jede "
              "Tippspiel-Datei (höchstens " +
                  std::to_string(bytes.size()) + " Bytes).");

    // 50 MB of zeros would read as a game with empty texts; it is refused after reading no more than the
    // largest game file (and the next piece).
    std::istringstream ein(std::string(50'000'000, '\0'));
    EXPECT_THROW(leseSpieldatei(ein, "test.tip"), Dateifehler);
    ein.clear();
    EXPECT_LE(static_cast<std::size_t>(ein.tellg()), bytes.size() + 65536);
}

TEST(Spieldatei, UngueltigeWerteWerdenAbgelehnt) {
    const std::vector<std::pair<std::function<void(Dateiinhalt&)>, std::string>> faelle{
        {[](Dateiinhalt& d) { d.AnzTeams = 20; }, "Mannschaften ist 20"},
        {[](Dateiinhalt& d) { d.AnzSpieltage = 38; }, "Spieltage ist 38"},
        {[](Dateiinhalt& d) { d.AnzSpiele = 10; }, "Spiele ist 10"},
        {[](Dateiinhalt& d) { d.AnzSpieler = 9; }, "Spieler ist 9"},
        {[](Dateiinhalt& d) { d.AnzTeams = -1; }, "Mannschaften ist -1"},
        {[](Dateiinhalt& d) { d.Paarung[33][8][1] = 20; }, "Spiel 9 des 34. Spieltags"},
        {[](Dateiinhalt& d) { d.Paarung[0][0][0] = -1; }, "Mannschaft -1"},
    };
    for (const auto& [aendern, grund] : faelle) {
        Dateiinhalt d = test::saison(test::Saison18);
        aendern(d);
        EXPECT_NE(test::fehler([&] { lies(kodiereSpieldatei(d)); }).find(grund), std::string::npos) << grund;
    }
    std::string bytes = kodiereSpieldatei(Dateiinhalt{});
    bytes.replace(0, 2, "\xFF\xFF");  // a text length of -1
    EXPECT_NE(test::fehler([&] { lies(bytes); }).find("ein Text hat die negative Länge -1."),
              std::string::npos);

    Dateiinhalt d = test::saison(test::Saison18);
    d.Spielername[2] = "Łukasz";  // refused before anything is written
    EXPECT_NE(test::fehler([&] { kodiereSpieldatei(d); }).find("„Łukasz“ enthält das Zeichen „Ł“ (U+0141)"),
              std::string::npos);
    d.Spielername[2] = "";
    d.Paarung[34][0][0] = 77;  // beyond the 34 matchdays: never read by anything
    d.Paarung[0][9][1] = -5;   // tenth match in a nine-match league
    EXPECT_EQ(lies(kodiereSpieldatei(d)), d);
}

}  // namespace
}  // namespace kalimbo
