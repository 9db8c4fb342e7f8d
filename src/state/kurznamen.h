#pragma once

#include <string>
#include <vector>

namespace kalimbo {

// Readable, unique short names of at most four characters for the given team names, in the
// same order: normally the first three letters of the first distinctive word ("Werder Bremen"
// -> "WER"); teams that would share one take two letters of it plus the initial of their next
// distinctive word ("Manchester City" -> "MAC"), then a distinguishing fourth letter, then a number
// ("BLA1", "BL10"). Whatever the input, every short name is unique and not empty; up to 999
// teams it has at most four characters, all of which Windows-1252 can store.
std::vector<std::string> kurznamen(const std::vector<std::string>& namen);

}  // namespace kalimbo
