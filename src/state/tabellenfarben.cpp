#include "tabellenfarben.h"

#include <array>
#include <utility>

namespace kalimbo {

std::string_view positionsHinweis(Farbe farbe) {
    static constexpr std::array<std::pair<Farbe, std::string_view>, 6> Hinweise{{
        {rgb(255, 0, 0), "Meister"},
        {rgb(245, 183, 35), "Champions-League-Platz"},
        {rgb(255, 204, 51), "Champions-League-Qualifikation"},
        {rgb(255, 255, 0), "UEFA-Pokal-Platz"},
        {rgb(255, 255, 192), "Mittelmaß"},
        {rgb(255, 255, 255), "Abstiegsplatz"},
    }};
    for (const auto& [f, hinweis] : Hinweise)
        if (f == farbe) return hinweis;
    return {};
}

}  // namespace kalimbo
