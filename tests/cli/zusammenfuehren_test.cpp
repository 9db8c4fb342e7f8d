#include "cli/zusammenfuehren.h"

#include <gtest/gtest.h>

#include "cli/lauf.h"
#include "state/spieldatei.h"
#include "state/tippimport.h"
#include "testdaten.h"

namespace kalimbo::cli {
namespace {

using test::Lauf;
using test::starte;

struct Dateien {
    test::TempOrdner ordner;
    std::string ziel = (ordner / "ziel.tip").string();
    std::string quelle = (ordner / "quelle.tip").string();
    std::string ausgabe = (ordner / "ausgabe.tip").string();

    // The manager's game on the 18-team season with Anna's tips; the file a player sent in on the
    // 20-team season with other names and Bernd's tips.
    Dateien() {
        Spielstand z;
        z.oeffne(test::saison(test::Saison18));
        test::setzeErgebnisse(z, 37, "0:0 0:1 3:3");
        test::setzeTipps(z, 0, 0, "0:0 1:1");
        z.Spielername[0] = "Anna";
        z.kopiereArbeitInDatei();
        speichereSpieldatei(ziel, z);

        Spielstand q;
        q.oeffne(test::saison(test::Saison20));
        test::setzeErgebnisse(q, 37, "2:1 2:1 2:1");
        test::setzeTipps(q, 0, 0, "2:1 2:1");
        q.Spielername[1] = "Bernd";
        q.Trainerwechsel[0] = {1, "Neuer Trainer", 3, 99};
        q.kopiereArbeitInDatei();
        speichereSpieldatei(quelle, q);
    }
};

TEST(Zusammenfuehren, SpeichertWasDasFensterNachDemEinfuegenSpeichert) {
    Dateien d;
    const Lauf lauf = starte({"zusammenfuehren", d.ziel, d.quelle, d.ausgabe});
    EXPECT_EQ(lauf.code, 0);
    EXPECT_EQ(lauf.aus, "");
    EXPECT_EQ(lauf.fehler, "");

    Spielstand fenster;
    fenster.oeffne(ladeSpieldatei(d.ziel));
    fuegeTippdateiEin(fenster, ladeSpieldatei(d.quelle));
    fenster.kopiereArbeitInDatei();
    EXPECT_EQ(test::leseBytes(d.ausgabe), kodiereSpieldatei(fenster));

    const Dateiinhalt ergebnis = ladeSpieldatei(d.ausgabe);
    EXPECT_EQ(ergebnis.AnzTeams, 19);
    EXPECT_EQ(ergebnis.Spielername[0], "");
    EXPECT_EQ(ergebnis.Spielername[1], "Bernd");
    EXPECT_EQ(ergebnis.Trainerwechsel[0].Name, "Neuer Trainer");
    EXPECT_EQ(ergebnis.ErgebnisDatei[37][0], (Feld<i16, 2>{{2, 1}}));
    EXPECT_EQ(ergebnis.ErgebnisDatei[37][1], (Feld<i16, 2>{{0, 1}}));
    EXPECT_EQ(ergebnis.ErgebnisDatei[37][2], (Feld<i16, 2>{{3, 3}}));
    EXPECT_EQ(ergebnis.TippDatei[0][0][0], (Feld<i16, 2>{{2, 1}}));
    EXPECT_EQ(ergebnis.TippDatei[0][0][1], (Feld<i16, 2>{{1, 1}}));
}

TEST(Zusammenfuehren, FehlerLassenDieAusgabeUnberuehrt) {
    Dateien d;
    const std::string kaputt = (d.ordner / "kaputt.tip").string();
    test::schreibeBytes(kaputt, test::leseBytes(d.quelle).substr(0, 5000));
    const std::string fehlt = (d.ordner / "fehlt.tip").string();
    const std::string vorhanden = (d.ordner / "vorhanden.tip").string();
    test::schreibeBytes(vorhanden, "alter Inhalt");

    struct Fall {
        std::vector<std::string> aufruf;
        std::string meldung;
    };
    const std::vector<Fall> faelle{
        {{"zusammenfuehren", fehlt, d.quelle, d.ausgabe},
         "Fehler: Die Datei „" + fehlt +
             "“ konnte nicht geöffnet werden: Sie existiert nicht.\n"},
        {{"zusammenfuehren", d.ziel, kaputt, d.ausgabe},
         "Fehler: Die Datei „" + kaputt +
             "“ ist beschädigt oder keine Tippspiel-Datei: sie endet vor dem Ende der Spieldaten.\n"},
        {{"zusammenfuehren", kaputt, d.quelle, vorhanden},
         "Fehler: Die Datei „" + kaputt +
             "“ ist beschädigt oder keine Tippspiel-Datei: sie endet vor dem Ende der Spieldaten.\n"},
        {{"zusammenfuehren", d.ziel, fehlt, vorhanden},
         "Fehler: Die Datei „" + fehlt +
             "“ konnte nicht geöffnet werden: Sie existiert nicht.\n"},
    };
    for (const Fall& f : faelle) {
        const Lauf lauf = starte(f.aufruf);
        EXPECT_EQ(lauf.code, 1);
        EXPECT_EQ(lauf.fehler, f.meldung);
    }
    EXPECT_FALSE(std::filesystem::exists(d.ausgabe));
    EXPECT_EQ(test::leseBytes(vorhanden), "alter Inhalt");

    for (const std::vector<std::string>& aufruf :
         std::vector<std::vector<std::string>>{{"zusammenfuehren", d.ziel, d.quelle},
                                               {"zusammenfuehren", d.ziel, d.quelle, d.ausgabe, d.ausgabe}}) {
        EXPECT_EQ(starte(aufruf).code, 2);
    }
    EXPECT_FALSE(std::filesystem::exists(d.ausgabe));
}

}  // namespace
}  // namespace kalimbo::cli
