#include "zahltext.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <string>

namespace kalimbo {

namespace {

bool istZiffer(char c) {
    return c >= '0' && c <= '9';
}

// Copies the digits starting at pos into ziel; returns how many there were.
std::size_t ziffern(std::string_view text, std::size_t& pos, std::string& ziel) {
    const std::size_t start = pos;
    while (pos < text.size() && istZiffer(text[pos]))
        ziel += text[pos++];
    return pos - start;
}

// The longest prefix of text (after blanks) that forms a decimal number, normalised for
// std::from_chars; empty when there is none.
std::string zahlPraefix(std::string_view text) {
    std::size_t pos = 0;
    while (pos < text.size() &&
           (text[pos] == ' ' || text[pos] == '\t' || text[pos] == '\r' || text[pos] == '\n'))
        ++pos;
    std::string zahl;
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) {
        if (text[pos] == '-') zahl += '-';
        ++pos;
    }
    std::size_t anzahl = ziffern(text, pos, zahl);
    if (pos < text.size() && text[pos] == '.') {
        zahl += '.';
        ++pos;
        anzahl += ziffern(text, pos, zahl);
    }
    if (anzahl == 0) return {};
    if (pos + 1 < text.size() && std::string_view("EeDd").find(text[pos]) != std::string_view::npos) {
        std::size_t p = pos + 1;
        std::string exponent = "e";
        if (text[p] == '+' || text[p] == '-') exponent += text[p++];
        if (ziffern(text, p, exponent) > 0) zahl += exponent;
    }
    return zahl;
}

}  // namespace

i16 zahlAusText(std::string_view text) {
    const std::string zahl = zahlPraefix(text);
    if (zahl.empty()) return 0;
    double wert = 0;
    const auto fehler = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert).ec;
    if (fehler == std::errc::result_out_of_range) {
        // Too small to represent reads as 0; too large is an overflow.
        if (zahl.find("e-") != std::string::npos) return 0;
        throw Laufzeitfehler(Laufzeitfehler::Ueberlauf);
    }
    const double gerundet = std::nearbyint(wert);  // default rounding mode: halves to even
    if (!(gerundet >= -32768.0 && gerundet <= 32767.0)) throw Laufzeitfehler(Laufzeitfehler::Ueberlauf);
    return static_cast<i16>(gerundet);
}

}  // namespace kalimbo
