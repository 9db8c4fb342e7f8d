#include "state/trainerdatei.h"

#include <gtest/gtest.h>

#include <sstream>

#include "scoring/auswahl.h"
#include "state/spieldatei.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

std::string zahl(i16 z) {
    return {static_cast<char>(z & 0xFF), static_cast<char>((z >> 8) & 0xFF)};
}

// One record as the file holds it; the name is given in Windows-1252 bytes.
std::string datensatz(i16 aktiv, const std::string& name, i16 von, i16 bis) {
    return zahl(aktiv) + zahl(static_cast<i16>(name.size())) + name + zahl(von) + zahl(bis);
}

// Record i runs from matchday 3i to 3i + 2; record 5 is not active, record 9 is open-ended and
// record 2 has a name with an umlaut.
std::vector<std::string> datensaetze() {
    std::vector<std::string> saetze;
    for (int i = 0; i < 10; ++i) {
        const std::string name = i == 2 ? "J\xFCrgen" : "Trainer " + std::to_string(i);
        saetze.push_back(datensatz(i == 5 ? 0 : 1, name, static_cast<i16>(3 * i),
                                   static_cast<i16>(i == 9 ? 99 : 3 * i + 2)));
    }
    return saetze;
}

std::string verbunden(const std::vector<std::string>& saetze) {
    std::string bytes;
    for (const auto& s : saetze)
        bytes += s;
    return bytes;
}

std::string zehnDatensaetze() {
    return verbunden(datensaetze());
}

Trainerwechseldaten lies(const std::string& bytes) {
    std::istringstream ein(bytes);
    return leseTrainerdatei(ein, "trainer.tip");
}

std::string fehlertext(const std::string& bytes) {
    try {
        lies(bytes);
    } catch (const Dateifehler& e) {
        return e.what();
    }
    return "(angenommen)";
}

TEST(Trainerdatei, LiestZehnDatensaetzeVomErstenByteAn) {
    Trainerwechseldaten erwartet;
    for (int i = 0; i < 10; ++i)
        erwartet[i] = {static_cast<i16>(i == 5 ? 0 : 1), i == 2 ? "Jürgen" : "Trainer " + std::to_string(i),
                       static_cast<i16>(3 * i), static_cast<i16>(i == 9 ? 99 : 3 * i + 2)};
    EXPECT_EQ(lies(zehnDatensaetze()), erwartet);
    EXPECT_EQ(lies(zehnDatensaetze() + "was danach folgt, zählt nicht"), erwartet);
}

TEST(Trainerdatei, OffenePeriodeReichtBisZumAktuellenSpieltag) {
    Spielstand spiel;
    spiel.Trainerwechsel = lies(zehnDatensaetze());
    spiel.AktSpieltagGlobal = 30;
    waehleTrainerperiode(spiel, 9);
    EXPECT_EQ(test::auswahl(spiel), "27-30");
    waehleTrainerperiode(spiel, 2);
    EXPECT_EQ(test::auswahl(spiel), "6-8");
}

TEST(Trainerdatei, DasLetzteFeldEinerSpieldateiIstEineTrainerdatei) {
    Dateiinhalt d;
    d.Trainerwechsel = lies(zehnDatensaetze());
    const std::string spieldatei = kodiereSpieldatei(d);
    const std::size_t laenge = zehnDatensaetze().size();
    EXPECT_EQ(lies(spieldatei.substr(spieldatei.size() - laenge)), d.Trainerwechsel);
}

TEST(Trainerdatei, ZuKurzeDateiWirdAbgelehntUndNichtsAendertSich) {
    const std::string bytes = zehnDatensaetze();
    Spielstand spiel;
    spiel.Trainerwechsel[0] = {1, "bisher", 0, 5};
    const Trainerwechseldaten vorher = spiel.Trainerwechsel;
    for (std::size_t laenge = 0; laenge < bytes.size(); ++laenge) {
        std::istringstream ein(bytes.substr(0, laenge));
        EXPECT_THROW(spiel.Trainerwechsel = leseTrainerdatei(ein, "t"), Dateifehler) << laenge;
    }
    EXPECT_EQ(spiel.Trainerwechsel, vorher);
    EXPECT_EQ(
        fehlertext(""),
        "Die Datei „trainer.tip“ enthält keine Trainerwechsel-Daten: sie endet im 1. der zehn Datensätze.");
    EXPECT_EQ(
        fehlertext(bytes.substr(0, bytes.size() - 1)),
        "Die Datei „trainer.tip“ enthält keine Trainerwechsel-Daten: sie endet im 10. der zehn Datensätze.");
}

TEST(Trainerdatei, SpieltageEinesAktivenDatensatzesWerdenGeprueft) {
    struct Fall {
        i16 aktiv, von, bis;
        std::string grund;  // empty: accepted
    };
    const std::vector<Fall> faelle{
        {1, 0, 37, ""},
        {1, 37, 99, ""},
        {0, -7, 500, ""},  // inactive: never shown, never selected
        {-1, -1, 3, "der 4. Trainerwechsel beginnt mit dem Spieltag-Index -1 (erlaubt sind 0 bis 37)."},
        {1, 38, 40, "der 4. Trainerwechsel beginnt mit dem Spieltag-Index 38 (erlaubt sind 0 bis 37)."},
        {1, 99, 99, "der 4. Trainerwechsel beginnt mit dem Spieltag-Index 99 (erlaubt sind 0 bis 37)."},
        {1, 0, 38,
         "der 4. Trainerwechsel endet mit dem Spieltag-Index 38 (erlaubt sind 0 bis 37, für „bis heute“ "
         "99)."},
        {1, 0, -1,
         "der 4. Trainerwechsel endet mit dem Spieltag-Index -1 (erlaubt sind 0 bis 37, für „bis heute“ "
         "99)."},
    };
    for (const Fall& f : faelle) {
        std::vector<std::string> saetze = datensaetze();
        saetze[3] = datensatz(f.aktiv, "Trainer 3", f.von, f.bis);
        const std::string bytes = verbunden(saetze);
        const std::string erwartet =
            f.grund.empty() ? "(angenommen)"
                            : "Die Datei „trainer.tip“ enthält keine Trainerwechsel-Daten: " + f.grund;
        EXPECT_EQ(fehlertext(bytes), erwartet) << f.von << ".." << f.bis;
    }
}

TEST(Trainerdatei, NegativeNamenslaengeUndFehlendeDatei) {
    EXPECT_EQ(
        fehlertext(zahl(1) + zahl(-2) + std::string(100, 'x')),
        "Die Datei „trainer.tip“ enthält keine Trainerwechsel-Daten: ein Text hat die negative Länge -2.");
    test::TempOrdner ordner;
    try {
        ladeTrainerdatei(ordner / "fehlt.tip");
        FAIL();
    } catch (const Dateifehler& e) {
        EXPECT_EQ(std::string(e.what()),
                  "Die Datei „" + (ordner / "fehlt.tip").string() +
                      "“ konnte nicht geöffnet werden: Sie existiert nicht.");
    }
    test::schreibeBytes(ordner / "trainer.dat", zehnDatensaetze());
    EXPECT_EQ(ladeTrainerdatei(ordner / "trainer.dat"), lies(zehnDatensaetze()));
}

}  // namespace
}  // namespace kalimbo
