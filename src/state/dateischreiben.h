#pragma once

#include <filesystem>
#include <string_view>

namespace kalimbo {

// Writes `bytes` to a new temporary file beside `ziel` and renames it over `ziel` once it is
// complete, so an existing target is either replaced whole or left untouched. Keeps the
// permissions of an existing target. Throws Dateifehler with a German message on failure.
void schreibeDateiAtomar(const std::filesystem::path& ziel, std::string_view bytes);

}  // namespace kalimbo
