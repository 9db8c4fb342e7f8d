#include "testdaten.h"

#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <stdexcept>

#include "state/saisonimport.h"

namespace kalimbo::test {

namespace fs = std::filesystem;

fs::path gemeinsameDaten(const std::string& datei) {
    return fs::path(KALIMBO_SHARED_DATA) / datei;
}

Dateiinhalt saison(const std::string& name) {
    std::ifstream ein(gemeinsameDaten(name + ".matches.csv"));
    if (!ein) throw std::runtime_error("missing season " + name);
    return importiereSaison(ein, name);
}

std::vector<std::vector<std::string>> leseCsv(const fs::path& pfad) {
    std::ifstream ein(pfad);
    if (!ein) throw std::runtime_error("missing " + pfad.string());
    std::vector<std::vector<std::string>> zeilen;
    std::string zeile;
    std::getline(ein, zeile);  // header
    while (std::getline(ein, zeile)) {
        std::vector<std::string> felder(1);
        for (const char c : zeile) {
            if (c == ',')
                felder.emplace_back();
            else
                felder.back() += c;
        }
        zeilen.push_back(felder);
    }
    return zeilen;
}

namespace {

void setzeTore(Ergebnisse& ziel, int spieltag, std::string_view text) {
    std::istringstream ein{std::string(text)};
    int heim = 0, aus = 0;
    char doppelpunkt = 0;
    for (int spiel = 0; ein >> heim >> doppelpunkt >> aus; ++spiel) {
        if (doppelpunkt != ':') throw std::invalid_argument("bad score in " + std::string(text));
        ziel[spieltag][spiel] = {{static_cast<i16>(heim), static_cast<i16>(aus)}};
    }
}

}  // namespace

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
