#pragma once

#include <string>
#include <string_view>

namespace kalimbo {

// Every decimal number the program prints goes through these two functions. They never consult the
// C locale: the caller passes the decimal separator (the user's, in the windows). The value is
// first written with 15 significant digits; all rounding happens on that decimal text, halves away
// from zero, so 6.125 gives "6.13" and 0.575 (stored as 0.57499999...) gives "0.58".

// Fixed-point text of a finite `wert` with at least `minDezimalen` and at most `maxDezimalen`
// decimals (0 <= min <= max): rounded to max decimals, then trailing zeros dropped down to min.
// The pattern "0.0#" is (1, 2), "0.00" is (2, 2). A value that rounds to zero has no minus sign.
std::string formatiereZahl(double wert, int minDezimalen, int maxDezimalen, std::string_view trenner);

// The general number form of a finite `wert`: a whole number without decimals, otherwise its 15
// significant digits without trailing zeros (5/3 gives "1.66666666666667"). Never an exponent.
std::string allgemeineZahl(double wert, std::string_view trenner);

}  // namespace kalimbo
