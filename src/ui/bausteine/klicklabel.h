#pragma once

#include "beschriftung.h"

namespace kalimbo::ui {

// A label that reports a click with the left mouse button and the pointer coming over it; a text
// too long for it is cut off.
class KlickLabel : public Beschriftung {
    Q_OBJECT
  public:
    using Beschriftung::Beschriftung;

  signals:
    void geklickt();
    void betreten();

  protected:
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void enterEvent(QEnterEvent* ereignis) override;
};

}  // namespace kalimbo::ui
