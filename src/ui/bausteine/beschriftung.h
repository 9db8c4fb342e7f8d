#pragma once

#include <QLabel>

namespace kalimbo::ui {

// A label for a name that may be too long for it: the text is cut off with "…" and the whole
// text is shown as the hint, above the label's own hint. text() is always the whole text.
class Beschriftung : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    bool gekuerzt() const;

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    bool event(QEvent* ereignis) override;
};

}  // namespace kalimbo::ui
