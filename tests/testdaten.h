#pragma once

#include <filesystem>
#include <string>

#include "state/spielstand.h"

namespace kalimbo::test {

// The two real seasons shipped with the project's shared data.
inline constexpr const char* Saison18 = "de1-2005-06";
inline constexpr const char* Saison20 = "en1-2010-11";

std::filesystem::path gemeinsameDaten(const std::string& datei);
// A new game built from the season's match list.
Dateiinhalt saison(const std::string& name);
std::string leseBytes(const std::filesystem::path& pfad);
void schreibeBytes(const std::filesystem::path& pfad, const std::string& bytes);

// A fresh folder under the system's temporary folder, removed with everything in it.
class TempOrdner {
  public:
    TempOrdner();
    ~TempOrdner();
    TempOrdner(const TempOrdner&) = delete;
    TempOrdner& operator=(const TempOrdner&) = delete;
    const std::filesystem::path& pfad() const { return m_pfad; }
    std::filesystem::path operator/(const std::string& name) const { return m_pfad / name; }

  private:
    std::filesystem::path m_pfad;
};

}  // namespace kalimbo::test
