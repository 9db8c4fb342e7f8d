#include <gtest/gtest.h>

#include <map>

#include "cli/lauf.h"
#include "kurzesspiel.h"
#include "reports/haeufigkeiten.h"

namespace kalimbo::cli {
namespace {

using test::erwarteFehlendeDatei;
using test::Lauf;
using test::starte;

TEST(CliHaeufigkeiten, EineZeileJeErgebnisMitDenTippsDerTeilnehmer) {
    test::TempOrdner ordner;
    Spielstand spiel = test::kurzesSpiel();
    spiel.Spielername[0] = "Jürgen";
    test::speichereSpiel(spiel, ordner / "klein.tip");
    // Bernd (slot 1) does not take part and has no column.
    const std::map<std::string, std::string> ungleichNull{
        {"0:0", "1\t0\t3"}, {"0:3", "1\t0\t1"}, {"1:0", "0\t1\t0"},   {"1:1", "1\t0\t2"},
        {"2:1", "2\t3\t0"}, {"3:3", "0\t1\t0"}, {"andere", "1\t1\t0"}};
    std::string erwartet = "Ergebnis\tAnzahl\tJürgen\tCarl\n";
    for (int k = 0; k < AnzErgebnisklassen; ++k) {
        const auto zeile = ungleichNull.find(klassenName(k));
        erwartet += klassenName(k) + '\t' + (zeile == ungleichNull.end() ? "0\t0\t0" : zeile->second) + '\n';
    }
    const Lauf lauf = starte({"haeufigkeiten", (ordner / "klein.tip").string()});
    EXPECT_EQ(lauf.code, 0);
    EXPECT_EQ(lauf.fehler, "");
    EXPECT_EQ(lauf.aus, erwartet);
}

TEST(CliHaeufigkeiten, FehlerUndFalscherAufruf) {
    test::TempOrdner ordner;
    erwarteFehlendeDatei({"haeufigkeiten", (ordner / "fehlt.tip").string()});
    for (const std::vector<std::string>& aufruf : std::vector<std::vector<std::string>>{
             {"haeufigkeiten"}, {"haeufigkeiten", "a.tip", "b.tip"}, {"haeufigkeiten", "a.tip", "--alle"}}) {
        const Lauf l = starte(aufruf);
        EXPECT_EQ(l.code, 2) << testing::PrintToString(aufruf);
        EXPECT_NE(l.fehler.find("Aufruf: kalimbo-cli"), std::string::npos);
    }
}

}  // namespace
}  // namespace kalimbo::cli
