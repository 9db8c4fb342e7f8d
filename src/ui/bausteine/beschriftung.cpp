#include "beschriftung.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace kalimbo::ui {

bool Beschriftung::gekuerzt() const {
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void Beschriftung::paintEvent(QPaintEvent* ereignis) {
    if (!gekuerzt()) {
        QLabel::paintEvent(ereignis);
        return;
    }
    QPainter maler(this);
    drawFrame(&maler);
    maler.setPen(palette().color(foregroundRole()));
    const QRect innen = contentsRect();
    maler.drawText(innen, static_cast<int>(alignment()),
                   fontMetrics().elidedText(text(), Qt::ElideRight, innen.width()));
}

bool Beschriftung::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::ToolTip && gekuerzt()) {
        const QString hinweis = toolTip().isEmpty() ? text() : text() + "\n" + toolTip();
        QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(), hinweis, this);
        return true;
    }
    return QLabel::event(ereignis);
}

}  // namespace kalimbo::ui
