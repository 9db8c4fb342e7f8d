#include "state/spieldatei.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <sstream>

#include "state/dateifelder.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

using test::leseBytes;
using test::TempOrdner;

Dateiinhalt lies(const std::string& bytes) {
    std::istringstream ein(bytes);
    return leseSpieldatei(ein, "test.tip");
}

// A game that uses every field with values that are easy to get wrong: umlauts and the euro
// sign, negative numbers, colours with the high bit set, coach records, tips of every player.
Dateiinhalt volleDatei() {
    Dateiinhalt d = test::saison(test::Saison20);
    d.Spielername = {{"Jürgen", "Bärbel", "€uro-Ölf", "", "Zoë", "x", "Œuvre", "y", "Ähm"}};
    for (int p = 0; p < MaxSpieler; ++p)
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            for (int k = 0; k < MaxSpiele; ++k)
                d.TippDatei[p][tag][k] = {
                    {static_cast<i16>((p + tag + k) % 5), static_cast<i16>((p * tag + k) % 4)}};
    d.ErgebnisDatei[37][9] = {{-3, 32767}};
    d.SptgAuswerten[5] = 1;
    d.SptgAuswerten[37] = -1;
    d.AktSpieltagGlobal = 21;
    d.SonntagSpiele = {{7, 8}};
    d.Teilnehmer = {{1, 0, -1, 1, 1, 0, 0, 1, 1}};
    d.Spielerfarbe[3] = static_cast<Farbe>(0x8000000F);
    d.LigaInfo = {{"Premier League 2010/11", "zweite Zeile"}};
    d.Modus = 3;
    d.ModusPunkte = {{5, -2, 1}};
    d.Trainerwechsel[0] = {1, "Hütter (Frankfurt)", 0, 12};
    d.Trainerwechsel[9] = {-1, "offen", 13, 99};
    return d;
}

TEST(Spieldatei, LeereTexteErgebenGenau17148Bytes) {
    Dateiinhalt d;
    EXPECT_EQ(kodiereSpieldatei(d).size(), 17148u);
}

TEST(Spieldatei, SchreibenLesenSchreibenIstByteGleich) {
    const Dateiinhalt original = volleDatei();
    const std::string bytes = kodiereSpieldatei(original);
    const Dateiinhalt gelesen = lies(bytes);
    EXPECT_EQ(gelesen, original);
    EXPECT_EQ(kodiereSpieldatei(gelesen), bytes);
}

TEST(Spieldatei, FeldfolgeUndByteordnung) {
    Dateiinhalt d;
    d.Teamname[0] = "ü";
    d.Teamname[1] = "€";
    d.Paarung[1][0][0] = 0x0102;  // matchday 1: second element, since the matchday varies fastest
    d.AnzTeams = 17;
    d.AnzSpieler = 4;
    d.TabFarbe[0] = rgb(1, 2, 3);
    d.TippDatei[1][0][0][0] = 7;  // player 1: second element, since the player varies fastest
    const std::string b = kodiereSpieldatei(d);
    EXPECT_EQ(b.substr(0, 3), std::string("\x01\x00\xFC", 3));
    EXPECT_EQ(b.substr(3, 3), std::string("\x01\x00\x80", 3));
    const std::size_t paarung = 2 * (20 + 20 + 9) + 2;  // 49 length fields, two texts of one byte
    EXPECT_EQ(b.substr(paarung, 4), std::string("\x00\x00\x02\x01", 4));
    const std::size_t zahlen = paarung + 1520;
    EXPECT_EQ(b.substr(zahlen + 6, 4), std::string("\x11\x00\x04\x00", 4));  // AnzTeams, then AnzSpieler
    EXPECT_EQ(b.substr(zahlen + 10, 4), std::string("\x01\x02\x03\x00", 4));
    const std::size_t tipps = zahlen + 10 + 80 + 1520;
    EXPECT_EQ(b.substr(tipps, 4), std::string("\x00\x00\x07\x00", 4));
}

