#include <gtest/gtest.h>

#include "scoring/anzeige.h"

#include "cli/aufruf.h"
#include "cli/lauf.h"
#include "graph/punktegrafik.h"
#include "graph/svg.h"
#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo::cli {
namespace {

// A season of two matchdays with one match each, 2:1 and 0:0, both counted, under the 3-2-1 rule.
// Anna takes part and tips 2:1 (3 points) and 1:1 (1 point): totals 3 and 4, the scale top 4 and
// s = 7715 / 7 = 1102. Bernd tips the same but does not take part; his points of the shown
// matchday read -1.
std::string kleinesSpiel(const test::TempOrdner& ordner) {
    Dateiinhalt d;
    d.AnzSpieltage = 1;
    d.AnzSpiele = 0;
    d.AnzTeams = 1;
    d.Teamname[0] = "Aue";
    d.Teamname[1] = "Bonn";
    d.Paarung[0][0] = {{0, 1}};
    d.Paarung[1][0] = {{1, 0}};
    d.ErgebnisDatei[0][0] = {{2, 1}};
    d.ErgebnisDatei[1][0] = {{0, 0}};
    d.SptgAuswerten[0] = d.SptgAuswerten[1] = 1;
    d.Spielername[0] = "Anna";
    d.Spielername[1] = "Bernd";
    d.Teilnehmer = {{1, 0, 0, 0, 0, 0, 0, 0, 0}};
    d.Spielerfarbe[0] = rgb(200, 0, 10);
    for (int p : {0, 1}) {
        d.TippDatei[p][0][0] = {{2, 1}};
        d.TippDatei[p][1][0] = {{1, 1}};
    }
    const std::string pfad = (ordner / "klein.tip").string();
    speichereSpieldatei(pfad, d);
    return pfad;
}

// Columns and grid of the two matchdays, as every view starts.
const std::string Grund =
    "rechteck\t0\t7815\t6460\t0\t#E0E0E0\n"
    "rechteck\t6460\t7815\t12920\t0\t#EFEFEF\n"
    "linie\t0\t7665\t12920\t7665\t#F4F4F4\n"
    "linie\t0\t7185\t12920\t7185\t#F4F4F4\n"
    "linie\t0\t6705\t12920\t6705\t#F4F4F4\n"
    "linie\t0\t6225\t12920\t6225\t#F4F4F4\n"
    "linie\t0\t5745\t12920\t5745\t#F4F4F4\n"
    "linie\t0\t5265\t12920\t5265\t#F4F4F4\n"
    "linie\t0\t4785\t12920\t4785\t#F4F4F4\n"
    "linie\t0\t4305\t12920\t4305\t#F4F4F4\n"
    "linie\t0\t3825\t12920\t3825\t#F4F4F4\n"
    "linie\t0\t3345\t12920\t3345\t#F4F4F4\n"
    "linie\t0\t2865\t12920\t2865\t#F4F4F4\n"
    "linie\t0\t2385\t12920\t2385\t#F4F4F4\n"
    "linie\t0\t1905\t12920\t1905\t#F4F4F4\n"
    "linie\t0\t1425\t12920\t1425\t#F4F4F4\n"
    "linie\t0\t945\t12920\t945\t#F4F4F4\n"
    "linie\t0\t465\t12920\t465\t#F4F4F4\n"
    "linie\t0\t-15\t12920\t-15\t#F4F4F4\n";

const std::string Legende =
    "legende\t0\tAnna  \t#C8000A\t4\t0\n"
    "legende\t1\t      ---\t-\t-\t-\n"
    "legende\t2\t      ---\t-\t-\t-\n"
    "legende\t3\t      ---\t-\t-\t-\n"
    "legende\t4\t      ---\t-\t-\t-\n"
    "legende\t5\t      ---\t-\t-\t-\n"
    "legende\t6\t      ---\t-\t-\t-\n"
    "legende\t7\t      ---\t-\t-\t-\n"
    "legende\t8\t      ---\t-\t-\t-\n";

struct Ausgabe {
    const char* name;
    std::vector<std::string> optionen;
    std::string text;
};

class CliGrafik : public testing::TestWithParam<Ausgabe> {};

TEST_P(CliGrafik, ZeilenJeTeil) {
    test::TempOrdner ordner;
    std::vector<std::string> aufruf{"grafik", kleinesSpiel(ordner)};
    aufruf.insert(aufruf.end(), GetParam().optionen.begin(), GetParam().optionen.end());
    const test::Lauf l = test::starte(aufruf);
    EXPECT_EQ(l.code, 0);
    EXPECT_EQ(l.fehler, "");
    EXPECT_EQ(l.aus, Grund + GetParam().text + Legende);
}

INSTANTIATE_TEST_SUITE_P(Ansichten, CliGrafik,
                         testing::Values(Ausgabe{"Gesamtpunkte",
                                                 {},
                                                 "rechteck\t3180\t4409\t3280\t4309\t#C8000A\n"
                                                 "rechteck\t9640\t3307\t9740\t3207\t#C8000A\n"
                                                 "linie\t3230\t4359\t9690\t3257\t#C8000A\n"},
                                         Ausgabe{"GesamtpunkteMitZahlen",
                                                 {"--zahlen", "--ansicht", "0"},
                                                 "rechteck\t3180\t4409\t3280\t4309\t#C8000A\n"
                                                 "text\t3280\t4309\t#C8000A\tMS Serif\t8\tnormal\t3\n"
                                                 "rechteck\t9640\t3307\t9740\t3207\t#C8000A\n"
                                                 "text\t9740\t3207\t#C8000A\tMS Serif\t8\tnormal\t4\n"
                                                 "linie\t3230\t4359\t9690\t3257\t#C8000A\n"},
                                         Ausgabe{
                                             "Spieltagspunkte",
                                             {"--ansicht", "1"},
                                             "rechteck\t3080\t6375\t3380\t6075\t#C8000A\n"
                                             "text\t3120\t6075\t#FFFFFF\tMS Sans Serif\t10\tfett\t3\n"
                                             "rechteck\t9540\t7335\t9840\t7035\t#C8000A\n"
                                             "text\t9580\t7035\t#FFFFFF\tMS Sans Serif\t10\tfett\t1\n"
                                             "text\t11200\t7545\t#AEAEAE\tMS Sans Serif\t10\tnormal\t0\n"
                                             "text\t11200\t7065\t#AEAEAE\tMS Sans Serif\t10\tnormal\t1\n"
                                             "text\t11200\t6585\t#AEAEAE\tMS Sans Serif\t10\tnormal\t2\n"
                                             "text\t11200\t6105\t#AEAEAE\tMS Sans Serif\t10\tnormal\t3\n"
                                             "text\t11200\t5625\t#AEAEAE\tMS Sans Serif\t10\tnormal\t4\n"
                                             "text\t11200\t5145\t#AEAEAE\tMS Sans Serif\t10\tnormal\t5\n"
                                             "text\t11200\t4665\t#AEAEAE\tMS Sans Serif\t10\tnormal\t6\n"
                                             "text\t11200\t4185\t#AEAEAE\tMS Sans Serif\t10\tnormal\t7\n"
                                             "text\t11200\t3705\t#AEAEAE\tMS Sans Serif\t10\tnormal\t8\n"
                                             "text\t11200\t3225\t#AEAEAE\tMS Sans Serif\t10\tnormal\t9\n"
                                             "text\t11200\t2745\t#AEAEAE\tMS Sans Serif\t10\tnormal\t10\n"
                                             "text\t11200\t2265\t#AEAEAE\tMS Sans Serif\t10\tnormal\t11\n"
                                             "text\t11200\t1785\t#AEAEAE\tMS Sans Serif\t10\tnormal\t12\n"
                                             "text\t11200\t1305\t#AEAEAE\tMS Sans Serif\t10\tnormal\t13\n"
                                             "text\t11200\t825\t#AEAEAE\tMS Sans Serif\t10\tnormal\t14\n"
                                             "text\t11200\t345\t#AEAEAE\tMS Sans Serif\t10\tnormal\t15\n"}),
                         [](const auto& info) { return info.param.name; });

// The SVG's format is the core's (tested there); here: the same drawing, numbers included.
TEST(CliGrafikSvg, DieselbeZeichnungAlsSvg) {
    test::TempOrdner ordner;
    const std::string pfad = kleinesSpiel(ordner);
    const test::Lauf l = test::starte({"grafik", pfad, "--svg", "--zahlen"});
    EXPECT_EQ(l.code, 0);
    EXPECT_EQ(l.fehler, "");
    const Spielstand spiel = ladeWieGezeigt(pfad);
    grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
    ansicht.PunkteZeigen.fill(true);
    EXPECT_EQ(l.aus, grafik::alsSvg(grafik::punktegrafik(spiel, 1, ansicht)));
}

TEST(CliGrafikFehler, FalscheAngabenUndFehlendeDatei) {
    test::TempOrdner ordner;
    const std::string spiel = kleinesSpiel(ordner);
    for (const std::vector<std::string>& aufruf :
         std::vector<std::vector<std::string>>{{"grafik"},
                                               {"grafik", spiel, spiel},
                                               {"grafik", spiel, "--ansicht"},
                                               {"grafik", spiel, "--farbe"}}) {
        const test::Lauf l = test::starte(aufruf);
        EXPECT_EQ(l.code, 2);
        EXPECT_EQ(l.aus, "");
    }
    const test::Lauf ansicht = test::starte({"grafik", spiel, "--ansicht", "2"});
    EXPECT_EQ(ansicht.code, 2);
    EXPECT_EQ(ansicht.fehler.substr(0, ansicht.fehler.find('\n')),
              "--ansicht muss eine ganze Zahl von 0 bis 1 sein, nicht „2“.");

    const test::Lauf fehlt = test::starte({"grafik", (ordner / "fehlt.tip").string()});
    EXPECT_EQ(fehlt.code, 1);
    EXPECT_EQ(fehlt.aus, "");
    EXPECT_EQ(fehlt.fehler.rfind("Fehler: Die Datei „", 0), 0u) << fehlt.fehler;
}

}  // namespace
}  // namespace kalimbo::cli
