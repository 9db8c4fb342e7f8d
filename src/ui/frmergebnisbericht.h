#pragma once

#include <QDialog>

namespace kalimbo::ui {

// The summary of a results import ("lblBericht"), with a reminder that nothing is evaluated yet.
// When results were kept because the game has them differently, "Abweichende ersetzen"
// ("cmdErsetzen") offers to replace them; OK and Escape close. Shown with exec().
class frmErgebnisbericht : public QDialog {
    Q_OBJECT
  public:
    frmErgebnisbericht(QWidget* eltern, const QString& bericht, bool ersetzbar);

    // Whether "Abweichende ersetzen" was chosen.
    bool ersetzen() const { return m_ersetzen; }

  private:
    bool m_ersetzen = false;
};

}  // namespace kalimbo::ui