TEST(Spieldatei, JedeVerkuerzteDateiWirdAbgelehntUndDasSpielBleibt) {
    const std::string bytes = kodiereSpieldatei(volleDatei());
    Spielstand spiel;
    spiel.oeffne(test::saison(test::Saison18));
    spiel.Ergebnis[0][0] = {{4, 4}};  // an entry not yet saved
    const std::string vorher = kodiereSpieldatei(spiel);
    const Ergebnisse ergebnisVorher = spiel.Ergebnis;

    for (std::size_t laenge = 0; laenge < bytes.size(); ++laenge) {
        try {
            spiel.oeffne(lies(bytes.substr(0, laenge)));
            FAIL() << "accepted a file cut after " << laenge << " bytes";
        } catch (const Dateifehler& e) {
            ASSERT_NE(std::string(e.what()).find("„test.tip“ ist beschädigt oder keine Tippspiel-Datei"),
                      std::string::npos);
        }
    }
    EXPECT_EQ(kodiereSpieldatei(spiel), vorher);
    EXPECT_EQ(spiel.Ergebnis, ergebnisVorher);
}

TEST(Spieldatei, AngehaengteBytesWerdenIgnoriert) {
    const Dateiinhalt original = volleDatei();
    EXPECT_EQ(lies(kodiereSpieldatei(original) + "Reste einer älteren, längeren Datei"), original);
}

// Delivers `anzahl` zero bytes, counting what is taken.
class Nullen : public std::streambuf {
  public:
    explicit Nullen(std::size_t anzahl) : m_rest(anzahl) {}
    std::size_t geliefert = 0;

  protected:
    int_type underflow() override {
        if (m_rest == 0) return traits_type::eof();
        const std::size_t n = std::min(m_puffer.size(), m_rest);
        m_rest -= n;
        geliefert += n;
        setg(m_puffer.data(), m_puffer.data(), m_puffer.data() + n);
        return 0;
    }

  private:
    std::array<char, 4096> m_puffer{};
    std::size_t m_rest;
};

TEST(Spieldatei, HoechstensSoVielWieDieGroessteSpieldateiWirdGelesen) {
    struct LangeTexte {
        void zahl(i16&) {}
        void farbe(Farbe&) {}
        void text(std::string& s) { s.assign(32767, 'a'); }
    } lang;
    Dateiinhalt groesste;
    datei::besucheFelder(groesste, lang);
    const std::string bytes = kodiereSpieldatei(groesste);
    EXPECT_EQ(lies(bytes), groesste);
    const std::string meldung =
        "Die Datei „test.tip“ ist beschädigt oder keine Tippspiel-Datei: sie ist größer als jede "
        "Tippspiel-Datei (höchstens " +
        std::to_string(bytes.size()) + " Bytes).";
    try {
        lies(bytes + '\0');
        ADD_FAILURE();
    } catch (const Dateifehler& e) {
        EXPECT_EQ(e.what(), meldung);
    }

    // 50 MB of zeros would read as a game with empty texts; it is refused after reading no more
    // than the largest game file (and the next piece).
    Nullen nullen(50'000'000);
    std::istream ein(&nullen);
    EXPECT_THROW(leseSpieldatei(ein, "test.tip"), Dateifehler);
    EXPECT_LE(nullen.geliefert, bytes.size() + 65536);
}

TEST(Spieldatei, UngueltigeZahlenWerdenAbgelehnt) {
    auto abgelehnt = [](auto aendern, const std::string& grund) {
        Dateiinhalt d = test::saison(test::Saison18);
        aendern(d);
        try {
            lies(kodiereSpieldatei(d));
            ADD_FAILURE() << "accepted: " << grund;
        } catch (const Dateifehler& e) {
            EXPECT_NE(std::string(e.what()).find(grund), std::string::npos) << e.what();
        }
    };
    abgelehnt([](Dateiinhalt& d) { d.AnzTeams = 20; }, "Mannschaften ist 20");
    abgelehnt([](Dateiinhalt& d) { d.AnzSpieltage = 38; }, "Spieltage ist 38");
    abgelehnt([](Dateiinhalt& d) { d.AnzSpiele = 10; }, "Spiele ist 10");
    abgelehnt([](Dateiinhalt& d) { d.AnzSpieler = 9; }, "Spieler ist 9");
    abgelehnt([](Dateiinhalt& d) { d.AnzTeams = -1; }, "Mannschaften ist -1");
    abgelehnt([](Dateiinhalt& d) { d.Paarung[33][8][1] = 20; }, "Spiel 9 des 34. Spieltags");
    abgelehnt([](Dateiinhalt& d) { d.Paarung[0][0][0] = -1; }, "Mannschaft -1");
}

