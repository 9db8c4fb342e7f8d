#pragma once

class QLineEdit;

namespace kalimbo::ui {

// Selects the whole text of `feld` whenever it gets the focus, by a click too, so that typing
// replaces it.
void markiereBeimBetretenAlles(QLineEdit* feld);

}  // namespace kalimbo::ui
