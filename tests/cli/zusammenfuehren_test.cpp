#include "cli/zusammenfuehren.h"

#include <gtest/gtest.h>

#include "cli/lauf.h"
#include "kurzesspiel.h"
#include "state/spieldatei.h"
#include "state/tippimport.h"

namespace kalimbo::cli {
namespace {

// The manager's game on the 18-team season with Anna's tips; the file a player sent in on the 20-team season
// with other names and Bernd's tips; the merged file is what the window saves after taking the player's file
// in. (What it refuses is in tests/data/cli/befehle.txt.)
TEST(Zusammenfuehren, SpeichertWasDasFensterNachDemEinfuegenSpeichert) {
    test::TempOrdner ordner;
    const std::string ziel = (ordner / "ziel.tip").string(), quelle = (ordner / "quelle.tip").string(),
                      ausgabe = (ordner / "ausgabe.tip").string();
    Spielstand z;
    z.oeffne(test::saison(test::Saison18));
    test::setzeErgebnisse(z, 37, "0:0 0:1 3:3");
    test::setzeTipps(z, 0, 0, "0:0 1:1");
    z.Spielername[0] = "Anna";
    test::speichereSpiel(z, ziel);
    Spielstand q;
    q.oeffne(test::saison(test::Saison20));
    test::setzeErgebnisse(q, 37, "2:1 2:1 2:1");
    test::setzeTipps(q, 0, 0, "2:1 2:1");
    q.Spielername[1] = "Bernd";
    q.Trainerwechsel[0] = {1, "Neuer Trainer", 3, 99};
    test::speichereSpiel(q, quelle);

    EXPECT_EQ(test::starte({"zusammenfuehren", ziel, quelle, ausgabe}), test::erfolg(""));
    Spielstand fenster;
    fenster.oeffne(ladeSpieldatei(ziel));
    fuegeTippdateiEin(fenster, ladeSpieldatei(quelle));
    fenster.kopiereArbeitInDatei();
    EXPECT_EQ(test::leseBytes(ausgabe), kodiereSpieldatei(fenster));
    EXPECT_EQ(ladeSpieldatei(ausgabe).ErgebnisDatei[37][1], (Feld<i16, 2>{{0, 1}}));  // kept: not 0:0
}

}  // namespace
}  // namespace kalimbo::cli
