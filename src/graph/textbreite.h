#pragma once

#include <string_view>

namespace kalimbo::grafik {

// Estimated width in twips of `text` (UTF-8) set in a proportional sans-serif font at `groesse`
// points, from the width class of each character (narrow, lower case, digit, capital, very wide),
// a seventh more in bold. Generous for the common sans-serif fonts, so that boxes sized by it hold
// their text when painted.
int geschaetzteTextbreite(std::string_view text, int groesse, bool fett);

}  // namespace kalimbo::grafik
