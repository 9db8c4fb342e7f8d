// werteAus against the plain evaluation of schlichte_auswertung.h on a few hundred random games:
// every field of every record and table row must agree, and where one throws the other must throw
// the same error with the same text.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <type_traits>
#include <utility>

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
    template <class T, std::size_t N>
    T eines(const T (&werte)[N]) {
        return werte[zahl(0, static_cast<int>(N) - 1)];
    }

  private:
    std::mt19937 m_gen;
};

// Goals or points: mostly small, now and then (`extrem` per mille) one near the 16-bit limits.
i16 wert(Zufall& z, int klein, int extrem) {
    static const int Extreme[] = {-32768, -20000, -9999, -1, 9999, 16384, 20000, 32767};
    return static_cast<i16>(z.promille(extrem) ? z.eines(Extreme) : z.zahl(0, klein));
}

// A random game of 18 or 20 teams, most of it well inside the limits; a share of the games has
// overflowing results, tips or own-rule points, few hits (so that large points overflow only in
// some figures), stray or invalid team indices, or an invalid count.
Spielstand zufallsspiel(Zufall& z) {
    Spielstand s = test::kleinesSpiel(z.promille(500) ? 18 : 20);
    const int ergebnisExtrem = z.eines({0, 0, 0, 2, 20});
    const int tippExtrem = z.eines({0, 0, 0, 1, 5});
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

    switch (z.zahl(0, 4)) {
        case 0:
            s.SptgAuswerten.fuelle(1);
            break;
        case 1:
            s.SptgAuswerten.fuelle(0);
            break;
        case 2:
            s.SptgAuswerten.fuelle(0);
            s.SptgAuswerten[z.zahl(0, 37)] = 1;
            break;
        default:
            for (i16& flag : s.SptgAuswerten)
                flag = static_cast<i16>(z.eines({0, 1, 1, 1, 2, -1}));
    }
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

// Compares element by element only where the whole differs, so that agreement stays cheap; the
// first difference is reported with its path and ends the comparison.
template <class T>
bool gleich(const std::string& pfad, const T& ist, const T& soll) {
    if (ist == soll) return true;
    if constexpr (requires { ist.groesse(); }) {
        for (int i = 0; i < ist.groesse(); ++i)
            if (!gleich(pfad + "[" + std::to_string(i) + "]", ist[i], soll[i])) return false;
        return true;
    } else if constexpr (std::is_same_v<T, std::string>) {
        ADD_FAILURE() << pfad << ": \"" << ist << "\" statt \"" << soll << "\"";
        return false;
    } else {
        ADD_FAILURE() << pfad << ": " << +ist << " statt " << +soll;
        return false;
    }
}

bool gleich(const std::string& pfad, const SpielerAuswertung& ist, const SpielerAuswertung& soll) {
#define FELD(f) gleich(pfad + "." #f, ist.f, soll.f)
    return FELD(Sortierplatz) && FELD(Platz) && FELD(SptgSortierplatz) && FELD(SptgPlatz) &&
           FELD(GesamtPunkte) && FELD(SpieltagPunkte) && FELD(PunkteNachArt) && FELD(Platzierungen) &&
           FELD(TeamPunkte) && FELD(TeamPunkteKorrekt) && FELD(TeamPunkteDiff) && FELD(TeamPunkteTendenz) &&
           FELD(TeamSortierung) && FELD(SpielFarbe) && FELD(Korrekt);
}

bool gleich(const std::string& pfad, const Tabellenzeile& ist, const Tabellenzeile& soll) {
    return FELD(Name) && FELD(Punkte) && FELD(Tabellenplatz) && FELD(Siege) && FELD(Unentschieden) &&
           FELD(Niederlagen) && FELD(Tore) && FELD(Gegentore) && FELD(HeimPunkte) && FELD(HeimSiege) &&
           FELD(HeimUnentschieden) && FELD(HeimNiederlagen) && FELD(HeimTore) && FELD(HeimGegentore) &&
           FELD(AuswPunkte) && FELD(AuswSiege) && FELD(AuswUnentschieden) && FELD(AuswNiederlagen) &&
           FELD(AuswTore) && FELD(AuswGegentore);
#undef FELD
}

// Runs `auswertung` on `s`; the error it throws, as code and text, or code 0 for none.
template <class Auswertung>
std::pair<int, std::string> fehler(Auswertung auswertung, Spielstand& s, bool sonntag) {
    try {
        auswertung(s, sonntag);
        return {0, ""};
    } catch (const Laufzeitfehler& e) {
        return {e.code(), e.what()};
    }
}

TEST(Aequivalenz, WerteAusGleichtDerSchlichtenAuswertung) {
    Zufall z(20240611);
    std::map<int, int> ausgang;  // how many games ended with each error code (0: none)
    for (int spiel = 0; spiel < 400; ++spiel) {
        SCOPED_TRACE("Spiel " + std::to_string(spiel));
        const Spielstand vorlage = zufallsspiel(z);
        const bool sonntag = z.promille(500);
        Spielstand schnell = vorlage, schlicht = vorlage;
        const auto ist = fehler(werteAus, schnell, sonntag);
        const auto soll = fehler(test::werteSchlichtAus, schlicht, sonntag);
        ASSERT_EQ(ist, soll);
        ++ausgang[ist.first];
        if (ist.first != 0) {  // werteAus leaves the records and the table reset
            schlicht = vorlage;
            schlicht.verwirfAuswertung();
            for (int t = 0; t <= MaxTeams; ++t)
                schlicht.Tabelle[t].Name = t < MaxTeams ? vorlage.Teamname[t] : "";
        }
        for (int p = 0; p < MaxSpieler; ++p)
            ASSERT_TRUE(gleich("Auswertung[" + std::to_string(p) + "]", schnell.Auswertung[p],
                               schlicht.Auswertung[p]));
        for (int t = 0; t <= MaxTeams; ++t)
            ASSERT_TRUE(
                gleich("Tabelle[" + std::to_string(t) + "]", schnell.Tabelle[t], schlicht.Tabelle[t]));
    }
    // The games cover evaluations that succeed as well as both kinds of error.
    EXPECT_GE(ausgang[0], 200);
    EXPECT_GE(ausgang[Laufzeitfehler::Ueberlauf], 50);
    EXPECT_GE(ausgang[Laufzeitfehler::Index], 10);
}

}  // namespace
}  // namespace kalimbo
