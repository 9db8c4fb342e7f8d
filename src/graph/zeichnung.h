#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "state/zahl16.h"

namespace kalimbo::grafik {

// A drawing as a list of primitives in drawing order (later ones on top), all coordinates in
// twips with y growing downwards. The chart and the printed sheets are built as drawings by the
// core; the windows only paint them (on screen, into a bitmap, onto a printer or into a PDF).

// A filled rectangle between two corners (either order).
struct Rechteck {
    int x1, y1, x2, y2;
    Farbe farbe;
    friend bool operator==(const Rechteck&, const Rechteck&) = default;
};

// A straight line of the thinnest visible width.
struct Linie {
    int x1, y1, x2, y2;
    Farbe farbe;
    friend bool operator==(const Linie&, const Linie&) = default;
};

enum class Ausrichtung { Links, Mitte, Rechts };

// A line of text starting at (x, y), the top of the text, in the named font at `groesse` points.
// With `breite` > 0 the text is aligned within x..x+breite instead of starting at x.
struct Text {
    int x, y;
    Farbe farbe;
    std::string schrift;
    int groesse;
    bool fett;
    std::string text;  // UTF-8
    int breite = 0;
    Ausrichtung ausrichtung = Ausrichtung::Links;
    friend bool operator==(const Text&, const Text&) = default;
};

using Primitiv = std::variant<Rechteck, Linie, Text>;

// The kind of face a font name stands for where that font is not installed: "MS Serif" (any name
// with "Serif" but not "Sans") is a serif face, every other name ("MS Sans Serif") a sans-serif one.
enum class Gattung { Serifen, Serifenlos };

inline Gattung gattung(std::string_view schrift) {
    const bool serif = schrift.find("Serif") != std::string_view::npos;
    return serif && schrift.find("Sans") == std::string_view::npos ? Gattung::Serifen : Gattung::Serifenlos;
}

struct Zeichnung {
    int breite = 0, hoehe = 0;  // the drawing area in twips
    std::vector<Primitiv> teile;
};

}  // namespace kalimbo::grafik
