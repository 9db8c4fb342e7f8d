#pragma once

#include <QLabel>
#include <optional>

namespace kalimbo::ui {

// A label that shows a whole number. Setting the number it shows already costs nothing, so a
// panel can draw all its figures again after each evaluation and only the changed ones repaint.
// Its text is set through setZahl only.
class Zahlenlabel : public QLabel {
  public:
    using QLabel::QLabel;

    void setZahl(int zahl) {
        if (m_zahl == zahl) return;
        m_zahl = zahl;
        setText(QString::number(zahl));
    }

  private:
    std::optional<int> m_zahl;
};

}  // namespace kalimbo::ui
