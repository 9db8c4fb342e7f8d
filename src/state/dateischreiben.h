#pragma once

#include <filesystem>
#include <string_view>

namespace kalimbo {

// Writes `bytes` to a new temporary file beside `ziel` and renames it over `ziel` once it is
// complete and on the disk (the folder entry too), so an existing target is either replaced whole
// or left untouched. The temporary file is never readable by more users than the file it replaces
// and is removed again on every failure; what interrupted saves of the same target left behind is
// removed after a successful one. A replaced file keeps its permissions (saved by root, also its
// owner and group); a read-only target is refused, as writing into it would be. A symbolic link,
// even a dangling one, is written through to the path it names. Throws Dateifehler with a German
// message that names the file and the reason.
void schreibeDateiAtomar(const std::filesystem::path& ziel, std::string_view bytes);

}  // namespace kalimbo
