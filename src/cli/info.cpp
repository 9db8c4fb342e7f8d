#include "info.h"

#include <ostream>

#include "scoring/auswahl.h"
#include "scoring/regeln.h"

namespace kalimbo::cli {

void schreibeInfo(const Spielstand& spiel, std::ostream& aus) {
    aus << "Liga: " << spiel.getLigaInfo() << '\n'
        << "Mannschaften: " << spiel.AnzTeams + 1 << '\n'
        << "Spieltage: " << spiel.AnzSpieltage + 1 << '\n'
        << "Spiele je Spieltag: " << spiel.AnzSpiele + 1 << '\n';
    for (int t = 0; t <= spiel.AnzTeams; ++t)
        aus << "  " << t + 1 << '\t' << spiel.TeamnameKurz[t] << '\t' << spiel.Teamname[t] << '\n';
    aus << "Spieler, die mitspielen:\n";
    for (int p = 0; p < MaxSpieler; ++p) {
        if (spiel.Teilnehmer[p] != 1) continue;
        const std::string& name = spiel.Spielername[p];
        aus << "  " << p + 1 << '\t' << (name.empty() ? "(ohne Namen)" : name) << '\n';
    }
    aus << "Regel: " << regelName(spiel.Modus) << " (" << spiel.ModusPunkte[0] << '/' << spiel.ModusPunkte[1]
        << '/' << spiel.ModusPunkte[2] << " Punkte)\n";
    aus << "Aktueller Spieltag: ";
    if (spiel.AktSpieltagGlobal == KeinAktuellerSpieltag)
        aus << "nicht gesetzt\n";
    else
        aus << spiel.AktSpieltagGlobal + 1 << '\n';
    std::vector<int> ausgewaehlt;
    for (int tag = 0; tag <= spiel.AnzSpieltage; ++tag)
        if (spiel.SptgAuswerten[tag] == 1) ausgewaehlt.push_back(tag);
    aus << "Ausgewählte Spieltage: " << spieltagsbereiche(ausgewaehlt) << '\n';
}

}  // namespace kalimbo::cli
