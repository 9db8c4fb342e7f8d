#pragma once

#include <cstddef>
#include <filesystem>
#include <istream>
#include <string>

namespace kalimbo {

// The first bytes of a file or stream, read up to a limit: never more, so an endless source
// (/dev/zero, a huge file) cannot fill the memory. `mehr` tells whether the source held more.
struct Dateianfang {
    std::string bytes;
    bool mehr = false;
};

// Reads at most `hoechstens` bytes of the regular file at `pfad`. Only a regular file is read: a
// folder, a named pipe or a device is refused at once, without waiting for data. Throws
// Dateifehler with a German message naming the file when it is missing, not readable or not a
// regular file.
Dateianfang leseDateianfang(const std::filesystem::path& pfad, std::size_t hoechstens);

// The same from a stream (`name` names it in the message of a read error).
Dateianfang leseDateianfang(std::istream& ein, std::size_t hoechstens, const std::string& name);

}  // namespace kalimbo
