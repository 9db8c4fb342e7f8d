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

// The highest index `anzahl` names, -1 (nothing) when it is negative; Laufzeitfehler::Index past `grenze`.
int hoechsterIndex(i16 anzahl, int grenze) {
    return anzahl < 0 ? -1 : static_cast<int>(pruefeIndex(anzahl, static_cast<std::size_t>(grenze)));
}

}  // namespace

void erstelleSaisonplan(const Spielstand& s, bool sonntagsspieleAuslassen, Saisonplan& plan) {
    plan = Saisonplan{};
    plan.letzterTag = hoechsterIndex(s.AnzSpieltage, MaxSpieltage);
    plan.letztesSpiel = hoechsterIndex(s.AnzSpiele, MaxSpiele);
    plan.ohneTreffer.fill(Weiss);
    for (int tag = 0; tag <= plan.letzterTag; ++tag) {
        for (int spiel = 0; spiel <= plan.letztesSpiel; ++spiel) {
            const int i = tag * MaxSpiele + spiel;
            if (s.SptgAuswerten[tag] != 1 ||
                sonntagsspielAusgelassen(s, sonntagsspieleAuslassen, tag, spiel)) {
                plan.ohneTreffer[i] = Schaltflaechenfarbe;
                continue;
            }
            const auto& ergebnis = s.Ergebnis[tag][spiel];
            const auto& paarung = s.Paarung[tag][spiel];
            plan.gewertet[i] = 1;
            plan.toreHeim[i] = ergebnis[0];
            plan.toreGast[i] = ergebnis[1];
            plan.differenz[i] = auf16(std::int64_t{ergebnis[0]} - ergebnis[1], [&] {
                return "beim Ergebnis des " + std::to_string(spiel + 1) + ". Spiels " + amSpieltag(tag);
            });
            plan.heim[i] = static_cast<i16>(pruefeIndex(paarung[0], MaxTeams));
            plan.gast[i] = static_cast<i16>(pruefeIndex(paarung[1], MaxTeams));
            plan.gezaehlt[plan.anzahl++] = static_cast<i16>(i);
        }
    }
}

}  // namespace kalimbo
