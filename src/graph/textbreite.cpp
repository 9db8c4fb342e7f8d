#include "textbreite.h"

#include <cctype>

namespace kalimbo::grafik {

namespace {

// Width of a character in hundredths of an em, rounded up from the widest common sans-serif faces.
// Every character outside ASCII (umlauts, accented capitals) counts as a capital.
int breiteInHundertstelEm(unsigned char c) {
    constexpr std::string_view Schmal = "iljtfrI.,:;'!|()-/ ";
    constexpr std::string_view SehrBreit = "mwMW";
    if (c >= 0x80) return 80;
    if (SehrBreit.find(static_cast<char>(c)) != std::string_view::npos) return 100;
    if (Schmal.find(static_cast<char>(c)) != std::string_view::npos) return 42;
    if (std::isupper(c)) return 80;
    if (std::isdigit(c)) return 64;
    return 62;
}

}  // namespace

int geschaetzteTextbreite(std::string_view text, int groesse, bool fett) {
    int hundertstel = 0;
    for (const char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)  // a continuation byte adds no character
            hundertstel += breiteInHundertstelEm(static_cast<unsigned char>(c));
    // One point is 20 twips, so an em of `groesse` points is groesse * 20 twips; bold is 8/7 as wide.
    const long zaehler = static_cast<long>(hundertstel) * groesse * 20 * (fett ? 8 : 7);
    const long nenner = 100L * 7;
    return static_cast<int>((zaehler + nenner - 1) / nenner);
}

}  // namespace kalimbo::grafik
