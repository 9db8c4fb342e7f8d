#include "testdaten.h"

#include <cctype>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <stdexcept>

#include "quellen/spielplan.h"

namespace kalimbo::test {

namespace fs = std::filesystem;

fs::path gemeinsameDaten(const std::string& datei) {
    return fs::path(KALIMBO_SHARED_DATA) / datei;
}

std::string testdatei(const std::string& name) {
    const fs::path pfad = fs::path(KALIMBO_TEST_DATA) / name;
    if (!fs::exists(pfad)) throw std::runtime_error("missing " + pfad.string());
    return leseBytes(pfad);
}

Dateiinhalt saison(const std::string& name) {
    std::ifstream ein(gemeinsameDaten(name + ".matches.csv"));
    if (!ein) throw std::runtime_error("missing season " + name);
    return importiereSaison(ein, name);
}

namespace {

void setzeTore(Ergebnisse& ziel, int spieltag, std::string_view tore) {
    std::istringstream ein{std::string(tore)};
    int heim = 0, aus = 0;
    char doppelpunkt = 0;
    for (int spiel = 0; ein >> heim >> doppelpunkt >> aus; ++spiel) {
        if (doppelpunkt != ':') throw std::invalid_argument("bad score in " + std::string(tore));
        ziel[spieltag][spiel] = {{static_cast<i16>(heim), static_cast<i16>(aus)}};
    }
}

}  // namespace

std::array<int, 2> hinUndZurueck(int spieltag, int spiel) {
    return {2 * spiel + spieltag % 2, 2 * spiel + 1 - spieltag % 2};
}

Spielstand liga(const std::vector<std::string>& teams, int spieltage, const Paarung& paarung,
                std::string_view spieler) {
    Spielstand s;
    const int anzahl = static_cast<int>(teams.size());
    s.AnzTeams = static_cast<i16>(anzahl - 1);
    s.AnzSpiele = static_cast<i16>(anzahl / 2 - 1);
    s.AnzSpieltage = static_cast<i16>(spieltage - 1);
    s.AnzTippfelder = static_cast<i16>(MaxSpieler * (anzahl / 2) - 1);
    for (int t = 0; t < anzahl; ++t) {
        const std::string& team = teams[static_cast<std::size_t>(t)];
        const auto strich = team.find('|');
        s.Teamname[t] = team.substr(0, strich);
        s.TeamnameKurz[t] = strich == std::string::npos ? team.substr(0, 3) : team.substr(strich + 1);
        if (strich == std::string::npos)
            for (char& c : s.TeamnameKurz[t])
                c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    for (int tag = 0; tag < spieltage; ++tag)
        for (int spiel = 0; spiel < anzahl / 2; ++spiel) {
            const auto [heim, gast] = paarung(tag, spiel);
            s.Paarung[tag][spiel] = {{static_cast<i16>(heim), static_cast<i16>(gast)}};
        }
    std::istringstream namen{std::string(spieler)};
    for (int p = 0; p < MaxSpieler; ++p) {
        std::string name;
        namen >> name;
        s.Teilnehmer[p] = !name.empty() && name[0] != '-';
        s.Spielername[p] = name.empty() || s.Teilnehmer[p] ? name : name.substr(1);
    }
    return s;
}

Spielstand kleinesSpiel(int teams) {
    static const std::vector<std::string> Namen{
        "FC Ahrensfelde|AHR", "Borussia Bärstadt|BÄR", "SV Calmbach|CAL",
        "TuS Dörpen|DÖR",     "Eintracht Elsdorf|ELS", "VfB Fürth-Süd|FÜR",
        "SC Gmünd|GMÜ",       "Hansa Heide|HEI",       "Union Ilmenau|ILM",
        "Jahn Jübek|JÜB",     "Kickers Kölln|KÖL",     "Lok Lübars|LÜB",
        "MSV Möhnesee|MÖH",   "Concordia Nörten|NÖR",  "Olympia Oese|OES",
        "Preußen Plön|PLÖ",   "Rot-Weiß Rüthen|RÜT",   "Sportfreunde Süchteln|SÜC",
        "TSV Tönning|TÖN",    "Viktoria Vöhl|VÖH"};
    // Circle method: team teams-1 stays, the others turn one place per round.
    const int kreis = teams - 1;
    const Paarung runden = [kreis](int tag, int spiel) {
        const int runde = tag % kreis;
        std::array<int, 2> p{spiel == 0 ? kreis : (runde + spiel) % kreis,
                             spiel == 0 ? runde : (runde - spiel + kreis) % kreis};
        if (tag >= kreis) std::swap(p[0], p[1]);
        return p;
    };
    return liga({Namen.begin(), Namen.begin() + teams}, 2 * kreis, runden, "Anna Bernd Carl Dora");
}

void setzeErgebnisse(Spielstand& s, int spieltag, std::string_view ergebnisse) {
    setzeTore(s.Ergebnis, spieltag, ergebnisse);
}

void setzeTipps(Spielstand& s, int spieler, int spieltag, std::string_view tipps) {
    setzeTore(s.Tipp[spieler], spieltag, tipps);
}

std::string auswahl(const Spielstand& s) {
    std::string text;
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        if (s.SptgAuswerten[tag] != 1) continue;
        int ende = tag;
        while (ende + 1 < MaxSpieltage && s.SptgAuswerten[ende + 1] == 1)
            ++ende;
        if (!text.empty()) text += ", ";
        text += std::to_string(tag);
        if (ende > tag) text += "-" + std::to_string(ende);
        tag = ende;
    }
    return text;
}

void setzeAuswahl(Spielstand& s, std::string_view auswahl) {
    s.SptgAuswerten.fuelle(0);
    std::istringstream ein{std::string(auswahl)};
    int von = 0;
    while (ein >> von) {
        int bis = von;
        if (ein.peek() == '-') ein.ignore() >> bis;
        for (int tag = von; tag <= bis; ++tag)
            s.SptgAuswerten[tag] = 1;
        if (ein.peek() == ',') ein.ignore();
    }
}

std::string leseBytes(const fs::path& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
}

void schreibeBytes(const fs::path& pfad, const std::string& bytes) {
    std::ofstream aus(pfad, std::ios::binary);
    aus << bytes;
}

TempOrdner::TempOrdner() {
    std::random_device zufall;
    m_pfad = fs::temp_directory_path() / ("kalimbo-test-" + std::to_string(zufall()));
    fs::create_directories(m_pfad);
}

TempOrdner::~TempOrdner() {
    std::error_code ec;
    fs::permissions(m_pfad, fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(m_pfad, ec);
}

}  // namespace kalimbo::test
