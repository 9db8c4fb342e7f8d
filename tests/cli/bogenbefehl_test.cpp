#include <gtest/gtest.h>

#include "scoring/anzeige.h"

#include <regex>

#include "cli/aufruf.h"
#include "cli/lauf.h"
#include "kurzesspiel.h"
#include "reports/bogenhtml.h"

namespace kalimbo::cli {
namespace {

using test::erwarteFehlendeDatei;
using test::Lauf;
using test::starte;

std::string ohneDatum(const std::string& html) {
    return std::regex_replace(html, std::regex("\\d\\d\\.\\d\\d\\.\\d\\d\\d\\d"), "TT.MM.JJJJ");
}

class CliHtml : public testing::Test {
  protected:
    void SetUp() override { test::speichereSpiel(test::kurzesSpiel(), pfad); }
    // The page of matchday `spieltag` (0-based) of the game as the window shows it.
    std::string seite(int spieltag, Bogenart art) const {
        return bogenAlsHtml(erstelleBogen(ladeWieGezeigt(pfad), spieltag, art, "TT.MM.JJJJ"));
    }
    test::TempOrdner ordner;
    const std::string pfad = (ordner / "klein.tip").string();
};

TEST_F(CliHtml, SpieltagUndArtMitIhrenVorgaben) {
    const std::vector<std::tuple<std::vector<std::string>, int, Bogenart>> faelle{
        {{}, 1, Bogenart::Auswertung},  // the last selected matchday
        {{"--spieltag", "1"}, 0, Bogenart::Auswertung},
        {{"--art", "live", "--spieltag", "3"}, 2, Bogenart::Live},
        {{"--art", "tippabgabe"}, 1, Bogenart::Tippabgabe},
        {{"--art", "auswertung"}, 1, Bogenart::Auswertung},
    };
    for (const auto& [optionen, spieltag, art] : faelle) {
        std::vector<std::string> aufruf{"html", pfad};
        aufruf.insert(aufruf.end(), optionen.begin(), optionen.end());
        const Lauf lauf = starte(aufruf);
        EXPECT_EQ(lauf.code, 0);
        EXPECT_EQ(lauf.fehler, "");
        EXPECT_EQ(ohneDatum(lauf.aus), seite(spieltag, art)) << testing::PrintToString(optionen);
    }
}

TEST_F(CliHtml, FehlerUndFalscherAufruf) {
    erwarteFehlendeDatei({"html", (ordner / "fehlt.tip").string()});
    const std::vector<std::pair<std::vector<std::string>, std::string>> falsch{
        {{"html"}, "Falsche Anzahl von Angaben."},
        {{"html", pfad, "--art", "Live"}, "--art erwartet auswertung, live oder tippabgabe, nicht „Live“."},
        {{"html", pfad, "--spieltag", "4"}, "--spieltag muss eine ganze Zahl von 1 bis 3 sein, nicht „4“."},
        {{"html", pfad, "--spieltag", "0"}, "--spieltag muss eine ganze Zahl von 1 bis 3 sein, nicht „0“."},
        {{"html", pfad, "--spieltag"}, "Der Option --spieltag fehlt ihr Wert."},
        {{"html", pfad, "--alle"}, "Unbekannte Option --alle."},
    };
    for (const auto& [aufruf, meldung] : falsch) {
        const Lauf l = starte(aufruf);
        EXPECT_EQ(l.code, 2) << testing::PrintToString(aufruf);
        EXPECT_EQ(l.aus, "");
        EXPECT_EQ(l.fehler.rfind(meldung + "\nAufruf: kalimbo-cli", 0), 0u) << l.fehler;
    }
}

}  // namespace
}  // namespace kalimbo::cli
