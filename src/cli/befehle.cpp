#include "befehle.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <ostream>
#include <set>

#include "info.h"
#include "state/saisonimport.h"
#include "state/spieldatei.h"
#include "tabellen.h"

namespace kalimbo::cli {

namespace {

namespace fs = std::filesystem;

constexpr const char* Gebrauch =
    "Aufruf: kalimbo-cli BEFEHL ...\n"
    "  info SPIEL.tip                         zeigt Liga, Mannschaften, Spieler, Regel und Auswahl\n"
    "  neu SAISON.csv SPIEL.tip [--liga TEXT] legt ein neues Tippspiel aus einer Saisontabelle an\n"
    "  tabelle SPIEL.tip [AUSWERTUNG]         wertet aus und zeigt die Tabelle der Liga\n"
    "  spieler SPIEL.tip [AUSWERTUNG]         wertet aus und zeigt die Gesamtwertung der Spieler\n"
    "AUSWERTUNG:\n"
    "  --alle     alle Spieltage der Saison statt der in der Datei ausgewählten\n"
    "  --sonntag  die Sonntagsspiele des aktuellen Spieltags nicht auswerten\n"
    "  --regel N  nach Regel N: 0 = 2-Punkte-Regel, 1 = 3-Punkte-Regel, 2 = 3-2-1-Regel, 3 = eigene Regel\n";

struct Gebrauchsfehler {
    std::string meldung;
};

// Splits the arguments into positional ones, "--name value" options and "--name" switches.
struct Aufruf {
    std::vector<std::string> werte;
    std::map<std::string, std::string> optionen;
    std::set<std::string> schalter;
};

Aufruf zerlege(const std::vector<std::string>& argumente, const std::vector<std::string>& mitWert,
               const std::vector<std::string>& schalter = {}) {
    Aufruf a;
    for (std::size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        if (arg.rfind("--", 0) != 0) {
            a.werte.push_back(arg);
            continue;
        }
        if (std::find(schalter.begin(), schalter.end(), arg) != schalter.end()) {
            a.schalter.insert(arg);
            continue;
        }
        if (std::find(mitWert.begin(), mitWert.end(), arg) == mitWert.end())
            throw Gebrauchsfehler{"Unbekannte Option " + arg + "."};
        if (i + 1 >= argumente.size()) throw Gebrauchsfehler{"Der Option " + arg + " fehlt ihr Wert."};
        a.optionen[arg] = argumente[++i];
    }
    return a;
}

void erwarteWerte(const Aufruf& a, std::size_t anzahl) {
    if (a.werte.size() != anzahl) throw Gebrauchsfehler{"Falsche Anzahl von Angaben."};
}

int info(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Aufruf a = zerlege(argumente, {});
    erwarteWerte(a, 1);
    Spielstand spiel;
    spiel.oeffne(ladeSpieldatei(a.werte[0]));
    schreibeInfo(spiel, aus);
    return 0;
}

// "de1-2005-06.matches.csv" -> "de1-2005-06".
std::string ligaAusDateiname(const fs::path& csv) {
    std::string name = csv.stem().string();
    const std::string zusatz = ".matches";
    if (name.size() > zusatz.size() && name.ends_with(zusatz)) name.resize(name.size() - zusatz.size());
    return name;
}

int neu(const std::vector<std::string>& argumente, std::ostream&) {
    const Aufruf a = zerlege(argumente, {"--liga"});
    erwarteWerte(a, 2);
    const fs::path csv = a.werte[0];
    std::ifstream ein(csv);
    if (!ein) throw Dateifehler("Die Datei „" + csv.string() + "“ konnte nicht geöffnet werden.");
    const auto liga = a.optionen.count("--liga") ? a.optionen.at("--liga") : ligaAusDateiname(csv);
    Dateiinhalt inhalt;
    try {
        inhalt = importiereSaison(ein, liga);
    } catch (const Dateifehler& e) {
        throw Dateifehler(csv.string() + ": " + e.what());
    }
    speichereSpieldatei(a.werte[1], inhalt);
    return 0;
}

// Opens the game named by the only positional argument and evaluates it with the evaluating
// options, as every evaluating command starts.
Spielstand ausgewertet(const std::vector<std::string>& argumente) {
    const Aufruf a = zerlege(argumente, {"--regel"}, {"--alle", "--sonntag"});
    erwarteWerte(a, 1);
    Auswertungsoptionen optionen;
    optionen.alle = a.schalter.count("--alle") > 0;
    optionen.sonntag = a.schalter.count("--sonntag") > 0;
    if (const auto regel = a.optionen.find("--regel"); regel != a.optionen.end()) {
        if (regel->second.size() != 1 || regel->second[0] < '0' || regel->second[0] > '3')
            throw Gebrauchsfehler{"--regel erwartet 0, 1, 2 oder 3, nicht „" + regel->second + "“."};
        optionen.regel = static_cast<i16>(regel->second[0] - '0');
    }
    Spielstand spiel;
    spiel.oeffne(ladeSpieldatei(a.werte[0]));
    werteWieGeoeffnetAus(spiel, optionen);
    return spiel;
}

int tabelle(const std::vector<std::string>& argumente, std::ostream& aus) {
    schreibeTabelle(ausgewertet(argumente), aus);
    return 0;
}

int spieler(const std::vector<std::string>& argumente, std::ostream& aus) {
    schreibeSpieler(ausgewertet(argumente), aus);
    return 0;
}

}  // namespace

int fuehreAus(const std::vector<std::string>& argumente, std::ostream& aus, std::ostream& fehler) {
    using Befehl = std::function<int(const std::vector<std::string>&, std::ostream&)>;
    const std::map<std::string, Befehl> befehle{
        {"info", info}, {"neu", neu}, {"tabelle", tabelle}, {"spieler", spieler}};
    try {
        if (argumente.empty() || !befehle.count(argumente[0])) throw Gebrauchsfehler{""};
        return befehle.at(argumente[0])({argumente.begin() + 1, argumente.end()}, aus);
    } catch (const Gebrauchsfehler& g) {
        if (!g.meldung.empty()) fehler << g.meldung << '\n';
        fehler << Gebrauch;
        return 2;
    } catch (const std::exception& e) {
        fehler << "Fehler: " << e.what() << '\n';
        return 1;
    }
}

}  // namespace kalimbo::cli
