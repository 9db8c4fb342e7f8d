#include <gtest/gtest.h>

#include <map>

#include "cli/lauf.h"
#include "reports/haeufigkeiten.h"
#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo::cli {
namespace {

using test::Lauf;
using test::starte;

// Four teams, two matches a matchday, matchday 0 selected and matchday 1 not. Jürgen and Carl take
// part, Bernd (slot 1) does not and has no column.
std::string kleinesSpiel(const test::TempOrdner& ordner) {
    Spielstand s;
    s.AnzTeams = 3;
    s.AnzSpiele = 1;
    s.AnzSpieltage = 1;
    for (int tag = 0; tag <= 1; ++tag)
        for (int spiel = 0; spiel <= 1; ++spiel)
            s.Paarung[tag][spiel] = {{static_cast<i16>(2 * spiel), static_cast<i16>(2 * spiel + 1)}};
    test::setzeErgebnisse(s, 0, "1:0 12:1");
    test::setzeErgebnisse(s, 1, "1:0 1:0");
    test::setzeTipps(s, 0, 0, "1:0 0:0");
    test::setzeTipps(s, 1, 0, "5:5 5:5");
    test::setzeTipps(s, 2, 0, "2:2 1:0");
    s.Spielername = {{"Jürgen", "Bernd", "Carl"}};
    s.Teilnehmer = {{1, 0, 1, 0, 0, 0, 0, 0, 0}};
    test::setzeAuswahl(s, "0");
    s.kopiereArbeitInDatei();
    const std::string pfad = (ordner / "klein.tip").string();
    speichereSpieldatei(pfad, s);
    return pfad;
}

TEST(CliHaeufigkeiten, EineZeileJeErgebnisMitDenTippsDerTeilnehmer) {
    test::TempOrdner ordner;
    const std::map<std::string, std::string> ungleichNull{
        {"0:0", "0\t1\t0"}, {"1:0", "1\t1\t1"}, {"2:2", "0\t0\t1"}, {"andere", "1\t0\t0"}};
    std::string erwartet = "Ergebnis\tAnzahl\tJürgen\tCarl\n";
    for (int k = 0; k < AnzErgebnisklassen; ++k) {
        const auto zeile = ungleichNull.find(klassenName(k));
        erwartet += klassenName(k) + '\t' + (zeile == ungleichNull.end() ? "0\t0\t0" : zeile->second) + '\n';
    }
    const Lauf lauf = starte({"haeufigkeiten", kleinesSpiel(ordner)});
    EXPECT_EQ(lauf.code, 0);
    EXPECT_EQ(lauf.fehler, "");
    EXPECT_EQ(lauf.aus, erwartet);
}

TEST(CliHaeufigkeiten, FehlerUndFalscherAufruf) {
    test::TempOrdner ordner;
    const Lauf fehlt = starte({"haeufigkeiten", (ordner / "fehlt.tip").string()});
    EXPECT_EQ(fehlt.code, 1);
    EXPECT_EQ(fehlt.aus, "");
    EXPECT_EQ(fehlt.fehler.rfind("Fehler: Die Datei „", 0), 0u) << fehlt.fehler;
    for (const std::vector<std::string>& aufruf : std::vector<std::vector<std::string>>{
             {"haeufigkeiten"}, {"haeufigkeiten", "a.tip", "b.tip"}, {"haeufigkeiten", "a.tip", "--alle"}}) {
        const Lauf l = starte(aufruf);
        EXPECT_EQ(l.code, 2) << testing::PrintToString(aufruf);
        EXPECT_NE(l.fehler.find("Aufruf: kalimbo-cli"), std::string::npos);
    }
}

}  // namespace
}  // namespace kalimbo::cli
