#include "klicklabel.h"

#include <QMouseEvent>

namespace kalimbo::ui {

void KlickLabel::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint()))
        emit geklickt();
    QLabel::mouseReleaseEvent(ereignis);
}

void KlickLabel::enterEvent(QEnterEvent* ereignis) {
    emit betreten();
    QLabel::enterEvent(ereignis);
}

}  // namespace kalimbo::ui
