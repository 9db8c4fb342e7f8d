#include "farben.h"

#include <QApplication>
#include <QLabel>
#include <QPalette>

namespace kalimbo::ui {

QColor qfarbe(Farbe farbe) {
    const auto wert = static_cast<std::uint32_t>(farbe);
    if (wert & 0x80000000u) {
        const QPalette palette = QApplication::palette();
        switch (wert & 0xFFu) {
            case 0x05:
                return palette.color(QPalette::Base);
            case 0x08:
                return palette.color(QPalette::Text);
            default:
                return palette.color(QPalette::Button);
        }
    }
    return QColor(static_cast<int>(wert & 0xFF), static_cast<int>((wert >> 8) & 0xFF),
                  static_cast<int>((wert >> 16) & 0xFF));
}

void setzeFarben(QWidget* w, const QColor& hintergrund, const QColor& text) {
    QPalette p = w->palette();
    if (p.color(QPalette::Base) == hintergrund && p.color(QPalette::Text) == text &&
        (!qobject_cast<QLabel*>(w) || w->autoFillBackground()))
        return;  // repainting 180 boxes on every redraw is the expensive part; skip the unchanged
    for (auto rolle : {QPalette::Base, QPalette::Window})
        p.setColor(rolle, hintergrund);
    for (auto rolle : {QPalette::Text, QPalette::WindowText})
        p.setColor(rolle, text);
    w->setPalette(p);
    if (qobject_cast<QLabel*>(w)) w->setAutoFillBackground(true);
}

}  // namespace kalimbo::ui
