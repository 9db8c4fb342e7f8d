#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kalimbo {

// Reads the UTF-8 sequence at `pos` and advances past it; nullopt (pos unchanged) when malformed.
std::optional<char32_t> naechstesZeichen(std::string_view text, std::size_t& pos);

// Appends code point `c` (below U+10000) to `ziel` as UTF-8.
void haengeUtf8An(std::string& ziel, char32_t c);

}  // namespace kalimbo
