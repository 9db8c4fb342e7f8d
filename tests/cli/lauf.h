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
    friend bool operator==(const Lauf&, const Lauf&) = default;
};

inline Lauf starte(const std::vector<std::string>& argumente) {
    std::ostringstream aus, fehler;
    const int code = cli::fuehreAus(argumente, aus, fehler);
    return {code, aus.str(), fehler.str()};
}

// A run that succeeds with `aus` and nothing on the error output.
inline Lauf erfolg(const std::string& aus) {
    return {0, aus, ""};
}

}  // namespace kalimbo::test
