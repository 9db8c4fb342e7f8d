#pragma once

#include <array>
#include <cstddef>

#include "fehler.h"

namespace kalimbo {

// Throws Laufzeitfehler::Index unless 0 <= index < groesse; returns the index for use.
constexpr std::size_t pruefeIndex(int index, std::size_t groesse) {
    if (index < 0 || static_cast<std::size_t>(index) >= groesse) throw Laufzeitfehler(Laufzeitfehler::Index);
    return static_cast<std::size_t>(index);
}

// Fixed-size array whose every access is bounds-checked: the game's arrays have fixed limits
// (9 players, 20 teams, 38 matchdays, 10 matches) and an index outside them is a runtime error,
// never undefined behaviour. Indices are int so that negative values are caught too.
template <class T, std::size_t N>
struct Feld {
    std::array<T, N> werte{};

    constexpr T& operator[](int index) { return werte[pruefeIndex(index, N)]; }
    constexpr const T& operator[](int index) const { return werte[pruefeIndex(index, N)]; }

    static constexpr int groesse() { return static_cast<int>(N); }
    constexpr void fuelle(const T& wert) { werte.fill(wert); }
    constexpr auto begin() { return werte.begin(); }
    constexpr auto end() { return werte.end(); }
    constexpr auto begin() const { return werte.begin(); }
    constexpr auto end() const { return werte.end(); }

    friend constexpr bool operator==(const Feld&, const Feld&) = default;
};

}  // namespace kalimbo
