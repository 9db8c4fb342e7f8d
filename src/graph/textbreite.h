#pragma once

#include <string_view>

namespace kalimbo::grafik {

// Estimated width in twips of `text` (UTF-8) set in a proportional sans-serif font at `groesse`
// points: 0.6 em per character, a tenth more in bold. Generous for the common sans-serif fonts,
// so that boxes sized by it hold their text when painted.
int geschaetzteTextbreite(std::string_view text, int groesse, bool fett);

}  // namespace kalimbo::grafik
