#include "state/trainerdatei.h"

#include <gtest/gtest.h>

#include <sstream>

#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

std::string zahl(i16 z) {
    return {static_cast<char>(z & 0xFF), static_cast<char>((z >> 8) & 0xFF)};
}

// Ten records as the file holds them: record i runs from matchday 3i to 3i + 2; record 5 is not active,
// record 9 is open-ended and record 2 has a name with an umlaut (Windows-1252). `vierter` replaces record 3
// by (active, from, to).
std::string datensaetze(std::array<i16, 3> vierter = {1, 9, 11}) {
    std::string bytes;
    for (int i = 0; i < 10; ++i) {
        const std::string name = i == 2 ? "J\xFCrgen" : "Trainer " + std::to_string(i);
        const auto [aktiv, von, bis] =
            i == 3 ? vierter
                   : std::array<i16, 3>{static_cast<i16>(i == 5 ? 0 : 1), static_cast<i16>(3 * i),
                                        static_cast<i16>(i == 9 ? 99 : 3 * i + 2)};
        bytes += zahl(aktiv) + zahl(static_cast<i16>(name.size())) + name + zahl(von) + zahl(bis);
    }
    return bytes;
}

Trainerwechseldaten lies(const std::string& bytes) {
    std::istringstream ein(bytes);
    return leseTrainerdatei(ein, "trainer.tip");
}

std::string fehlertext(const std::string& bytes) {
    return test::fehler([&] { lies(bytes); });
}

TEST(Trainerdatei, LiestZehnDatensaetzeVomErstenByteAnWieDasLetzteFeldDerSpieldatei) {
    Dateiinhalt d;
    for (int i = 0; i < 10; ++i)
        d.Trainerwechsel[i] = {static_cast<i16>(i == 5 ? 0 : 1),
                               i == 2 ? "Jürgen" : "Trainer " + std::to_string(i), static_cast<i16>(3 * i),
                               static_cast<i16>(i == 9 ? 99 : 3 * i + 2)};
    EXPECT_EQ(lies(datensaetze() + "was danach folgt, zählt nicht"), d.Trainerwechsel);
    EXPECT_TRUE(kodiereSpieldatei(d).ends_with(datensaetze()));
    test::TempOrdner ordner;
    test::schreibeBytes(ordner / "trainer.dat", datensaetze());
    EXPECT_EQ(ladeTrainerdatei(ordner / "trainer.dat"), d.Trainerwechsel);
}

TEST(Trainerdatei, ZuKurzeDateiWirdAbgelehnt) {
    const std::string bytes = datensaetze();
    for (std::size_t laenge = 0; laenge < bytes.size(); ++laenge)
        EXPECT_NE(fehlertext(bytes.substr(0, laenge)), "") << laenge;
    const std::string vorn = "Die Datei „trainer.tip“ enthält keine Trainerwechsel-Daten: ";
    EXPECT_EQ(fehlertext(""), vorn + "sie endet im 1. der zehn Datensätze.");
    EXPECT_EQ(fehlertext(bytes.substr(0, bytes.size() - 1)), vorn + "sie endet im 10. der zehn Datensätze.");
    EXPECT_EQ(fehlertext(zahl(1) + zahl(-2) + std::string(100, 'x')),
              vorn + "ein Text hat die negative Länge -2.");
}

TEST(Trainerdatei, SpieltageEinesAktivenDatensatzesWerdenGeprueft) {
    const std::string beginnt = "der 4. Trainerwechsel beginnt mit dem Spieltag-Index ",
                      endet = "der 4. Trainerwechsel endet mit dem Spieltag-Index ";
    const std::vector<std::pair<std::array<i16, 3>, std::string>> faelle{
        {{1, 0, 37}, ""},
        {{1, 37, 99}, ""},
        {{0, -7, 500}, ""},  // inactive: never shown, never selected
        {{-1, -1, 3}, beginnt + "-1 (erlaubt sind 0 bis 37)."},
        {{1, 38, 40}, beginnt + "38 (erlaubt sind 0 bis 37)."},
        {{1, 99, 99}, beginnt + "99 (erlaubt sind 0 bis 37)."},
        {{1, 0, 38}, endet + "38 (erlaubt sind 0 bis 37, für „bis heute“ 99)."},
        {{1, 0, -1}, endet + "-1 (erlaubt sind 0 bis 37, für „bis heute“ 99)."},
    };
    for (const auto& [datensatz, grund] : faelle)
        EXPECT_EQ(fehlertext(datensaetze(datensatz)),
                  grund.empty() ? "" : "Die Datei „trainer.tip“ enthält keine Trainerwechsel-Daten: " + grund)
            << datensatz[1] << ".." << datensatz[2];
}

}  // namespace
}  // namespace kalimbo
