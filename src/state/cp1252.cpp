#include "cp1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "fehler.h"
#include "utf8.h"

namespace kalimbo {

namespace {

// Unicode code points of the bytes 0x80..0x9F; the undefined ones keep their own number.
constexpr std::array<char32_t, 32> Bereich80{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<unsigned char> zeichenNachCp1252(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<unsigned char>(c);
    for (std::size_t i = 0; i < Bereich80.size(); ++i) {
        if (Bereich80[i] == c) return static_cast<unsigned char>(0x80 + i);
    }
    return std::nullopt;
}

std::string zeichenBeschreibung(char32_t c, std::string_view roh) {
    static const char* hex = "0123456789ABCDEF";
    std::string code = "U+";
    for (int shift = (c > 0xFFFF ? 20 : 12); shift >= 0; shift -= 4)
        code += hex[(c >> shift) & 0xF];
    return "„" + std::string(roh) + "“ (" + code + ")";
}

// Encodes UTF-8 text. At the first bytes that are not UTF-8 or the first character the code page
// lacks, throws Dateifehler(meldung(byte position, description of the character or nothing)).
template <class Meldung>
std::string kodiere(std::string_view text, Meldung meldung) {
    std::string bytes;
    bytes.reserve(text.size());
    std::size_t pos = 0;
    while (pos < text.size()) {
        const std::size_t start = pos;
        const auto c = naechstesZeichen(text, pos);
        if (!c) throw Dateifehler(meldung(start, std::nullopt));
        const auto b = zeichenNachCp1252(*c);
        if (!b) throw Dateifehler(meldung(start, zeichenBeschreibung(*c, text.substr(start, pos - start))));
        bytes += static_cast<char>(*b);
    }
    return bytes;
}

}  // namespace

std::string vonCp1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        haengeUtf8An(text, (u >= 0x80 && u < 0xA0) ? Bereich80[u - 0x80] : char32_t{u});
    }
    return text;
}

std::string nachCp1252(std::string_view text) {
    return kodiere(text, [&](std::size_t, const std::optional<std::string>& zeichen) {
        if (!zeichen)
            return "Der Text „" + std::string(text) +
                   "“ ist kein gültiger UTF-8-Text und kann nicht gespeichert werden.";
        return "Der Text „" + std::string(text) + "“ enthält das Zeichen " + *zeichen +
               ", das eine Tippspiel-Datei nicht speichern kann. Bitte ersetzen Sie es.";
    });
}

std::string textNachCp1252(std::string_view text) {
    return kodiere(text, [&](std::size_t pos, const std::optional<std::string>& zeichen) {
        const auto zeile = std::to_string(
            std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(pos), '\n') + 1);
        if (!zeichen)
            return "Der Text ist in Zeile " + zeile +
                   " kein gültiger UTF-8-Text und kann nicht gespeichert werden.";
        return "Der Text enthält in Zeile " + zeile + " das Zeichen " + *zeichen +
               ", das eine Textdatei in Windows-1252 nicht speichern kann. Bitte ersetzen Sie es.";
    });
}

}  // namespace kalimbo
