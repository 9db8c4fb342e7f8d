#include "tippwertung.h"

#include <climits>

#include "fehlerort.h"
#include "regeln.h"

namespace kalimbo {

namespace {

constexpr int Plaetze = Saisonplan::Plaetze;

// A season of one player's tips, hit kinds or colours as one array of slots (matchday * 10 + match).
using Tippslots = std::array<std::array<i16, 2>, Plaetze>;
using Artslots = std::array<i16, Plaetze>;
using Farbslots = std::array<Farbe, Plaetze>;

// A player's tips of the season by slot.
Tippslots alsSlots(const Ergebnisse& tipps) {
    Tippslots slots{};
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel)
            slots[tag * MaxSpiele + spiel] = tipps[tag][spiel].werte;
    return slots;
}

// Copies the slots of the season into a record's array by matchday and match.
template <class T>
void kopiere(const std::array<T, Plaetze>& slots, Feld<Feld<T, MaxSpiele>, MaxSpieltage>& ziel) {
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel)
            ziel[tag][spiel] = slots[tag * MaxSpiele + spiel];
}

// Tips counted by hit kind: 0..2 the kinds, 3 the tips that hit nothing.
using Anzahl = std::array<int, 4>;
constexpr int OhneTreffer = 3;

// The points that the hits in `anzahl` earn under `regel`, per kind and in all.
struct Punkte {
    std::array<i16, 3> nachArt;
    i16 summe;
};

constexpr bool in16Bit(int wert) {
    return wert >= INT16_MIN && wert <= INT16_MAX;
}

// Computes the points exactly and throws Laufzeitfehler::Ueberlauf, named by `wobei()`, when one
// of the four figures leaves 16 bits.
template <class Wobei>
Punkte punkte(const Anzahl& anzahl, const Feld<i16, 3>& regel, Wobei wobei) {
    const int komplett = anzahl[KomplettRichtig] * regel[KomplettRichtig];
    const int hoehe = anzahl[RichtigeHoehe] * regel[RichtigeHoehe];
    const int tendenz = anzahl[RichtigeTendenz] * regel[RichtigeTendenz];
    const int summe = komplett + hoehe + tendenz;
    if (!(in16Bit(komplett) && in16Bit(hoehe) && in16Bit(tendenz) && in16Bit(summe)))
        throw Laufzeitfehler(Laufzeitfehler::Ueberlauf, wobei());
    return {{static_cast<i16>(komplett), static_cast<i16>(hoehe), static_cast<i16>(tendenz)},
            static_cast<i16>(summe)};
}

const char* const ArtImText[3] = {"für ganz richtige Tipps", "für richtige Tordifferenzen",
                                  "für richtige Tendenzen"};

// True when the difference of the two goal counts may leave 16 bits: one is beyond half the range.
constexpr bool differenzKannUeberlaufen(i16 heim, i16 aus) {
    return (heim < INT16_MIN / 2) | (heim > INT16_MAX / 2) | (aus < INT16_MIN / 2) | (aus > INT16_MAX / 2);
}

// The kind of hit of every tip of a season against its result, -1 where the match does not count:
// a plain loop over all slots without a branch, which the compiler turns into vector instructions.
// The differences are taken in 16 bits; they are exact unless a counted tip has a goal count beyond
// half the range, which sets `grosseTore` for the caller to check them one by one.
Artslots trefferarten(const Tippslots& tipps, const Saisonplan& plan, bool& grosseTore) {
    Artslots arten;
    i16 gross = 0;
    for (int i = 0; i < Plaetze; ++i) {
        const i16 heim = tipps[i][0], aus = tipps[i][1];
        const i16 toreHeim = plan.toreHeim[i], toreGast = plan.toreGast[i];
        const bool gewertet = plan.gewertet[i] == 1, unsicher = differenzKannUeberlaufen(heim, aus);
        gross |= gewertet & unsicher;
        const i16 art = trefferart((heim == toreHeim) & (aus == toreGast), static_cast<i16>(heim - aus),
                                   plan.differenz[i]);
        arten[i] = gewertet ? art : KeinTreffer;
    }
    grosseTore = gross != 0;
    return arten;
}

