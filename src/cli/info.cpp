#include "info.h"

#include <ostream>

#include "scoring/regeln.h"

namespace kalimbo::cli {

namespace {

// "1-17, 20, 22-25" for the selected matchdays (1-based), "keine" when there are none.
std::string auswahlText(const Spielstand& spiel) {
    std::string text;
    for (int tag = 0; tag <= spiel.AnzSpieltage; ++tag) {
        if (spiel.SptgAuswerten[tag] != 1) continue;
        int ende = tag;
        while (ende < spiel.AnzSpieltage && spiel.SptgAuswerten[ende + 1] == 1)
            ++ende;
        if (!text.empty()) text += ", ";
        text += std::to_string(tag + 1);
        if (ende > tag) text += "-" + std::to_string(ende + 1);
        tag = ende;
    }
    return text.empty() ? "keine" : text;
}

}  // namespace

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
    aus << "Ausgewählte Spieltage: " << auswahlText(spiel) << '\n';
}

}  // namespace kalimbo::cli
