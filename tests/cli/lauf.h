#pragma once

#include <gtest/gtest.h>

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

// Runs `aufruf` with a game file that does not exist: exit code 1, nothing on the standard
// output, the German message on the error output.
inline void erwarteFehlendeDatei(const std::vector<std::string>& aufruf) {
    const Lauf l = starte(aufruf);
    EXPECT_EQ(l.code, 1);
    EXPECT_EQ(l.aus, "");
    EXPECT_EQ(l.fehler.rfind("Fehler: Die Datei „", 0), 0u) << l.fehler;
}

}  // namespace kalimbo::test