// Throws the overflow of the first counted tip whose difference leaves 16 bits, if there is one.
void pruefeDifferenzen(const Spielstand& s, const Saisonplan& plan, const Tippslots& tipps, int spieler) {
    for (int i = 0; i < Plaetze; ++i)
        if (plan.gewertet[i] == 1)
            auf16(tipps[i][0] - tipps[i][1], [&] {
                return "beim Tipp von " + spielerImText(s, spieler) + " für das " +
                       std::to_string(i % MaxSpiele + 1) + ". Spiel " + amSpieltag(i / MaxSpiele);
            });
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

    const Tippslots tipps = alsSlots(s.Tipp[spielerNr]);
    bool grosseTore = false;
    const Artslots arten = trefferarten(tipps, plan, grosseTore);
    if (grosseTore) pruefeDifferenzen(s, plan, tipps, spielerNr);

    const Farbe f0 = s.ModusFarbe[0], f1 = s.ModusFarbe[1], f2 = s.ModusFarbe[2];
    Farbslots farben;
    for (int i = 0; i < Plaetze; ++i) {
        const i16 art = arten[i];
        const Farbe ohneTreffer = plan.ohneTreffer[i];
        farben[i] = art == KomplettRichtig   ? f0
                    : art == RichtigeHoehe   ? f1
                    : art == RichtigeTendenz ? f2
                                             : ohneTreffer;
    }
    kopiere(arten, a.Korrekt);
    kopiere(farben, a.SpielFarbe);

    // The hits of the counted matches by kind, per matchday and per team: a tip on a match counts
    // for both of its teams. A matchday's counts are kept in variables rather than incremented in
    // memory tip after tip, which would chain every tip to the one before; a team plays once a
    // matchday, so its counters lie far apart from one tip to the next.
    std::array<Anzahl, MaxSpieltage> amTag{};
    std::array<Anzahl, MaxTeams> fuerTeam{};
    for (int tag = 0; tag <= plan.letzterTag; ++tag) {
        int komplett = 0, hoehe = 0, tendenz = 0;
        for (int spiel = 0; spiel <= plan.letztesSpiel; ++spiel) {
            const int i = tag * MaxSpiele + spiel;
            if (plan.gewertet[i] != 1) continue;
            const i16 art = arten[i];
            komplett += art == KomplettRichtig;
            hoehe += art == RichtigeHoehe;
            tendenz += art == RichtigeTendenz;
            const int fach = art == KeinTreffer ? OhneTreffer : art;
            ++fuerTeam[plan.heim[i]][fach];
            ++fuerTeam[plan.gast[i]][fach];
        }
        amTag[tag] = {komplett, hoehe, tendenz, 0};
    }

    const Feld<i16, 3>& regel = s.ModusPunkte;
    const auto spieler = [&] { return spielerImText(s, spielerNr); };
    Anzahl saison{};
    int gesamt = 0;
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        a.SpieltagPunkte[tag] = punkte(amTag[tag], regel, [&] {
                                    return "bei den Punkten von " + spieler() + " " + amSpieltag(tag);
                                }).summe;
        gesamt += a.SpieltagPunkte[tag];
        for (int art = 0; art < 3; ++art)
            saison[art] += amTag[tag][art];
    }
    a.GesamtPunkte = auf16(gesamt, [&] { return "bei den Gesamtpunkten von " + spieler(); });
    for (int art = 0; art < 3; ++art)
        a.PunkteNachArt[art] = auf16(saison[art] * regel[art], [&] {
            return "bei den Punkten von " + spieler() + " " + ArtImText[art];
        });
    for (int team = 0; team < MaxTeams; ++team) {
        const Punkte p = punkte(fuerTeam[team], regel, [&] {
            return "bei den Punkten von " + spieler() + " aus Spielen von " +
                   teamImText(s.Teamname[team], team);
        });
        a.TeamPunkteKorrekt[team] = p.nachArt[KomplettRichtig];
        a.TeamPunkteDiff[team] = p.nachArt[RichtigeHoehe];
        a.TeamPunkteTendenz[team] = p.nachArt[RichtigeTendenz];
        a.TeamPunkte[team] = p.summe;
    }
}

}  // namespace kalimbo
