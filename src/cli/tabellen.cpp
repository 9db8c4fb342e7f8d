#include "tabellen.h"

#include <ostream>

#include "scoring/auswahl.h"
#include "scoring/auswertung.h"
#include "scoring/regeln.h"

namespace kalimbo::cli {

void schreibeTabelle(const Tabellenzeilen& tabelle, i16 anzTeams, std::ostream& aus) {
    for (int platz = 0; platz <= anzTeams; ++platz) {
        const Tabellenzeile& z = tabelle[teamAufPlatz(tabelle, anzTeams, platz)];
        aus << platz + 1 << '\t' << z.Name << '\t' << z.Punkte << '\t' << z.Tore << ':' << z.Gegentore << '\t'
            << minus16(z.Tore, z.Gegentore) << '\t' << z.Siege << '\t' << z.Unentschieden << '\t'
            << z.Niederlagen << '\n';
    }
}

void schreibeSpieler(const Spielstand& spiel, std::ostream& aus) {
    for (int position = 0; position < MaxSpieler; ++position) {
        const i16 spieler = spielerAufPlatz(spiel, position);
        const SpielerAuswertung& a = spiel.Auswertung[spieler];
        aus << a.Platz + 1 << '\t' << spiel.Spielername[spieler] << '\t' << a.GesamtPunkte << '\n';
    }
}

}  // namespace kalimbo::cli
