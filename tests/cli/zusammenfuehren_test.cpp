#include "cli/zusammenfuehren.h"

#include <gtest/gtest.h>

#include "cli/lauf.h"
#include "kurzesspiel.h"
#include "state/spieldatei.h"
#include "state/tippimport.h"

namespace kalimbo::cli {
namespace {

using test::starte;

// The manager's game on the 18-team season with Anna's tips; the file a player sent in on the 20-team season
// with other names and Bernd's tips; the merged file is what the window saves after taking the player's file
// in. A failure leaves the output untouched.
TEST(Zusammenfuehren, SpeichertWasDasFensterNachDemEinfuegenSpeichert) {
    test::TempOrdner ordner;
    const std::string ziel = (ordner / "ziel.tip").string(), quelle = (ordner / "quelle.tip").string(),
                      ausgabe = (ordner / "ausgabe.tip").string(), kaputt = (ordner / "kaputt.tip").string(),
                      fehlt = (ordner / "fehlt.tip").string(),
                      vorhanden = (ordner / "vorhanden.tip").string();
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
    test::schreibeBytes(kaputt, test::leseBytes(quelle).substr(0, 5000));
    test::schreibeBytes(vorhanden, "alter Inhalt");

    const std::string nichtDa =
        "Fehler: Die Datei „" + fehlt + "“ konnte nicht geöffnet werden: Sie existiert nicht.\n";
    const std::string beschaedigt =
        "Fehler: Die Datei „" + kaputt +
        "“ ist beschädigt oder keine Tippspiel-Datei: sie endet vor dem Ende der Spieldaten.\n";
    const std::vector<std::pair<std::vector<std::string>, std::string>> faelle{
        {{fehlt, quelle, ausgabe}, nichtDa},
        {{ziel, kaputt, ausgabe}, beschaedigt},
        {{ziel, fehlt, vorhanden}, nichtDa},
    };
    for (const auto& [dateien, meldung] : faelle) {
        std::vector<std::string> aufruf{"zusammenfuehren"};
        aufruf.insert(aufruf.end(), dateien.begin(), dateien.end());
        EXPECT_EQ(starte(aufruf), (test::Lauf{1, "", meldung}));
    }
    EXPECT_FALSE(std::filesystem::exists(ausgabe));
    EXPECT_EQ(test::leseBytes(vorhanden), "alter Inhalt");

    EXPECT_EQ(starte({"zusammenfuehren", ziel, quelle, ausgabe}), test::erfolg(""));
    Spielstand fenster;
    fenster.oeffne(ladeSpieldatei(ziel));
    fuegeTippdateiEin(fenster, ladeSpieldatei(quelle));
    fenster.kopiereArbeitInDatei();
    EXPECT_EQ(test::leseBytes(ausgabe), kodiereSpieldatei(fenster));
    EXPECT_EQ(ladeSpieldatei(ausgabe).ErgebnisDatei[37][1], (Feld<i16, 2>{{0, 1}}));  // kept: not 0:0
}

}  // namespace
}  // namespace kalimbo::cli
