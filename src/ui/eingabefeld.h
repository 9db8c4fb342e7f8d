#pragma once

#include <QLineEdit>

namespace kalimbo::ui {

// A result or tip box of the matchday view. Typed keys go through the key filter (a non-digit
// types "0") and at most one character can be typed; text set by the program may be longer
// (a stored 12 shows as "12" and is read back unchanged). Reports gaining and losing the focus
// by the user, not when the window or a menu takes it for a moment.
class Eingabefeld : public QLineEdit {
    Q_OBJECT
  public:
    enum Art { HeimErgebnis, AusErgebnis, HeimTipp, AusTipp };

    Eingabefeld(QWidget* eltern, Art art);
    Art art() const { return m_art; }

  signals:
    void fokusErhalten();
    void fokusVerloren();

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

  private:
    Art m_art;
};

}  // namespace kalimbo::ui
