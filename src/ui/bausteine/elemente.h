#pragma once

#include <QFont>
#include <QRect>
#include <QString>
#include <QWidget>
#include <string>

namespace kalimbo::ui {

// Small helpers every window uses to build its controls.

// A child widget of type W with its object name and geometry (in pixels; see twips.h).
template <class W>
W* element(QWidget* eltern, const QString& name, const QRect& ort) {
    auto* w = new W(eltern);
    w->setObjectName(name);
    w->setGeometry(ort);
    return w;
}

// Object name of element `index` of a control array: "lblSpieltagWahl_5".
inline QString indexName(const char* name, int index) {
    return QStringLiteral("%1_%2").arg(QString::fromUtf8(name)).arg(index);
}

inline void setzeFett(QWidget* w, bool fett) {
    QFont f = w->font();
    if (f.bold() == fett) return;
    f.setBold(fett);
    w->setFont(f);
}

// The core's UTF-8 text as a QString.
inline QString text(const std::string& s) {
    return QString::fromStdString(s);
}

}  // namespace kalimbo::ui
