#include "eingabefeld.h"

#include <QKeyEvent>
#include <QValidator>

#include "state/eintraege.h"

namespace kalimbo::ui {

namespace {

// Accepts what the user may produce by typing or pasting: at most one character.
class EinZeichen : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& text, int&) const override { return text.size() <= 1 ? Acceptable : Invalid; }
};

bool nurKurzzeitig(Qt::FocusReason grund) {
    return grund == Qt::ActiveWindowFocusReason || grund == Qt::PopupFocusReason;
}

}  // namespace

Eingabefeld::Eingabefeld(QWidget* eltern, Art art) : QLineEdit(eltern), m_art(art) {
    static EinZeichen einZeichen;  // stateless, shared by all boxes
    setValidator(&einZeichen);
    setAlignment(Qt::AlignCenter);
    setFrame(true);
}

void Eingabefeld::keyPressEvent(QKeyEvent* ereignis) {
    const QString text = ereignis->text();
    const bool zeichen = !text.isEmpty() &&
                         !(ereignis->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
                         ereignis->key() != Qt::Key_Tab && ereignis->key() != Qt::Key_Backtab &&
                         ereignis->key() != Qt::Key_Delete;
    if (!zeichen) {
        QLineEdit::keyPressEvent(ereignis);
        return;
    }
    const auto taste = tastenfilter(static_cast<i16>(std::min<int>(text.at(0).unicode(), 32767)));
    if (taste == 8) {
        backspace();
    } else {
        insert(QString(QChar(taste)));  // refused by the validator once a character stands there
    }
    ereignis->accept();
}

void Eingabefeld::focusInEvent(QFocusEvent* ereignis) {
    QLineEdit::focusInEvent(ereignis);
    if (!nurKurzzeitig(ereignis->reason())) emit fokusErhalten();
}

void Eingabefeld::focusOutEvent(QFocusEvent* ereignis) {
    QLineEdit::focusOutEvent(ereignis);
    if (!nurKurzzeitig(ereignis->reason())) emit fokusVerloren();
}

}  // namespace kalimbo::ui
