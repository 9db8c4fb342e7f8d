#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/befehle.h"

namespace kalimbo::test {

// One in-process run of kalimbo-cli: exit code, standard output and error output.
struct Lauf {
    int code;
    std::string aus;
    std::string fehler;
};

inline Lauf starte(const std::vector<std::string>& argumente) {
    std::ostringstream aus, fehler;
    const int code = cli::fuehreAus(argumente, aus, fehler);
    return {code, aus.str(), fehler.str()};
}

}  // namespace kalimbo::test
