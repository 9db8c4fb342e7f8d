// The short-name builder on any list of names (one per line, up to 40): every short name is
// unique, not empty, at most four characters, and storable in a game file.
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "pruefen.h"
#include "state/cp1252.h"
#include "state/kurznamen.h"

using namespace kalimbo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    std::vector<std::string> namen(1);
    for (std::size_t i = 0; i < groesse; ++i) {
        if (daten[i] != '\n')
            namen.back() += static_cast<char>(daten[i]);
        else if (namen.size() < 40)
            namen.emplace_back();
        else
            break;
    }
    const std::vector<std::string> kurz = kurznamen(namen);
    pruefe(kurz.size() == namen.size(), "not one short name per name");
    pruefe(std::set<std::string>(kurz.begin(), kurz.end()).size() == kurz.size(), "short name twice");
    for (const std::string& k : kurz)
        pruefe(!k.empty() && nachCp1252(k).size() <= 4, "short name empty, too long or not storable");
    return 0;
}
