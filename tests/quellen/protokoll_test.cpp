// The season data end to end through kalimbo-cli: tests/data/quellen/protokoll.txt holds command
// lines ("$ ...") each followed by what it prints; a refused command's error output follows as
// "! ..." lines (only the first for wrong usage) and its exit code, and must leave every file as
// it was. DATEN, GEMEINSAM and TMP stand for tests/data/quellen, ../shared/data/quellen and a
// fresh folder. KALIMBO_PROTOKOLL_SCHREIBEN=1 writes the output of a run to the file instead.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <fstream>
#include <map>

#include "cli/lauf.h"
#include "quellen/quelle.h"
#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

namespace fs = std::filesystem;

std::string ersetzt(std::string text, const std::string& was, const std::string& durch) {
    for (auto pos = text.find(was); pos != std::string::npos; pos = text.find(was, pos + durch.size()))
        text.replace(pos, was.size(), durch);
    return text;
}

// The arguments of a command line; double quotes hold spaces.
std::vector<std::string> argumente(const std::string& zeile) {
    std::vector<std::string> args;
    bool zitat = false, neu = true;
    for (const char c : zeile) {
        if (c == '"') zitat = !zitat;
        if (c == ' ' && !zitat) neu = true;
        if (c == '"' || (c == ' ' && !zitat)) continue;
        if (neu) args.emplace_back();
        neu = false;
        args.back() += c;
    }
    return args;
}

std::map<fs::path, std::string> dateien(const fs::path& ordner) {
    std::map<fs::path, std::string> inhalt;
    for (const auto& e : fs::directory_iterator(ordner))
        if (e.is_regular_file()) inhalt[e.path()] = test::leseBytes(e.path());
    return inhalt;
}

TEST(Quellen, Protokoll) {
    test::TempOrdner tmp;
    ASSERT_EQ(mkfifo((tmp / "fifo").c_str(), 0600), 0);
    test::schreibeBytes(tmp / "riesig.csv", std::string(GroessteSaisondatei + 1, '\n'));
    const std::vector<std::pair<std::string, std::string>> orte{
        {"DATEN", KALIMBO_TEST_DATA "/quellen"},
        {"GEMEINSAM", test::gemeinsameDaten("quellen").string()},
        {"TMP", tmp.pfad().string()}};
    const std::string golden = test::testdatei("quellen/protokoll.txt");
    std::string ist;
    std::istringstream ein(golden);
    for (std::string zeile; std::getline(ein, zeile);) {
        if (!zeile.starts_with("$ ")) continue;
        std::vector<std::string> args = argumente(zeile.substr(2));
        for (auto& arg : args)
            for (const auto& [name, ort] : orte)
                if (arg.starts_with(name + "/")) arg = ort + arg.substr(name.size());
        const auto vorher = dateien(tmp.pfad());
        test::Lauf lauf = test::starte(args);
        for (const auto& [name, ort] : orte) {
            lauf.aus = ersetzt(lauf.aus, ort, name);
            lauf.fehler = ersetzt(lauf.fehler, ort, name);
        }
        ist += zeile + "\n" + lauf.aus;
        if (lauf.code == 0) continue;
        std::istringstream fehler(lauf.fehler);
        for (std::string f; std::getline(fehler, f) && !(lauf.code == 2 && f.starts_with("Aufruf:"));)
            ist += "! " + f + "\n";
        ist += "Rückgabewert " + std::to_string(lauf.code) + "\n";
        EXPECT_EQ(dateien(tmp.pfad()), vorher) << zeile;
    }
    if (std::getenv("KALIMBO_PROTOKOLL_SCHREIBEN"))
        test::schreibeBytes(KALIMBO_TEST_DATA "/quellen/protokoll.txt", ist);
    EXPECT_EQ(ist, golden);
}

// Only the results change: tips, players, rule, selection, current matchday, colours and coach
// periods of the sample game stay as they were.
TEST(Quellen, ErgebnisseAendernNurErgebnisse) {
    test::TempOrdner tmp;
    const std::string spiel = KALIMBO_SAMPLE_DATA "/bundesliga-2005-06.tip";
    const std::string neu = (tmp / "neu.tip").string();
    const auto lauf =
        test::starte({"ergebnisse", spiel, test::gemeinsameDaten("de1-2005-06.matches.csv"), neu});
    ASSERT_EQ(lauf.code, 0) << lauf.fehler;
    EXPECT_NE(lauf.aus.find("Vollständige Spieltage: 1-34"), std::string::npos) << lauf.aus;
    const Dateiinhalt vorher = ladeSpieldatei(spiel);
    Dateiinhalt nachher = ladeSpieldatei(neu);
    EXPECT_NE(nachher.ErgebnisDatei, vorher.ErgebnisDatei);
    nachher.ErgebnisDatei = vorher.ErgebnisDatei;
    EXPECT_EQ(nachher, vorher);
}

}  // namespace
}  // namespace kalimbo
