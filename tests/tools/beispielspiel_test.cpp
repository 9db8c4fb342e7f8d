#include "beispielspiel.h"

#include <gtest/gtest.h>

#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo::beispiel {
namespace {

// The shipped sample games are exactly what the generator builds today; if this fails, run
// scripts/beispiele and commit the new files.
TEST(Beispielspiele, DatenordnerIstAktuell) {
    for (const auto& v : vorgaben()) {
        Dateiinhalt saison = test::saison(v.saison);
        const std::string erwartet = kodiereSpieldatei(baue(saison, v));
        EXPECT_EQ(test::leseBytes(std::filesystem::path(KALIMBO_SAMPLE_DATA) / v.dateiname), erwartet)
            << v.dateiname << " is out of date";
    }
}

TEST(Beispielspiele, SaisonLaeuftBisZumAktuellenSpieltag) {
    for (const auto& v : vorgaben()) {
        const Dateiinhalt d = ladeSpieldatei(std::filesystem::path(KALIMBO_SAMPLE_DATA) / v.dateiname);
        const int aktuell = d.AktSpieltagGlobal;
        EXPECT_GT(aktuell, d.AnzSpieltage / 2) << "current matchday should lie in the second half";
        EXPECT_LT(aktuell, d.AnzSpieltage);
        int spieler = 0;
        for (int p = 0; p < MaxSpieler; ++p)
            spieler += d.Teilnehmer[p] == 1;
        EXPECT_GE(spieler, 4);
        EXPECT_LE(spieler, 6);
        for (int tag = 0; tag <= d.AnzSpieltage; ++tag) {
            EXPECT_EQ(d.SptgAuswerten[tag], tag <= aktuell ? 1 : 0);
            int tore = 0;
            for (int k = 0; k <= d.AnzSpiele; ++k)
                tore += d.ErgebnisDatei[tag][k][0] + d.ErgebnisDatei[tag][k][1];
            if (tag <= aktuell)
                EXPECT_GT(tore, 0) << "matchday " << tag + 1 << " has no results";
            else
                EXPECT_EQ(tore, 0) << "matchday " << tag + 1 << " lies in the future";
        }
    }
}

}  // namespace
}  // namespace kalimbo::beispiel
