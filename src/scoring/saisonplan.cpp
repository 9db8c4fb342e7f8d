#include "saisonplan.h"

#include "fehlerort.h"

namespace kalimbo {

namespace {

// True when match `spiel` of `spieltag` is one of the two Sunday matches of the season's current
// matchday and the user chose to leave those out ("Sonntagsspiele nicht auswerten").
bool sonntagsspielAusgelassen(const Spielstand& s, bool sonntagsspieleAuslassen, int spieltag, int spiel) {
    return sonntagsspieleAuslassen && spieltag == s.AktSpieltagGlobal &&
           (spiel == s.SonntagSpiele[0] || spiel == s.SonntagSpiele[1]);
}

}  // namespace

void erstelleSaisonplan(const Spielstand& s, bool sonntagsspieleAuslassen, Saisonplan& plan) {
    plan.letzterTag = s.AnzSpieltage < 0 ? -1 : static_cast<int>(pruefeIndex(s.AnzSpieltage, MaxSpieltage));
    plan.letztesSpiel = s.AnzSpiele < 0 ? -1 : static_cast<int>(pruefeIndex(s.AnzSpiele, MaxSpiele));
    plan.gewertet.fill(0);
    plan.toreHeim.fill(0);
    plan.toreGast.fill(0);
    plan.differenz.fill(0);
    plan.heim.fill(Saisonplan::KeinTeam);
    plan.gast.fill(Saisonplan::KeinTeam);
    plan.ohneTreffer.fill(Weiss);
    for (int tag = 0; tag <= plan.letzterTag; ++tag) {
        const bool tagZaehlt = s.SptgAuswerten[tag] == 1;
        for (int spiel = 0; spiel <= plan.letztesSpiel; ++spiel) {
            const int i = tag * MaxSpiele + spiel;
            if (!tagZaehlt || sonntagsspielAusgelassen(s, sonntagsspieleAuslassen, tag, spiel)) {
                plan.ohneTreffer[i] = Schaltflaechenfarbe;
                continue;
            }
            const auto& ergebnis = s.Ergebnis[tag][spiel];
            const auto& paarung = s.Paarung[tag][spiel];
            plan.gewertet[i] = -1;
            plan.toreHeim[i] = ergebnis[0];
            plan.toreGast[i] = ergebnis[1];
            plan.differenz[i] = auf16(std::int64_t{ergebnis[0]} - ergebnis[1], [&] {
                return "beim Ergebnis des " + std::to_string(spiel + 1) + ". Spiels " + amSpieltag(tag);
            });
            plan.heim[i] = static_cast<i16>(pruefeIndex(paarung[0], MaxTeams));
            plan.gast[i] = static_cast<i16>(pruefeIndex(paarung[1], MaxTeams));
        }
    }
    for (int i = 0; i < Saisonplan::Plaetze; ++i) {
        const int d = plan.differenz[i];
        plan.ausgangHeim[i] = ((d > 0) | (d == 0) << 10 | (d < 0) << 20) & plan.gewertet[i];
        plan.ausgangGast[i] = ((d < 0) | (d == 0) << 10 | (d > 0) << 20) & plan.gewertet[i];
    }
}

}  // namespace kalimbo
