#include "testdaten.h"

#include <fstream>
#include <iterator>
#include <random>
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
