#pragma once

#include <string>
#include <string_view>

namespace kalimbo {

// Game files store text in the Windows-1252 code page; in memory all text is UTF-8.

// Decodes Windows-1252 bytes. Never fails: the five bytes the code page leaves undefined
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) become the control characters of the same number, so that
// reading and writing a file gives back the same bytes.
std::string vonCp1252(std::string_view bytes);

// Encodes UTF-8 text; throws Dateifehler naming the text and the first character that
// Windows-1252 cannot represent (or bytes that are not UTF-8). Nothing is replaced silently.
std::string nachCp1252(std::string_view text);

// Encodes a longer UTF-8 text (a sheet for a text file); throws Dateifehler naming the first
// character Windows-1252 cannot represent and the line (1-based) it stands on.
std::string textNachCp1252(std::string_view text);

}  // namespace kalimbo
