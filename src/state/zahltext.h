#pragma once

#include <string_view>

#include "zahl16.h"

namespace kalimbo {

// Reads the number at the start of a text box's text: leading blanks are skipped, then a sign,
// digits, a decimal point and an exponent are read as far as they form a number; an empty or
// non-numeric text gives 0. The value is rounded to the nearest integer, halves to even.
// Throws Laufzeitfehler::Ueberlauf when it lies outside -32768..32767.
i16 zahlAusText(std::string_view text);

}  // namespace kalimbo
