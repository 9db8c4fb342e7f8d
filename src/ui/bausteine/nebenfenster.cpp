#include "nebenfenster.h"

#include <QShortcut>
#include <QWidget>

namespace kalimbo::ui {

void richteNebenfensterEin(QWidget* fenster, const QString& name, const QString& titel) {
    fenster->setWindowFlag(Qt::Window);
    fenster->setObjectName(name);
    fenster->setWindowTitle(titel);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), fenster);
    QObject::connect(escape, &QShortcut::activated, fenster, &QWidget::close);
}

void holeNachVorn(QWidget* fenster) {
    fenster->show();
    fenster->raise();
    fenster->activateWindow();
}

}  // namespace kalimbo::ui
