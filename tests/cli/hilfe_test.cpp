#include <gtest/gtest.h>

#include "lauf.h"

namespace kalimbo {
namespace {

using test::Lauf;
using test::starte;

const std::vector<std::string> Befehle{
    "info",        "neu",      "tabelle",    "spieler",    "zusammenfuehren", "haeufigkeiten", "html",
    "spielerinfo", "teaminfo", "simulation", "vorhersage", "grafik",          "ergebnisse"};

TEST(Hilfe, ListetJedenBefehlUndEndetMitNull) {
    for (const char* hilfe : {"--help", "-h"}) {
        const Lauf l = starte({hilfe});
        EXPECT_EQ(l.code, 0);
        EXPECT_EQ(l.fehler, "");
        for (const std::string& befehl : Befehle)
            EXPECT_NE(l.aus.find("\n  " + befehl + " "), std::string::npos) << befehl;
        EXPECT_NE(l.aus.find("--regel N"), std::string::npos);
        EXPECT_NE(l.aus.find("--cp1252"), std::string::npos);
    }
}

// A command's help names it and the options it takes, and runs nothing: the file need not exist.
TEST(Hilfe, ZuJedemBefehl) {
    for (const std::string& befehl : Befehle) {
        const Lauf l = starte({befehl, "fehlt.tip", "--help"});
        EXPECT_EQ(l.code, 0) << befehl;
        EXPECT_EQ(l.aus.rfind("Aufruf: kalimbo-cli " + befehl + " ", 0), 0u) << l.aus;
        EXPECT_EQ(l.aus.find("\n  info "), std::string::npos) << befehl;  // not every command
    }
    EXPECT_NE(starte({"tabelle", "--help"}).aus.find("--sonntag"), std::string::npos);
    EXPECT_EQ(starte({"info", "--help"}).aus.find("--sonntag"), std::string::npos);
    EXPECT_NE(starte({"spielerinfo", "-h"}).aus.find("--komma"), std::string::npos);
}

TEST(Hilfe, VersionUndFalscherAufruf) {
    const Lauf version = starte({"--version"});
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.aus, "kalimbo-cli Version: zorb 5.0.1 [04.08.2006]\n");
    const Lauf falsch = starte({"--hilfe"});
    EXPECT_EQ(falsch.code, 2);
    EXPECT_EQ(falsch.aus, "");
    EXPECT_NE(falsch.fehler.find("Aufruf: kalimbo-cli"), std::string::npos);
}

}  // namespace
}  // namespace kalimbo
