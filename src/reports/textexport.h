#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kalimbo {

// The content of an exported sheet in Windows-1252: the box text `text` (UTF-8, as it stands, CR LF
// included), CR LF, the separator line "  - " with its trailing blank, CR LF, then "  " + `fussnote`
// + " [" + `datum` + ", " + `zeit` + "]" + CR LF. Date and time come as "24.11.2026" and "01:01".
// Throws Dateifehler naming the first character the code page cannot hold.
std::string berichtsdatei(std::string_view text, std::string_view fussnote, std::string_view datum,
                          std::string_view zeit);

// Writes berichtsdatei(...) to `ziel`, replacing an existing file only once the new content is
// complete (temporary file + rename). Throws Dateifehler with a German message; the old file is
// then unchanged.
void speichereBericht(const std::filesystem::path& ziel, std::string_view text, std::string_view fussnote,
                      std::string_view datum, std::string_view zeit);

}  // namespace kalimbo
