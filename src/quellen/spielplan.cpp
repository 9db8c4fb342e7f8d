#include "spielplan.h"

#include <algorithm>
#include <istream>
#include <map>
#include <set>
#include <vector>

#include "state/cp1252.h"
#include "state/dateilesen.h"
#include "state/kurznamen.h"

namespace kalimbo {

namespace {

[[noreturn]] void fehlerInZeile(int nummer, const std::string& was) {
    throw Dateifehler("Zeile " + std::to_string(nummer) + ": " + was);
}

// Refuses a text that a game file cannot store: not UTF-8, a character outside Windows-1252, or
// longer than 32767 bytes. `wo` prefixes the message ("Zeile 7: ").
void pruefeSpeicherbar(const std::string& text, const std::string& wo) {
    try {
        if (nachCp1252(text).size() > 32767)
            throw Dateifehler("Der Text „" + text.substr(0, 40) + "…“ ist zu lang für eine Tippspiel-Datei.");
    } catch (const Dateifehler& e) {
        throw Dateifehler(wo + e.what());
    }
}

// Team names in order of first appearance, at most 20.
std::vector<std::string> teamsDerSaison(const std::vector<QuellSpiel>& spiele) {
    std::vector<std::string> teams;
    for (const auto& s : spiele) {
        for (const auto* name : {&s.heim, &s.gast}) {
            if (std::find(teams.begin(), teams.end(), *name) != teams.end()) continue;
            if (teams.size() == MaxTeams)
                fehlerInZeile(
                    s.zeile,
                    "„" + *name + "“ ist die 21. Mannschaft; eine Tippspiel-Datei fasst höchstens 20.");
            pruefeSpeicherbar(*name, "Zeile " + std::to_string(s.zeile) + ": ");
            teams.push_back(*name);
        }
    }
    if (teams.size() != 18 && teams.size() != 20) {
        throw Dateifehler("Die Saison hat " + std::to_string(teams.size()) +
                          " Mannschaften; eine Tippspiel-Datei fasst nur Ligen mit 18 oder 20 Mannschaften.");
    }
    return teams;
}

Dateiinhalt baueSpiel(const Quelle& quelle, const std::string& ligaInfo) {
    pruefeSpeicherbar(ligaInfo, "Die Liga-Angabe: ");
    if (quelle.format == Quellformat::FootballData)
        throw Dateifehler(
            "Die Datei enthält nur Ergebnisse, keinen Spielplan mit Spieltagen. Ein neues Tippspiel entsteht "
            "aus einem Spielplan (football.json) oder einer Saisontabelle; die Ergebnisse lassen sich danach "
            "übernehmen.");
    const std::vector<QuellSpiel>& spiele = quelle.spiele;
    if (spiele.empty()) throw Dateifehler("Die Datei enthält keine Spiele.");
    const std::vector<std::string> teams = teamsDerSaison(spiele);
    const int anzahl = static_cast<int>(teams.size());
    const int spieltage = 2 * (anzahl - 1);
    const int spieleJeTag = anzahl / 2;
    auto index = [&](const std::string& name) {
        return static_cast<i16>(std::find(teams.begin(), teams.end(), name) - teams.begin());
    };

    Dateiinhalt d;
    std::vector<std::set<i16>> teamsAmTag(spieltage);
    std::map<std::pair<i16, i16>, int> paarungZeile;
    for (const auto& s : spiele) {
        if (!s.runde)
            fehlerInZeile(s.zeile, "Das Spiel „" + s.heim + "“ gegen „" + s.gast + "“ hat keinen Spieltag.");
        if (*s.runde > spieltage) {
            fehlerInZeile(s.zeile, "Einen " + std::to_string(*s.runde) + ". Spieltag gibt es bei " +
                                       std::to_string(anzahl) + " Mannschaften nicht (höchstens " +
                                       std::to_string(spieltage) + ").");
        }
        const int tag = *s.runde - 1;
        const i16 heim = index(s.heim);
        const i16 gast = index(s.gast);
        for (const auto& [team, name] : {std::pair{heim, s.heim}, std::pair{gast, s.gast}}) {
            if (!teamsAmTag[tag].insert(team).second)
                fehlerInZeile(s.zeile, "„" + name + "“ spielt am " + std::to_string(*s.runde) +
                                           ". Spieltag zum zweiten Mal.");
        }
        if (const auto [it, neu] = paarungZeile.emplace(std::pair{heim, gast}, s.zeile); !neu) {
            fehlerInZeile(s.zeile, "Das Spiel „" + s.heim + "“ gegen „" + s.gast + "“ steht schon in Zeile " +
                                       std::to_string(it->second) + ".");
        }
        const int spiel = static_cast<int>(teamsAmTag[tag].size()) / 2 - 1;
        d.Paarung[tag][spiel] = {{heim, gast}};
        if (s.tore) d.ErgebnisDatei[tag][spiel] = {{(*s.tore)[0], (*s.tore)[1]}};
    }
    for (int tag = 0; tag < spieltage; ++tag) {
        const int anzahlSpiele = static_cast<int>(teamsAmTag[tag].size()) / 2;
        if (anzahlSpiele != spieleJeTag) {
            throw Dateifehler("Am " + std::to_string(tag + 1) + ". Spieltag stehen " +
                              std::to_string(anzahlSpiele) + " Spiele statt " + std::to_string(spieleJeTag) +
                              ".");
        }
    }

    const auto kurz = kurznamen(teams);
    for (int t = 0; t < anzahl; ++t) {
        d.Teamname[t] = teams[t];
        d.TeamnameKurz[t] = kurz[t];
    }
    d.AnzTeams = static_cast<i16>(anzahl - 1);
    d.AnzSpieltage = static_cast<i16>(spieltage - 1);
    d.AnzSpiele = static_cast<i16>(spieleJeTag - 1);
    d.TabFarbe = tabellenfarben(anzahl);
    d.LigaInfo[0] = ligaInfo;
    return d;
}

}  // namespace

Feld<Farbe, MaxTeams> tabellenfarben(int anzahlTeams) {
    Feld<Farbe, MaxTeams> farben;
    farben.fuelle(rgb(255, 255, 192));  // midfield
    farben[0] = rgb(255, 0, 0);
    farben[1] = farben[2] = rgb(245, 183, 35);
    farben[3] = rgb(255, 204, 51);
    farben[4] = farben[5] = rgb(255, 255, 0);
    for (int p = anzahlTeams - 3; p < anzahlTeams; ++p)
        farben[p] = rgb(255, 255, 255);
    return farben;
}

Dateiinhalt neuesSpiel(const Quelle& quelle, const std::string& ligaInfo) {
    try {
        return baueSpiel(quelle, ligaInfo);
    } catch (const Dateifehler& e) {
        throw Dateifehler(quelle.vorsatz() + e.what());
    }
}

Dateiinhalt importiereSaison(std::istream& csv, const std::string& ligaInfo) {
    const Dateianfang anfang = leseDateianfang(csv, GroessteSaisondatei, "Saisondatei");
    if (anfang.mehr) {
        throw Dateifehler("Die Saisondatei ist größer als jede Saison (höchstens " +
                          std::to_string(GroessteSaisondatei / (1024 * 1024)) + " MiB).");
    }
    return neuesSpiel(leseSaisontabelle(anfang.bytes), ligaInfo);
}

}  // namespace kalimbo
