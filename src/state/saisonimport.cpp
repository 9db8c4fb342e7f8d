#include "saisonimport.h"

#include <algorithm>
#include <charconv>
#include <istream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <vector>

#include "cp1252.h"
#include "dateilesen.h"
#include "kurznamen.h"

namespace kalimbo {

namespace {

struct Zeile {
    int nummer = 0;    // line number in the file, 1-based
    int spieltag = 0;  // 1-based as in the file
    std::string heim, gast;
    std::optional<std::pair<i16, i16>> tore;
};

[[noreturn]] void fehlerInZeile(int nummer, const std::string& was) {
    throw Dateifehler("Zeile " + std::to_string(nummer) + ": " + was);
}

// Splits one CSV line; fields may be enclosed in double quotes ("" inside stands for ").
std::vector<std::string> felder(const std::string& zeile) {
    std::vector<std::string> ergebnis(1);
    bool zitat = false;
    for (std::size_t i = 0; i < zeile.size(); ++i) {
        const char c = zeile[i];
        if (zitat && c == '"' && i + 1 < zeile.size() && zeile[i + 1] == '"') {
            ergebnis.back() += '"';
            ++i;
        } else if (c == '"') {
            zitat = !zitat;
        } else if (c == ',' && !zitat) {
            ergebnis.emplace_back();
        } else {
            ergebnis.back() += c;
        }
    }
    return ergebnis;
}

std::string ohneRand(const std::string& s) {
    const auto anfang = s.find_first_not_of(" \t");
    if (anfang == std::string::npos) return {};
    return s.substr(anfang, s.find_last_not_of(" \t") - anfang + 1);
}

std::optional<int> ganzzahl(const std::string& s) {
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(s.data(), s.data() + s.size(), wert);
    if (fehler != std::errc() || ende != s.data() + s.size()) return std::nullopt;
    return wert;
}

Zeile leseZeile(const std::string& text, int nummer) {
    auto f = felder(text);
    if (f.size() != 5) {
        fehlerInZeile(nummer,
                      "Es werden 5 Felder erwartet (matchday,home,away,home_goals,away_goals), gefunden " +
                          std::to_string(f.size()) + ".");
    }
    for (auto& feld : f)
        feld = ohneRand(feld);
    Zeile z{nummer, 0, f[1], f[2], std::nullopt};
    const auto tag = ganzzahl(f[0]);
    if (!tag || *tag < 1) fehlerInZeile(nummer, "„" + f[0] + "“ ist keine gültige Spieltagsnummer.");
    z.spieltag = *tag;
    if (z.heim.empty() || z.gast.empty()) fehlerInZeile(nummer, "Der Name einer Mannschaft fehlt.");
    if (z.heim == z.gast) fehlerInZeile(nummer, "„" + z.heim + "“ kann nicht gegen sich selbst spielen.");
    if (f[3].empty() != f[4].empty())
        fehlerInZeile(nummer, "Es sind nur die Tore einer Mannschaft eingetragen.");
    if (!f[3].empty()) {
        const auto heim = ganzzahl(f[3]);
        const auto gast = ganzzahl(f[4]);
        if (!heim || !gast || *heim < 0 || *gast < 0 || *heim > 999 || *gast > 999)
            fehlerInZeile(nummer, "„" + f[3] + ":" + f[4] + "“ ist kein gültiges Ergebnis.");
        z.tore = std::pair{static_cast<i16>(*heim), static_cast<i16>(*gast)};
    }
    return z;
}

std::vector<Zeile> leseZeilen(std::istream& ein) {
    const Dateianfang anfang = leseDateianfang(ein, GroessteSaisondatei, "Saisondatei");
    if (anfang.mehr) {
        throw Dateifehler("Die Saisondatei ist größer als jede Saison (höchstens " +
                          std::to_string(GroessteSaisondatei / (1024 * 1024)) + " MiB).");
    }
    std::istringstream csv(anfang.bytes);
    std::vector<Zeile> zeilen;
    std::string text;
    int nummer = 0;
    while (std::getline(csv, text)) {
        ++nummer;
        if (!text.empty() && text.back() == '\r') text.pop_back();
        if (nummer == 1) {
            if (text.rfind("\xEF\xBB\xBF", 0) == 0) text.erase(0, 3);  // byte order mark
            if (text != "matchday,home,away,home_goals,away_goals")
                fehlerInZeile(1, "Die Kopfzeile muss „matchday,home,away,home_goals,away_goals“ lauten.");
            continue;
        }
        if (ohneRand(text).empty()) continue;
        zeilen.push_back(leseZeile(text, nummer));
    }
    if (zeilen.empty()) throw Dateifehler("Die Saisondatei enthält keine Spiele.");
    return zeilen;
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
std::vector<std::string> teamsDerSaison(const std::vector<Zeile>& zeilen) {
    std::vector<std::string> teams;
    for (const auto& z : zeilen) {
        for (const auto* name : {&z.heim, &z.gast}) {
            if (std::find(teams.begin(), teams.end(), *name) != teams.end()) continue;
            if (teams.size() == MaxTeams)
                fehlerInZeile(
                    z.nummer,
                    "„" + *name + "“ ist die 21. Mannschaft; eine Tippspiel-Datei fasst höchstens 20.");
            pruefeSpeicherbar(*name, "Zeile " + std::to_string(z.nummer) + ": ");
            teams.push_back(*name);
        }
    }
    if (teams.size() != 18 && teams.size() != 20) {
        throw Dateifehler("Die Saison hat " + std::to_string(teams.size()) +
                          " Mannschaften; eine Tippspiel-Datei fasst nur Ligen mit 18 oder 20 Mannschaften.");
    }
    return teams;
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

Dateiinhalt importiereSaison(std::istream& csv, const std::string& ligaInfo) {
    pruefeSpeicherbar(ligaInfo, "Die Liga-Angabe: ");
    const std::vector<Zeile> zeilen = leseZeilen(csv);
    const std::vector<std::string> teams = teamsDerSaison(zeilen);
    const int anzahl = static_cast<int>(teams.size());
    const int spieltage = 2 * (anzahl - 1);
    const int spieleJeTag = anzahl / 2;
    auto index = [&](const std::string& name) {
        return static_cast<i16>(std::find(teams.begin(), teams.end(), name) - teams.begin());
    };

    Dateiinhalt d;
    std::vector<std::set<i16>> teamsAmTag(spieltage);
    std::map<std::pair<i16, i16>, int> paarungZeile;
    for (const auto& z : zeilen) {
        if (z.spieltag > spieltage) {
            fehlerInZeile(z.nummer, "Einen " + std::to_string(z.spieltag) + ". Spieltag gibt es bei " +
                                        std::to_string(anzahl) + " Mannschaften nicht (höchstens " +
                                        std::to_string(spieltage) + ").");
        }
        const int tag = z.spieltag - 1;
        const i16 heim = index(z.heim);
        const i16 gast = index(z.gast);
        for (const auto& [team, name] : {std::pair{heim, z.heim}, std::pair{gast, z.gast}}) {
            if (!teamsAmTag[tag].insert(team).second)
                fehlerInZeile(z.nummer, "„" + name + "“ spielt am " + std::to_string(z.spieltag) +
                                            ". Spieltag zum zweiten Mal.");
        }
        if (const auto [it, neu] = paarungZeile.emplace(std::pair{heim, gast}, z.nummer); !neu) {
            fehlerInZeile(z.nummer, "Das Spiel „" + z.heim + "“ gegen „" + z.gast +
                                        "“ steht schon in Zeile " + std::to_string(it->second) + ".");
        }
        const int spiel = static_cast<int>(teamsAmTag[tag].size()) / 2 - 1;
        d.Paarung[tag][spiel] = {{heim, gast}};
        if (z.tore) d.ErgebnisDatei[tag][spiel] = {{z.tore->first, z.tore->second}};
    }
    for (int tag = 0; tag < spieltage; ++tag) {
        const int spiele = static_cast<int>(teamsAmTag[tag].size()) / 2;
        if (spiele != spieleJeTag) {
            throw Dateifehler("Am " + std::to_string(tag + 1) + ". Spieltag stehen " +
                              std::to_string(spiele) + " Spiele statt " + std::to_string(spieleJeTag) + ".");
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

}  // namespace kalimbo
