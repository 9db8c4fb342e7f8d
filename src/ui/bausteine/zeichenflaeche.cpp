#include "zeichenflaeche.h"

#include <QPainter>

#include "ui/bausteine/maler.h"

namespace kalimbo::ui {

void Zeichenflaeche::setzeZeichnung(grafik::Zeichnung zeichnung) {
    m_zeichnung = std::move(zeichnung);
    update();
}

QImage Zeichenflaeche::bild() const {
    QImage bild(size(), QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    male(maler, m_zeichnung, QRectF(bild.rect()));
    return bild;
}

void Zeichenflaeche::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.fillRect(rect(), Qt::white);
    male(maler, m_zeichnung, QRectF(rect()));
}

}  // namespace kalimbo::ui
