#pragma once

#include <QColor>
#include <QWidget>
#include <optional>

#include "state/zahl16.h"

namespace kalimbo::ui {

// A result or tip box of the matchday view: a small painted box for one score. Typed and pasted
// characters go through the key filter (a non-digit types "0"); a tip box takes one typed
// character, a result box up to five as long as the number stays within 32767. Text set by the program may be
// longer (a stored 12 shows as "12" and is read back unchanged).
//
// The box is being edited from the moment it gets the focus, whichever way (a click, Tab, the
// window being activated), until the focus moves elsewhere in the window: a switch to another
// window or a menu opening for a moment does not end the editing. The window is told when
// editing begins and ends, and when the user changed the text.
//
// The window has 200 of these, which is why they are not line edits: creating and painting that
// many line edits would double the time to the first picture.
class Eingabefeld : public QWidget {
    Q_OBJECT
  public:
    enum Art { HeimErgebnis, AusErgebnis, HeimTipp, AusTipp };

    Eingabefeld(QWidget* eltern, Art art);
    Art art() const { return m_art; }
    bool istTipp() const { return m_art == HeimTipp || m_art == AusTipp; }
    const QString& text() const { return m_text; }
    void setText(const QString& text);
    void clear() { setText(QString()); }
    // Shows the number `zahl`; nothing happens when it is shown already, as it mostly is when the
    // matchday is drawn again.
    void setZahl(i16 zahl);
    void setzeFarben(const QColor& hintergrund, const QColor& schrift);
    const QColor& hintergrund() const { return m_hintergrund; }
    const QColor& schrift() const { return m_schrift; }
    bool wirdBearbeitet() const { return m_bearbeitung; }

  signals:
    void bearbeitungBeginnt();
    void bearbeitungEndet();
    void geaendert();
    // Typed or pasted digits would have made the number larger than a score can be (32767): not
    // taken, the box keeps its text.
    void ueberlauf();

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;

  private:
    void tippe(const QString& text);

    Art m_art;
    QString m_text;
    std::optional<i16> m_zahl;  // the number m_text shows, when the program set it as one
    QColor m_hintergrund = Qt::white, m_schrift = Qt::black;
    bool m_bearbeitung = false;
};

}  // namespace kalimbo::ui
