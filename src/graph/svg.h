#pragma once

#include <string>

#include "graph/zeichnung.h"

namespace kalimbo::grafik {

// A colour (0x00BBGGRR) as "#RRGGBB", upper-case hex, red first. The symbolic system colours
// (high bit set) are written as the light theme shows them: window background #FFFFFF, window text
// #000000, every other one as the button face #F0F0F0.
std::string hexFarbe(Farbe farbe);

// The drawing as a standalone SVG document (UTF-8): one user unit per twip (viewBox
// 0 0 breite hoehe), shown at its real size (20 twips per point); rectangles filled without an
// outline, lines one device pixel wide, texts with their top at y, the font names followed by
// their generic family. Primitives in drawing order, one element per line.
std::string alsSvg(const Zeichnung& zeichnung);

}  // namespace kalimbo::grafik
