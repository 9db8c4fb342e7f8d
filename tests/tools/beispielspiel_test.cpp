#include "beispielspiel.h"

#include <gtest/gtest.h>

#include <algorithm>

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

// Each sample game stands in the second half of its season with 4 to 6 players; the matchdays up to the
// current one are selected and have results, the later ones neither.
TEST(Beispielspiele, SaisonLaeuftBisZumAktuellenSpieltag) {
    for (const auto& v : vorgaben()) {
        const Dateiinhalt d = ladeSpieldatei(std::filesystem::path(KALIMBO_SAMPLE_DATA) / v.dateiname);
        const int aktuell = d.AktSpieltagGlobal;
        const auto spieler = std::count(d.Teilnehmer.begin(), d.Teilnehmer.end(), 1);
        EXPECT_TRUE(aktuell > d.AnzSpieltage / 2 && aktuell < d.AnzSpieltage && spieler >= 4 && spieler <= 6)
            << v.dateiname;
        for (int tag = 0; tag <= d.AnzSpieltage; ++tag) {
            int tore = 0;
            for (int k = 0; k <= d.AnzSpiele; ++k)
                tore += d.ErgebnisDatei[tag][k][0] + d.ErgebnisDatei[tag][k][1];
            EXPECT_EQ((std::pair{d.SptgAuswerten[tag] == 1, tore > 0}),
                      (std::pair{tag <= aktuell, tag <= aktuell}))
                << v.dateiname << ", matchday " << tag + 1;
        }
    }
}

}  // namespace
}  // namespace kalimbo::beispiel
