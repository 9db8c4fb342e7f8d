#include "eingabefeld.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include "state/eintraege.h"

namespace kalimbo::ui {

namespace {

bool nurKurzzeitig(Qt::FocusReason grund) {
    return grund == Qt::ActiveWindowFocusReason || grund == Qt::PopupFocusReason;
}

}  // namespace

Eingabefeld::Eingabefeld(QWidget* eltern, Art art) : QWidget(eltern), m_art(art) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Eingabefeld::setText(const QString& text) {
    if (text == m_text) return;
    m_text = text;
    update();
}

// Typing or pasting may leave at most one character in the box.
void Eingabefeld::tippe(const QString& text) {
    if (m_text.size() + text.size() <= 1) setText(m_text + text);
}

void Eingabefeld::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->matches(QKeySequence::Paste)) {
        tippe(QGuiApplication::clipboard()->text());
        return;
    }
    if (ereignis->matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(m_text);
        return;
    }
    const QString text = ereignis->text();
    if (text.isEmpty() || (ereignis->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) ||
        ereignis->key() == Qt::Key_Delete) {
        QWidget::keyPressEvent(ereignis);
        return;
    }
    const auto taste = tastenfilter(static_cast<i16>(std::min<int>(text.at(0).unicode(), 32767)));
    if (taste == 8)
        setText(m_text.chopped(std::min<qsizetype>(1, m_text.size())));
    else
        tippe(QString(QChar(taste)));
}

void Eingabefeld::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    const QPalette& farben = palette();
    maler.fillRect(rect(), farben.color(QPalette::Base));
    maler.setPen(farben.color(QPalette::Dark));
    maler.drawRect(rect().adjusted(0, 0, -1, -1));
    maler.setPen(farben.color(QPalette::Text));
    maler.drawText(rect(), Qt::AlignCenter, m_text);
    if (hasFocus()) {  // the place where typing goes
        const int x = (width() + fontMetrics().horizontalAdvance(m_text)) / 2 + 1;
        maler.drawLine(x, 3, x, height() - 4);
    }
}

void Eingabefeld::focusInEvent(QFocusEvent* ereignis) {
    QWidget::focusInEvent(ereignis);
    update();
    if (!nurKurzzeitig(ereignis->reason())) emit fokusErhalten();
}

void Eingabefeld::focusOutEvent(QFocusEvent* ereignis) {
    QWidget::focusOutEvent(ereignis);
    update();
    if (!nurKurzzeitig(ereignis->reason())) emit fokusVerloren();
}

}  // namespace kalimbo::ui
