#include "ergebnisimport.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include "scoring/auswahl.h"
#include "state/fehler.h"

namespace kalimbo {

namespace {

using Paarung = std::pair<int, int>;  // home and away team index

std::string ergebnis(const std::array<i16, 2>& tore) {
    return std::to_string(tore[0]) + ":" + std::to_string(tore[1]);
}

// The match of every pairing of the game: matchday and match index.
std::map<Paarung, std::pair<int, int>> spieleDerPaarungen(const Spielstand& spiel) {
    std::map<Paarung, std::pair<int, int>> spiele;
    for (int tag = 0; tag <= spiel.AnzSpieltage; ++tag)
        for (int k = 0; k <= spiel.AnzSpiele; ++k)
            spiele.emplace(Paarung{spiel.Paarung[tag][k][0], spiel.Paarung[tag][k][1]}, std::pair{tag, k});
    return spiele;
}

}  // namespace

Ergebnisuebernahme uebernimmErgebnisse(const Spielstand& spiel, const Quelle& quelle,
                                       const Zuordnung& zuordnung, bool ersetzen) {
    Ergebnisuebernahme u{spiel, {}};
    Ergebnisbericht& b = u.bericht;
    b.datei = std::filesystem::path(quelle.datei).filename().string();
    b.ersetzt = ersetzen;
    const auto spiele = spieleDerPaarungen(spiel);
    std::map<Paarung, const QuellSpiel*> gesehen;
    std::vector<std::vector<bool>> gemeldet(MaxSpieltage, std::vector<bool>(MaxSpiele));
    for (const QuellSpiel& s : quelle.spiele) {
        if (!s.tore) continue;
        if (s.datum) {
            b.von = b.von ? std::min(*b.von, *s.datum) : *s.datum;
            b.bis = b.bis ? std::max(*b.bis, *s.datum) : *s.datum;
        }
        const auto heim = zuordnung.team.find(s.heim), gast = zuordnung.team.find(s.gast);
        const auto treffer = heim == zuordnung.team.end() || gast == zuordnung.team.end()
                                 ? spiele.end()
                                 : spiele.find({heim->second, gast->second});
        if (treffer == spiele.end()) {
            b.ohneGegenstueck.push_back(s);
            continue;
        }
        if (const auto [frueher, neu] = gesehen.emplace(treffer->first, &s); !neu) {
            if (*frueher->second->tore == *s.tore) continue;
            throw Dateifehler(quelle.vorsatz() + "Zeile " + std::to_string(s.zeile) + ": Das Spiel „" +
                              s.heim + "“ gegen „" + s.gast + "“ steht schon in Zeile " +
                              std::to_string(frueher->second->zeile) + ", dort mit " +
                              ergebnis(*frueher->second->tore) + ", hier mit " + ergebnis(*s.tore) + ".");
        }
        const auto [tag, k] = treffer->second;
        auto& imSpiel = u.spiel.Ergebnis[tag][k];
        const std::array<i16, 2> vorher{imSpiel[0], imSpiel[1]};
        gemeldet[tag][k] = true;
        if (vorher == *s.tore && vorher != std::array<i16, 2>{}) {
            ++b.schonDa;
        } else if (vorher == std::array<i16, 2>{}) {
            ++b.uebernommen;
        } else {
            b.abweichend.push_back({tag, k, vorher, *s.tore});
            if (!ersetzen) continue;
        }
        imSpiel = {{(*s.tore)[0], (*s.tore)[1]}};
    }
    for (int tag = 0; tag <= spiel.AnzSpieltage; ++tag) {
        bool vollstaendig = true;
        for (int k = 0; k <= spiel.AnzSpiele; ++k)
            vollstaendig = vollstaendig && (gemeldet[tag][k] || u.spiel.Ergebnis[tag][k][0] != 0 ||
                                            u.spiel.Ergebnis[tag][k][1] != 0);
        if (vollstaendig) b.vollstaendig.push_back(tag);
    }
    return u;
}

std::string berichtText(const Ergebnisbericht& b, const Spielstand& spiel) {
    auto team = [&](int tag, int k, int seite) { return spiel.Teamname[spiel.Paarung[tag][k][seite]]; };
    std::string text = "Ergebnisse aus „" + b.datei + "“";
    if (b.von) text += ", Spiele vom " + datumText(*b.von) + " bis " + datumText(*b.bis);
    text += ":\n  " + std::to_string(b.uebernommen) + " übernommen\n  " + std::to_string(b.schonDa) +
            " schon eingetragen\n  " + std::to_string(b.abweichend.size()) + " abweichend, " +
            (b.ersetzt ? "ersetzt" : "behalten") + (b.abweichend.empty() ? "\n" : ":\n");
    for (const Abweichung& a : b.abweichend)
        text += "    " + std::to_string(a.spieltag + 1) + ". Spieltag, " + team(a.spieltag, a.spiel, 0) +
                " – " + team(a.spieltag, a.spiel, 1) + ": im Tippspiel " + ergebnis(a.imSpiel) +
                ", in der Datei " + ergebnis(a.inDatei) + "\n";
    text += "  " + std::to_string(b.ohneGegenstueck.size()) + " ohne Gegenstück im Tippspiel" +
            (b.ohneGegenstueck.empty() ? "\n" : ":\n");
    for (const QuellSpiel& s : b.ohneGegenstueck)
        text += "    Zeile " + std::to_string(s.zeile) + ": " + s.heim + " – " + s.gast + " " +
                ergebnis(*s.tore) + "\n";
    return text + "Vollständige Spieltage: " + spieltagsbereiche(b.vollstaendig) + "\n";
}

}  // namespace kalimbo
