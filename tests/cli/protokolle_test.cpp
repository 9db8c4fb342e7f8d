// kalimbo-cli end to end against golden transcripts under tests/data: command lines ("$ ...") each
// followed by what it prints; a refused command's error output follows as "! ..." lines (for wrong
// usage up to the first usage line) and its exit code, and must leave every file as it was. DATEN,
// GEMEINSAM and TMP stand for tests/data, ../shared/data and a fresh folder holding the files the
// transcript starts from; HEUTE for today's date. KALIMBO_PROTOKOLL_SCHREIBEN=1 writes the output of
// a run to the file instead.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <map>

#include "cli/lauf.h"
#include "kurzesspiel.h"
#include "quellen/quelle.h"
#include "reports/blattspiele.h"
#include "reports/spieltagsbogen.h"
#include "state/cp1252.h"

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

// A game of 20 teams in which every match ended 2:1, saved with the 3-2-1 rule but the points `punkte`;
// matchdays 0-9 selected, matchday 9 current with Sunday matches 0 and 1. Anna tips every match exactly,
// Bernd the margin, Carl the tendency, Dora misses; Emil to Ida tip exactly too but do not take part.
void speichereTippspiel(const fs::path& pfad, std::array<i16, 3> punkte) {
    Spielstand s = test::liga(std::vector<std::string>(20), 38, test::hinUndZurueck,
                              "Anna Bernd Carl Dora -Emil -Frida -Gustav -Hanna -Ida");
    const std::array<i16, 2> tipps[] = {{2, 1}, {3, 2}, {5, 0}, {0, 3}, {2, 1},
                                        {2, 1}, {2, 1}, {2, 1}, {2, 1}};
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel) {
            s.Ergebnis[tag][spiel] = {{2, 1}};
            for (int p = 0; p < MaxSpieler; ++p)
                s.Tipp[p][tag][spiel].werte = tipps[p];
        }
    test::setzeAuswahl(s, "0-9");
    s.AktSpieltagGlobal = 9;
    s.SonntagSpiele = {{0, 1}};
    s.ModusPunkte = {{punkte[0], punkte[1], punkte[2]}};
    test::speichereSpiel(s, pfad);
}

// The games of the commands' transcripts: klein.tip is the short game with Anna named Jürgen, kaputt.tip its
// first 5000 bytes; blatt20.tip the game of the 20-team golden sheets, ohne.tip the same without a current
// matchday, leer.tip with no matchday selected (the averages divide by zero) and wahr.tip with Bernd's tips
// equal to the results.
void spieleDerBefehle(const test::TempOrdner& tmp) {
    Spielstand s = test::kurzesSpiel();
    s.Spielername[0] = "Jürgen";
    test::speichereSpiel(s, tmp / "klein.tip");
    test::schreibeBytes(tmp / "kaputt.tip", test::leseBytes(tmp / "klein.tip").substr(0, 5000));
    speichereTippspiel(tmp / "tippspiel.tip", {5, 2, 1});
    speichereTippspiel(tmp / "ueberlauf.tip", {20000, 2, 1});
    s = test::blattspiel20();
    test::speichereSpiel(s, tmp / "blatt20.tip");
    s.AktSpieltagGlobal = KeinAktuellerSpieltag;
    test::speichereSpiel(s, tmp / "ohne.tip");
    s = test::blattspiel20();
    test::setzeAuswahl(s, "");
    test::speichereSpiel(s, tmp / "leer.tip");
    s = test::blattspiel20();
    s.Tipp[1] = s.Ergebnis;
    test::speichereSpiel(s, tmp / "wahr.tip");
}

// What the season data's transcript refuses besides its broken files: a pipe and a file one byte too large.
void dateienDerQuellen(const test::TempOrdner& tmp) {
    ASSERT_EQ(mkfifo((tmp / "fifo").c_str(), 0600), 0);
    test::schreibeBytes(tmp / "riesig.csv", std::string(GroessteSaisondatei + 1, '\n'));
}

struct Protokoll {
    const char* datei;
    void (*vorbereiten)(const test::TempOrdner&);
    friend void PrintTo(const Protokoll& p, std::ostream* aus) { *aus << p.datei; }
};
class Protokolle : public testing::TestWithParam<Protokoll> {};

TEST_P(Protokolle, GebenAusWasDieDateiZeigt) {
    const auto [datei, vorbereiten] = GetParam();
    test::TempOrdner tmp;
    vorbereiten(tmp);
    const std::vector<std::pair<std::string, std::string>> orte{{"DATEN", KALIMBO_TEST_DATA},
                                                                {"GEMEINSAM", KALIMBO_SHARED_DATA},
                                                                {"TMP", tmp.pfad().string()},
                                                                {"HEUTE", heutigesDatum()}};
    const std::string golden = test::testdatei(datei);
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
        for (std::string f; std::getline(fehler, f);) {
            ist += "! " + f + "\n";
            if (lauf.code == 2 && f.starts_with("Aufruf:")) break;
        }
        ist += "Rückgabewert " + std::to_string(lauf.code) + "\n";
        EXPECT_EQ(dateien(tmp.pfad()), vorher) << zeile;
    }
    if (std::getenv("KALIMBO_PROTOKOLL_SCHREIBEN"))
        test::schreibeBytes(std::string(KALIMBO_TEST_DATA "/") + datei, ist);
    EXPECT_EQ(ist, golden);
}

INSTANTIATE_TEST_SUITE_P(Daten, Protokolle,
                         testing::Values(Protokoll{"cli/befehle.txt", spieleDerBefehle},
                                         Protokoll{"cli/berichte.txt", spieleDerBefehle},
                                         Protokoll{"quellen/protokoll.txt", dateienDerQuellen}));

// The sheets in Windows-1252 are the same sheets, one byte per umlaut.
TEST(CliBerichte, Cp1252) {
    test::TempOrdner ordner;
    const std::string spiel = (ordner / "spiel.tip").string();
    test::speichereSpiel(test::blattspiel20(), spiel);
    for (const auto& aufruf : std::vector<std::vector<std::string>>{
             {"spielerinfo", spiel, "0"}, {"teaminfo", spiel, "2", "--komma"}, {"simulation", spiel, "0"}}) {
        auto mit = aufruf;
        mit.insert(mit.begin() + 1, "--cp1252");
        EXPECT_EQ(test::starte(mit), test::erfolg(textNachCp1252(test::starte(aufruf).aus)));
    }
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
