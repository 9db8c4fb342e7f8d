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

// Colours several windows use.
inline const QColor Rot(255, 0, 0);              // the matchday shown, a box being edited
inline const QColor Dunkelgrau(64, 64, 64);      // result boxes
inline const QColor Hellgelb(255, 255, 128);     // matchday numbers
inline const QColor Auswahlfarbe(255, 204, 51);  // strip of a matchday selected for evaluation

}  // namespace kalimbo::ui
