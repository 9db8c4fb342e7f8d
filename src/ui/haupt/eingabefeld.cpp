#include "eingabefeld.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include "state/eintraege.h"

namespace kalimbo::ui {

namespace {

constexpr i16 Ruecktaste = 8;

// Focus that leaves the window only for a moment (another window, an open menu): the box stays
// in editing.
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
    m_zahl.reset();
    if (text == m_text) return;
    m_text = text;
    update();
}

void Eingabefeld::setZahl(i16 zahl) {
    if (m_zahl == zahl) return;
    m_text = QString::number(zahl);
    m_zahl = zahl;
    update();
}

void Eingabefeld::setzeFarben(const QColor& hintergrund, const QColor& schrift) {
    if (hintergrund == m_hintergrund && schrift == m_schrift) return;
    m_hintergrund = hintergrund;
    m_schrift = schrift;
    update();
}

// Every character, typed or pasted, through the key filter, as far as the box takes characters.
void Eingabefeld::tippe(const QString& text) {
    const qsizetype hoechstens = istTipp() ? 1 : 5;
    QString neu = m_text;
    for (const QChar c : text) {
        const i16 taste = tastenfilter(static_cast<i16>(std::min<int>(c.unicode(), 32767)));
        if (taste == Ruecktaste)
            neu.chop(1);
        else if (neu.size() < hoechstens)
            neu += QChar(taste);
    }
    if (neu == m_text) return;
    if (neu.toInt() > INT16_MAX) {
        emit ueberlauf();
        return;
    }
    setText(neu);
    emit geaendert();
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
    tippe(text.left(1));
}

void Eingabefeld::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.fillRect(rect(), m_hintergrund);
    maler.setPen(palette().color(QPalette::Dark));
    maler.drawRect(rect().adjusted(0, 0, -1, -1));
    maler.setPen(m_schrift);
    // A number too wide for the box ("000", a stored 12345) is written smaller rather than cut off.
    const int platz = width() - 6, breite = fontMetrics().horizontalAdvance(m_text);
    if (breite > platz) {
        QFont kleiner = font();
        kleiner.setPointSizeF(kleiner.pointSizeF() * platz / breite);
        maler.setFont(kleiner);
    }
    maler.drawText(rect(), Qt::AlignCenter, m_text);
    if (hasFocus()) {  // the place where typing goes
        const int x = (width() + maler.fontMetrics().horizontalAdvance(m_text)) / 2 + 1;
        maler.drawLine(x, 3, x, height() - 4);
    }
}

void Eingabefeld::focusInEvent(QFocusEvent* ereignis) {
    QWidget::focusInEvent(ereignis);
    update();
    if (m_bearbeitung) return;
    m_bearbeitung = true;
    emit bearbeitungBeginnt();
}

void Eingabefeld::focusOutEvent(QFocusEvent* ereignis) {
    QWidget::focusOutEvent(ereignis);
    update();
    if (!m_bearbeitung || nurKurzzeitig(ereignis->reason())) return;
    m_bearbeitung = false;
    emit bearbeitungEndet();
}

}  // namespace kalimbo::ui
