#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::cli {

// Runs one command line of kalimbo-cli (without the program name). Writes results to `aus`
// and German messages to `fehler`. Returns the exit code: 0 success, 1 error, 2 wrong usage.
int fuehreAus(const std::vector<std::string>& argumente, std::ostream& aus, std::ostream& fehler);

}  // namespace kalimbo::cli
