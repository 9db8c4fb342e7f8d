#include "regeln.h"

namespace kalimbo {

std::string regelName(i16 modus) {
    if (modus >= 0 && modus < static_cast<i16>(FesteRegeln.size())) return FesteRegeln[modus].name;
    if (modus == ModusEigeneRegel) return "Eigene Regel";
    return "unbekannte Regel " + std::to_string(modus);
}

}  // namespace kalimbo
