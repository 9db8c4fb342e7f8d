#pragma once

#include <QFont>
#include <QRectF>
#include <string>

#include "graph/zeichnung.h"

class QPainter;
class QPaintDevice;

namespace kalimbo::ui {

// Paints a drawing of the core onto whatever `maler` paints on (a widget, a QImage, a printer).
// The drawing's area (breite x hoehe twips) is mapped into `ziel`, given in the painter's device
// coordinates, with one scale for both directions, its top left corner at the top left of `ziel`;
// nothing is painted outside that area. Rectangles are filled, lines are one device pixel wide,
// texts start at (x, y) with the top of the text line at y, their point size scaled like the
// twips. A drawing without area paints nothing. The painter's state is left as it was.
void male(QPainter& maler, const grafik::Zeichnung& zeichnung, const QRectF& ziel);

// The font for a text of the drawing: the named family when it is installed, otherwise the
// installed family nearest to it ("MS Serif" -> the serif family, "MS Sans Serif" -> the
// sans-serif family of the font configuration), at `groesse` points times `skala` (device pixels
// per twip, so 1/15 on a 96-dpi device keeps the point size) on `geraet`.
QFont schrift(const std::string& name, int groesse, bool fett, double skala, const QPaintDevice& geraet);

}  // namespace kalimbo::ui
