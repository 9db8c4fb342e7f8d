#pragma once

#include <QColor>

#include "state/zahl16.h"

class QWidget;

namespace kalimbo::ui {

// A game colour (0x00BBGGRR) as a QColor; the symbolic system colours (high bit set: button
// face, window background, window text) map to the application palette.
QColor qfarbe(Farbe farbe);

// Background and text colour of a label or text box. A label gets an opaque background.
void setzeFarben(QWidget* w, const QColor& hintergrund, const QColor& text);

}  // namespace kalimbo::ui
