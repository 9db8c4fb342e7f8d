#pragma once

#include <QLabel>

namespace kalimbo::ui {

// A label that reports a click with the left mouse button.
class KlickLabel : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

  signals:
    void geklickt();

  protected:
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
};

}  // namespace kalimbo::ui
