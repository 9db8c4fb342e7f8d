#pragma once

#include <cstdint>

#include "fehler.h"

namespace kalimbo {

using i16 = std::int16_t;
// Colours are 32-bit values with red in the low byte (0x00BBGGRR).
using Farbe = std::int32_t;

constexpr Farbe rgb(int rot, int gruen, int blau) {
    return rot | (gruen << 8) | (blau << 16);
}

// Narrows a wider value to 16 bits; throws Laufzeitfehler::Ueberlauf outside -32768..32767.
// Every arithmetic step on the game's 16-bit figures goes through here.
constexpr i16 auf16(std::int64_t wert) {
    if (wert < INT16_MIN || wert > INT16_MAX) throw Laufzeitfehler(Laufzeitfehler::Ueberlauf);
    return static_cast<i16>(wert);
}

// The same for a figure an error message can name: `wobei()` gives the phrase (see
// Laufzeitfehler), built only when the value overflows.
template <class Wobei>
i16 auf16(std::int64_t wert, Wobei wobei) {
    if (wert < INT16_MIN || wert > INT16_MAX) throw Laufzeitfehler(Laufzeitfehler::Ueberlauf, wobei());
    return static_cast<i16>(wert);
}

constexpr i16 plus16(i16 a, i16 b) {
    return auf16(std::int64_t{a} + b);
}
constexpr i16 minus16(i16 a, i16 b) {
    return auf16(std::int64_t{a} - b);
}
constexpr i16 mal16(i16 a, i16 b) {
    return auf16(std::int64_t{a} * b);
}

// ziel += wert, overflow-checked.
constexpr void addiere(i16& ziel, i16 wert) {
    ziel = plus16(ziel, wert);
}

// zaehler / nenner rounded to the nearest integer, an exact half to the even neighbour (what
// storing a quotient in a 16-bit figure does). Throws Laufzeitfehler::DivisionDurchNull for a
// zero `nenner` and Laufzeitfehler::Ueberlauf outside 16 bits.
constexpr i16 quotient16(i16 zaehler, i16 nenner) {
    if (nenner == 0) throw Laufzeitfehler(Laufzeitfehler::DivisionDurchNull);
    // With a positive divisor, floor division gives a = q * b + rest and 0 <= rest < b.
    const std::int64_t a = nenner < 0 ? -std::int64_t{zaehler} : zaehler;
    const std::int64_t b = nenner < 0 ? -std::int64_t{nenner} : nenner;
    std::int64_t q = a / b, rest = a % b;
    if (rest < 0) {
        q -= 1;
        rest += b;
    }
    if (2 * rest > b || (2 * rest == b && q % 2 != 0)) q += 1;
    return auf16(q);
}

}  // namespace kalimbo
