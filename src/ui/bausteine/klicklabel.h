#pragma once

#include "beschriftung.h"

namespace kalimbo::ui {

// A label that reports a click with the left mouse button; a text too long for it is cut off.
class KlickLabel : public Beschriftung {
    Q_OBJECT
  public:
    using Beschriftung::Beschriftung;

  signals:
    void geklickt();

  protected:
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
};

}  // namespace kalimbo::ui
