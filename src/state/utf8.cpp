#include "utf8.h"

namespace kalimbo {

std::optional<char32_t> naechstesZeichen(std::string_view text, std::size_t& pos) {
    const auto b0 = static_cast<unsigned char>(text[pos]);
    if (b0 < 0x80) {
        ++pos;
        return b0;
    }
    const std::size_t folge = (b0 & 0xE0) == 0xC0 ? 1 : (b0 & 0xF0) == 0xE0 ? 2 : (b0 & 0xF8) == 0xF0 ? 3 : 0;
    if (folge == 0 || pos + folge >= text.size()) return std::nullopt;
    char32_t c = b0 & (0x3F >> folge);
    for (std::size_t i = 1; i <= folge; ++i) {
        const auto b = static_cast<unsigned char>(text[pos + i]);
        if ((b & 0xC0) != 0x80) return std::nullopt;
        c = (c << 6) | (b & 0x3F);
    }
    pos += folge + 1;
    return c;
}

void haengeUtf8An(std::string& ziel, char32_t c) {
    if (c < 0x80) {
        ziel += static_cast<char>(c);
    } else if (c < 0x800) {
        ziel += static_cast<char>(0xC0 | (c >> 6));
        ziel += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        ziel += static_cast<char>(0xE0 | (c >> 12));
        ziel += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        ziel += static_cast<char>(0x80 | (c & 0x3F));
    }
}

}  // namespace kalimbo