TEST(Spieldatei, NegativeTextlaengeWirdAbgelehnt) {
    std::string bytes = kodiereSpieldatei(Dateiinhalt{});
    bytes[0] = '\xFE';
    bytes[1] = '\xFF';
    EXPECT_THROW(lies(bytes), Dateifehler);
}

TEST(Spieldatei, PaarungenAusserhalbDerSaisonWerdenNichtGeprueft) {
    Dateiinhalt d = test::saison(test::Saison18);
    d.Paarung[34][0][0] = 77;  // beyond the 34 matchdays: never read by anything
    d.Paarung[0][9][1] = -5;   // tenth match in a nine-match league
    EXPECT_EQ(lies(kodiereSpieldatei(d)), d);
}

TEST(Spieldatei, NichtDarstellbarerTextWirdVorDemSchreibenAbgelehnt) {
    Dateiinhalt d;
    d.Spielername[2] = "Łukasz";
    try {
        kodiereSpieldatei(d);
        FAIL();
    } catch (const Dateifehler& e) {
        const std::string text = e.what();
        EXPECT_NE(text.find("„Łukasz“"), std::string::npos);
        EXPECT_NE(text.find("„Ł“ (U+0141)"), std::string::npos);
    }
}

TEST(Spieldatei, FehlendeDateiWirdGemeldet) {
    TempOrdner ordner;
    try {
        ladeSpieldatei(ordner / "fehlt.tip");
        FAIL();
    } catch (const Dateifehler& e) {
        EXPECT_NE(std::string(e.what()).find("fehlt.tip“ konnte nicht geöffnet werden"), std::string::npos);
    }
    EXPECT_THROW(ladeSpieldatei(ordner.pfad()), Dateifehler);
}

TEST(Spieldatei, SpeichernUndLaden) {
    TempOrdner ordner;
    const Dateiinhalt d = volleDatei();
    speichereSpieldatei(ordner / "spiel.tip", d);
    EXPECT_EQ(ladeSpieldatei(ordner / "spiel.tip"), d);
    // A shorter game replaces a longer file completely; no temporary files stay behind.
    speichereSpieldatei(ordner / "spiel.tip", Dateiinhalt{});
    EXPECT_EQ(leseBytes(ordner / "spiel.tip").size(), 17148u);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner.pfad()), {}), 1);
}

TEST(Spieldatei, FehlgeschlagenesSpeichernLaesstDieAlteDateiUnveraendert) {
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    speichereSpieldatei(ziel, volleDatei());
    const std::string vorher = leseBytes(ziel);
    std::filesystem::permissions(
        ordner.pfad(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                           std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
    // Root may write anywhere, so as root (as in CI) the save runs under an unprivileged user.
    const bool root = geteuid() == 0;
    if (root && seteuid(65534) != 0) GTEST_SKIP() << "cannot drop privileges";
    std::string meldung;
    try {
        speichereSpieldatei(ziel, Dateiinhalt{});
    } catch (const Dateifehler& e) {
        meldung = e.what();
    }
    if (root) {
        ASSERT_EQ(seteuid(0), 0);
    }
    EXPECT_NE(meldung.find("„" + ziel.string() + "“ konnte nicht gespeichert werden"), std::string::npos);
    EXPECT_EQ(leseBytes(ziel), vorher);
}

TEST(Spieldatei, SchreibfehlerMittendrinLaesstDieAlteDateiUnveraendert) {
    TempOrdner ordner;
    const auto ziel = ordner / "spiel.tip";
    speichereSpieldatei(ziel, Dateiinhalt{});
    const std::string vorher = leseBytes(ziel);

    // A file size limit below the game's size makes the write fail halfway, like a full disk.
    rlimit alt{};
    getrlimit(RLIMIT_FSIZE, &alt);
    const auto signal = std::signal(SIGXFSZ, SIG_IGN);
    rlimit grenze = alt;
    grenze.rlim_cur = 4096;
    setrlimit(RLIMIT_FSIZE, &grenze);
    EXPECT_THROW(speichereSpieldatei(ziel, volleDatei()), Dateifehler);
    setrlimit(RLIMIT_FSIZE, &alt);
    std::signal(SIGXFSZ, signal);

    EXPECT_EQ(leseBytes(ziel), vorher);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner.pfad()), {}), 1);
}

}  // namespace
}  // namespace kalimbo
