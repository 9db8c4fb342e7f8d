#include "textbreite.h"

namespace kalimbo::grafik {

int geschaetzteTextbreite(std::string_view text, int groesse, bool fett) {
    int zeichen = 0;
    for (const char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++zeichen;  // not a continuation byte
    // One point is 20 twips; 0.6 em = 12 twips per point, 13.2 in bold.
    const int proZeichenZehntel = fett ? 132 : 120;
    return (zeichen * groesse * proZeichenZehntel + 9) / 10;
}

}  // namespace kalimbo::grafik
