#include "quellen/zuordnung.h"

#include <gtest/gtest.h>

#include "testdaten.h"

namespace kalimbo {
namespace {

struct Fall {
    std::vector<std::string> namen;
    std::map<std::string, int> paare;
    std::string erwartet;  // "name=team" for a match, "name?kandidaten>vorschlag" for an open name
};

class Zuordnen : public testing::TestWithParam<Fall> {};

TEST_P(Zuordnen, NachPaarNameUndVereinsliste) {
    Dateiinhalt spiel;
    spiel.AnzTeams = 4;
    spiel.Teamname = {
        {"Eintracht Frankfurt", "FSV Frankfurt", "Kickers Offenbach", "1. FC Köln", "SV Fürth-Süd 1903"}};
    const Zuordnung z =
        ordneZu(GetParam().namen, spiel, ladeVereinsnamen(KALIMBO_SAMPLE_DATA "/vereine"), GetParam().paare);
    std::string ist = z.andereLiga.empty() ? "" : "andere Liga ";
    for (const auto& name : GetParam().namen) {
        if (z.team.count(name)) ist += name + "=" + std::to_string(z.team.at(name)) + " ";
        for (const auto& o : z.offen) {
            if (o.name != name) continue;
            ist += name + "?";
            for (const int k : o.kandidaten)
                ist += std::to_string(k);
            ist += ">" + std::to_string(o.vorschlag) + " ";
        }
    }
    EXPECT_EQ(ist, GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(
    Faelle, Zuordnen,
    testing::Values(
        Fall{{"Frankfurt", "Offenbach", "Koeln", "Fuerth Sued"},
             {},
             "Frankfurt?01>0 Offenbach=2 Koeln=3 Fuerth Sued=4 "},
        Fall{{"Frankfurt", "Eintracht Frankfurt"}, {}, "Frankfurt=1 Eintracht Frankfurt=0 "},
        Fall{{"Frankfurt", "Offenbach"}, {{"Frankfurt", 0}, {"Offenbach", 7}}, "Frankfurt=0 Offenbach=2 "},
        Fall{{"Köln", "FC Koln", "FSV Frankfurt 1899"}, {}, "Köln?3>3 FC Koln?3>3 FSV Frankfurt 1899=1 "},
        Fall{{"Eintracht Frankfurt", "Eintr. Frankfurt", "Koln", "Offenbach"},
             {},
             "Eintracht Frankfurt=0 Eintr. Frankfurt?>0 Koln=3 Offenbach=2 "},
        Fall{{"Arsenal", "Chelsea", "Frankfurt", "Köln"},
             {},
             "andere Liga Arsenal?>2 Chelsea?>2 Frankfurt?01>0 Köln=3 "}));

}  // namespace
}  // namespace kalimbo
