#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kalimbo {

// One record of a CSV file: the line it starts on (1-based) and its fields.
struct CsvZeile {
    int nummer = 0;
    std::vector<std::string> felder;
};

// Splits CSV text into records: a UTF-8 byte order mark at the start is dropped, lines end in LF
// or CR LF, a double quote starts or ends a quoted part in which commas and line breaks are text
// and "" stands for one quote. Fields are trimmed of spaces and tabs; lines holding nothing else
// are skipped.
std::vector<CsvZeile> csvZeilen(std::string_view text);

// The text of a file written in UTF-8 (with or without a byte order mark) or, when its bytes are
// not UTF-8, in Windows-1252, as UTF-8 without a byte order mark.
std::string alsUtf8(std::string_view bytes);

}  // namespace kalimbo
