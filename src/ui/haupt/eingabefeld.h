#pragma once

#include <QWidget>

namespace kalimbo::ui {

// A result or tip box of the matchday view: a small painted box for one score. Typed keys go
// through the key filter (a non-digit types "0"), and at most one character can be typed or
// pasted; text set by the program may be longer (a stored 12 shows as "12" and is read back
// unchanged). Reports gaining and losing the focus by the user, not when the window or a menu
// takes it for a moment. The window has 200 of these, which is why they are not line edits:
// creating and painting that many line edits would double the time to the first picture.
class Eingabefeld : public QWidget {
    Q_OBJECT
  public:
    enum Art { HeimErgebnis, AusErgebnis, HeimTipp, AusTipp };

    Eingabefeld(QWidget* eltern, Art art);
    Art art() const { return m_art; }
    const QString& text() const { return m_text; }
    void setText(const QString& text);
    void clear() { setText(QString()); }

  signals:
    void fokusErhalten();
    void fokusVerloren();

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

  private:
    void tippe(const QString& text);

    Art m_art;
    QString m_text;
};

}  // namespace kalimbo::ui
