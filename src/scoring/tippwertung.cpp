#include "tippwertung.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <type_traits>

#include "fehlerort.h"
#include "regeln.h"

namespace kalimbo {

namespace {

constexpr int Plaetze = Saisonplan::Plaetze;
static_assert(sizeof(Ergebnisse) == sizeof(std::int32_t) * MaxSpieltage * MaxSpiele);

// A hit of kind k counts 1 in the bits 10k..10k+9 of a "Wertung": sums of them count the hits of
// each kind at once. No team plays in more than 760 match slots, so no count reaches 1024.
constexpr int Bits = 10;
constexpr std::int32_t Maske = (1 << Bits) - 1;

// `dann` if the condition holds, else `sonst`, by masking rather than branching.
template <class T>
constexpr T waehle(bool bedingung, T dann, T sonst) {
    return sonst ^ ((dann ^ sonst) & -static_cast<T>(bedingung));
}

// Copies the first 380 slots into a record's matchday-by-match array of the same element type.
template <class T>
void kopiere(const std::array<T, Plaetze>& slots, Feld<Feld<T, MaxSpiele>, MaxSpieltage>& ziel) {
    static_assert(std::is_trivially_copyable_v<Feld<Feld<T, MaxSpiele>, MaxSpieltage>>);
    static_assert(sizeof ziel == sizeof(T) * MaxSpieltage * MaxSpiele);
    std::memcpy(static_cast<void*>(&ziel), slots.data(), sizeof ziel);
}

int treffer(std::int32_t wertung, int art) {
    return (wertung >> (Bits * art)) & Maske;
}

// Lane by lane, the points that the hits counted in `summen` earn under the rule: per kind in
// rows 0 to 2, in all in row 3. Throws Laufzeitfehler::Ueberlauf when one leaves 16 bits, naming
// the first such lane j with `wobei(j)`.
template <std::size_t N, class Wobei>
void punkteJeBahn(const std::array<std::int32_t, N>& summen, const Feld<i16, 3>& regel,
                  std::array<std::array<std::int32_t, N>, 4>& punkte, Wobei wobei) {
    const std::int32_t p0 = regel[0], p1 = regel[1], p2 = regel[2];
    auto ausserhalb = [](std::int32_t x) { return (x < INT16_MIN) | (x > INT16_MAX); };
    bool ueberlauf = false;
    for (std::size_t j = 0; j < N; ++j) {
        const std::int32_t a = treffer(summen[j], 0) * p0, b = treffer(summen[j], 1) * p1,
                           c = treffer(summen[j], 2) * p2;
        punkte[0][j] = a;
        punkte[1][j] = b;
        punkte[2][j] = c;
        punkte[3][j] = a + b + c;
        ueberlauf |= ausserhalb(a) | ausserhalb(b) | ausserhalb(c) | ausserhalb(a + b + c);
    }
    if (!ueberlauf) return;
    for (std::size_t j = 0; j < N; ++j)
        if (ausserhalb(punkte[0][j]) | ausserhalb(punkte[1][j]) | ausserhalb(punkte[2][j]) |
            ausserhalb(punkte[3][j]))
            throw Laufzeitfehler(Laufzeitfehler::Ueberlauf, wobei(static_cast<int>(j)));
}

// Negative when the difference of a scored tip's goals leaves 16 bits: `differenz` is heim - aus
// wrapped to 16 bits, which has the wrong sign exactly then.
constexpr i16 differenzUebergelaufen(i16 gewertet, i16 heim, i16 aus, i16 differenz) {
    return static_cast<i16>(gewertet & (heim ^ aus) & (heim ^ differenz));
}

const char* const ArtImText[3] = {"für ganz richtige Tipps", "für richtige Tordifferenzen",
                                  "für richtige Tendenzen"};

// Copies the lanes, all within 16 bits, into a record's array of as many elements.
template <std::size_t N>
void kopiere(const std::array<std::int32_t, N>& bahnen, Feld<i16, static_cast<int>(N)>& ziel) {
    std::copy(bahnen.begin(), bahnen.end(), ziel.begin());
}

}  // namespace

void werteTippsAus(Spielstand& s, const Saisonplan& plan, int spielerNr) {
    SpielerAuswertung& a = s.Auswertung[spielerNr];
    if (s.Teilnehmer[spielerNr] != 1) {
        for (int tag = 0; tag <= plan.letzterTag; ++tag)
            for (int spiel = 0; spiel <= plan.letztesSpiel; ++spiel)
                a.SpielFarbe[tag][spiel] = Schaltflaechenfarbe;
        return;
    }
    // The tips of the season, home and away goals in turn, slot by slot.
    std::array<i16, 2 * Plaetze> tipp{};
    std::memcpy(tipp.data(), &s.Tipp[spielerNr], sizeof(Ergebnisse));

    // Both loops below run over every slot without a branch, which the compiler turns into vector
    // instructions: 3,420 tips an evaluation in a full season. First the kind of hit, in 16 bits.
    std::array<i16, Plaetze> korrekt;
    i16 ueberlauf = 0;  // negative once a scored tip's difference leaves the 16-bit range
    for (int i = 0; i < Plaetze; ++i) {
        const i16 heim = tipp[2 * i], aus = tipp[2 * i + 1];
        const i16 differenz = static_cast<i16>(heim - aus);  // wraps on overflow, caught by the sign test
        const i16 gewertet = plan.gewertet[i];
        ueberlauf |= differenzUebergelaufen(gewertet, heim, aus, differenz);
        // & rather than &&: both sides are evaluated anyway, and no branch keeps the loop vectorised.
        const bool komplett =
            static_cast<int>(heim == plan.toreHeim[i]) & static_cast<int>(aus == plan.toreGast[i]);
        korrekt[i] = static_cast<i16>(trefferart(komplett, differenz, plan.differenz[i]) | ~gewertet);
    }
    const auto spieler = [&] { return spielerImText(s, spielerNr); };
    if (ueberlauf < 0) {
        for (int i = 0; i < Plaetze; ++i) {
            const i16 heim = tipp[2 * i], aus = tipp[2 * i + 1];
            if (differenzUebergelaufen(plan.gewertet[i], heim, aus, static_cast<i16>(heim - aus)) < 0)
                throw Laufzeitfehler(Laufzeitfehler::Ueberlauf, "beim Tipp von " + spieler() + " für das " +
                                                                    std::to_string(i % MaxSpiele + 1) +
                                                                    ". Spiel " + amSpieltag(i / MaxSpiele));
        }
    }

    // Then the colour and the hit as a "Wertung", in 32 bits.
    const Farbe f0 = s.ModusFarbe[0], f1 = s.ModusFarbe[1], f2 = s.ModusFarbe[2];
    std::array<Farbe, Plaetze> farbe;
    std::array<std::int32_t, Plaetze> wertung;
    for (int i = 0; i < Plaetze; ++i) {
        const int art = korrekt[i];
        farbe[i] =
            waehle(art == KomplettRichtig, f0,
                   waehle(art == RichtigeHoehe, f1, waehle(art == RichtigeTendenz, f2, plan.ohneTreffer[i])));
        wertung[i] =
            (art == KomplettRichtig) | (art == RichtigeHoehe) << Bits | (art == RichtigeTendenz) << 2 * Bits;
    }
    kopiere(korrekt, a.Korrekt);
    kopiere(farbe, a.SpielFarbe);

    // The points per matchday and per team, from the hits counted per matchday and per team.
    const Feld<i16, 3>& regel = s.ModusPunkte;
    std::array<std::int32_t, MaxSpieltage> amTag{};
    for (int tag = 0; tag <= plan.letzterTag; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel)
            amTag[tag] += wertung[tag * MaxSpiele + spiel];
    std::array<std::int32_t, MaxTeams + 1> fuerTeam{};  // slots that do not count add 0 to KeinTeam
    for (int i = 0; i < Plaetze; ++i) {
        fuerTeam[plan.heim[i]] += wertung[i];
        fuerTeam[plan.gast[i]] += wertung[i];
    }

    std::array<std::array<std::int32_t, MaxSpieltage>, 4> tagesPunkte;
    punkteJeBahn(amTag, regel, tagesPunkte,
                 [&](int tag) { return "bei den Punkten von " + spieler() + " " + amSpieltag(tag); });
    kopiere(tagesPunkte[3], a.SpieltagPunkte);
    std::int32_t saison = 0, gesamt = 0;
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        saison += amTag[tag];
        gesamt += tagesPunkte[3][tag];
    }
    a.GesamtPunkte = auf16(gesamt, [&] { return "bei den Gesamtpunkten von " + spieler(); });
    for (int art = 0; art < 3; ++art)
        a.PunkteNachArt[art] = auf16(std::int64_t{treffer(saison, art)} * regel[art], [&] {
            return "bei den Punkten von " + spieler() + " " + ArtImText[art];
        });

    std::array<std::int32_t, MaxTeams> echteTeams;
    std::copy(fuerTeam.begin(), fuerTeam.begin() + MaxTeams, echteTeams.begin());
    std::array<std::array<std::int32_t, MaxTeams>, 4> teamPunkte;
    punkteJeBahn(echteTeams, regel, teamPunkte, [&](int team) {
        return "bei den Punkten von " + spieler() + " aus Spielen von " + teamImText(s.Teamname[team], team);
    });
    kopiere(teamPunkte[KomplettRichtig], a.TeamPunkteKorrekt);
    kopiere(teamPunkte[RichtigeHoehe], a.TeamPunkteDiff);
    kopiere(teamPunkte[RichtigeTendenz], a.TeamPunkteTendenz);
    kopiere(teamPunkte[3], a.TeamPunkte);
}

}  // namespace kalimbo
