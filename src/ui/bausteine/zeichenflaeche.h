#pragma once

#include <QImage>
#include <QWidget>

#include "graph/zeichnung.h"

namespace kalimbo::ui {

// A widget showing a drawing of the core on white, mapped into its whole area (see male()).
class Zeichenflaeche : public QWidget {
  public:
    using QWidget::QWidget;

    // Shows `zeichnung` from the next paint on.
    void setzeZeichnung(grafik::Zeichnung zeichnung);
    const grafik::Zeichnung& zeichnung() const { return m_zeichnung; }
    // What the widget shows, as an image of its size in pixels.
    QImage bild() const;

  protected:
    void paintEvent(QPaintEvent* ereignis) override;

  private:
    grafik::Zeichnung m_zeichnung;
};

}  // namespace kalimbo::ui
