// werteAus against the plain evaluation of schlichte_auswertung.h on a few hundred random games: every field
// of every record and table row must agree, and where one throws the other must throw the same error with the
// same text.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "schlichte_auswertung.h"
#include "scoring/auswertung.h"
#include "testdaten.h"

namespace kalimbo {
namespace {

class Zufall {
  public:
    explicit Zufall(unsigned saat) : m_gen(saat) {}
    int zahl(int von, int bis) {
        return von + static_cast<int>(m_gen() % static_cast<unsigned>(bis - von + 1));
    }
    bool promille(int p) { return zahl(0, 999) < p; }
    int eines(std::initializer_list<int> werte) {
        return werte.begin()[zahl(0, static_cast<int>(werte.size()) - 1)];
    }

  private:
    std::mt19937 m_gen;
};

// Goals or points: mostly small, now and then (`extrem` per mille) one near the 16-bit limits.
i16 wert(Zufall& z, int klein, int extrem) {
    return static_cast<i16>(z.promille(extrem)
                                ? z.eines({-32768, -20000, -9999, -1, 9999, 16384, 20000, 32767})
                                : z.zahl(0, klein));
}

// A random game of 18 or 20 teams, most of it well inside the limits; a share of the games has overflowing
// results, tips or own-rule points, few hits (so that large points overflow only in some figures), stray or
// invalid team indices, or an invalid count.
Spielstand zufallsspiel(Zufall& z) {
    Spielstand s = test::kleinesSpiel(z.promille(500) ? 18 : 20);
    const int ergebnisExtrem = z.eines({0, 0, 0, 2, 20}), tippExtrem = z.eines({0, 0, 0, 1, 5});
    const int trefferQuote = z.eines({1000, 1000, 1000, 30});  // per mille of tips that may hit
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel) {
            const i16 heim = wert(z, 4, ergebnisExtrem), aus = wert(z, 4, ergebnisExtrem);
            s.Ergebnis[tag][spiel] = {{heim, aus}};
            for (int p = 0; p < MaxSpieler; ++p)
                if (z.promille(tippExtrem))  // both goals extreme: the difference may overflow
                    s.Tipp[p][tag][spiel] = {{wert(z, 0, 1000), wert(z, 0, 1000)}};
                else if (z.promille(trefferQuote))
                    s.Tipp[p][tag][spiel] = {{wert(z, 3, tippExtrem), wert(z, 3, tippExtrem)}};
                else  // the opposite tendency: no hit
                    s.Tipp[p][tag][spiel] = heim > aus ? Feld<i16, 2>{{0, 1}} : Feld<i16, 2>{{1, 0}};
        }
    if (z.promille(150))  // teams drawn at random, a team may meet itself
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            for (int spiel = 0; spiel < MaxSpiele; ++spiel)
                s.Paarung[tag][spiel] = {{static_cast<i16>(z.zahl(0, 19)), static_cast<i16>(z.zahl(0, 19))}};
    if (z.promille(60))
        s.Paarung[z.zahl(0, 37)][z.zahl(0, 9)][z.zahl(0, 1)] = static_cast<i16>(z.eines({-1, 20, 300}));
    const int auswahl = z.zahl(0, 4);  // all, none, one, or a mix of true values
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        s.SptgAuswerten[tag] = static_cast<i16>(auswahl < 2    ? 1 - auswahl
                                                : auswahl == 2 ? 0
                                                               : z.eines({0, 1, 1, 1, 2, -1}));
    if (auswahl == 2) s.SptgAuswerten[z.zahl(0, 37)] = 1;
    for (i16& t : s.Teilnehmer)
        t = static_cast<i16>(z.eines({1, 1, 1, 1, 0, -1, 2}));
    s.Modus = static_cast<i16>(z.zahl(0, 3));
    const int punkteExtrem = z.eines({0, 0, 0, 100, 300});
    for (int art = 0; art < 3; ++art) {
        s.ModusPunkte[art] = static_cast<i16>(wert(z, 5, punkteExtrem) - (z.promille(100) ? 3 : 0));
        s.ModusFarbe[art] = static_cast<Farbe>(z.zahl(0, 0xFFFFFF));
    }
    s.AktSpieltagGlobal =
        static_cast<i16>(z.promille(200) ? KeinAktuellerSpieltag : z.zahl(0, s.AnzSpieltage));
    s.SonntagSpiele = {{static_cast<i16>(z.zahl(-1, 10)), static_cast<i16>(z.zahl(-1, 10))}};
    if (z.promille(30)) s.AnzSpieltage = static_cast<i16>(z.eines({-1, 38, 100}));
    if (z.promille(30)) s.AnzSpiele = static_cast<i16>(z.eines({-1, 0, 10}));
    if (z.promille(30)) s.AnzTeams = static_cast<i16>(z.eines({-1, 0, 20, 21}));
    return s;
}

auto felder(const SpielerAuswertung& a) {
    return std::tie(a.Sortierplatz, a.Platz, a.SptgSortierplatz, a.SptgPlatz, a.GesamtPunkte,
                    a.SpieltagPunkte, a.PunkteNachArt, a.Platzierungen, a.TeamPunkte, a.TeamPunkteKorrekt,
                    a.TeamPunkteDiff, a.TeamPunkteTendenz, a.TeamSortierung, a.SpielFarbe, a.Korrekt);
}

TEST(Aequivalenz, WerteAusGleichtDerSchlichtenAuswertung) {
    Zufall z(20240611);
    std::map<std::string, int> ausgang;  // how many games ended with each error ("": none)
    for (int spiel = 0; spiel < 400; ++spiel) {
        SCOPED_TRACE("Spiel " + std::to_string(spiel));
        const Spielstand vorlage = zufallsspiel(z);
        const bool sonntag = z.promille(500);
        Spielstand schnell = vorlage, schlicht = vorlage;
        const std::string fehler = test::fehler([&] { werteAus(schnell, sonntag); });
        ASSERT_EQ(fehler, test::fehler([&] { test::werteSchlichtAus(schlicht, sonntag); }));
        ++ausgang[fehler.substr(0, fehler.find(' '))];
        if (!fehler.empty()) {  // werteAus leaves the records and the table reset
            schlicht = vorlage;
            schlicht.verwirfAuswertung();
            for (int t = 0; t < MaxTeams; ++t)
                schlicht.Tabelle[t].Name = vorlage.Teamname[t];
        }
        for (int p = 0; p < MaxSpieler; ++p)
            ASSERT_TRUE(felder(schnell.Auswertung[p]) == felder(schlicht.Auswertung[p]))
                << "Auswertung[" << p << "]";
        for (int t = 0; t <= MaxTeams; ++t)
            ASSERT_TRUE(schnell.Tabelle[t] == schlicht.Tabelle[t]) << "Tabelle[" << t << "]";
    }
    // The games cover evaluations that succeed as well as both kinds of error.
    EXPECT_GE(ausgang[""], 200);
    EXPECT_GE(ausgang["Überlauf"], 50);
    EXPECT_GE(ausgang["Index"], 10);
}

}  // namespace
}  // namespace kalimbo
