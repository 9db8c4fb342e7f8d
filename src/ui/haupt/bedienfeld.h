#pragma once

#include <QWidget>
#include <array>
#include <string>

#include "state/spielstand.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace kalimbo::ui {

// The controls at the right of the matchday view: the odds, the current matchday and the two
// Sunday matches with "übernehmen", and the "Auswertung" button.
class Bedienfeld : public QWidget {
    Q_OBJECT
  public:
    explicit Bedienfeld(QWidget* eltern);

    // The game's current matchday and Sunday matches, as numbers counted from 0.
    void zeige(const Spielstand& spiel);
    // What is typed into the current-matchday box and the two Sunday boxes.
    std::array<std::string, 3> eingaben() const;
    // The controls in tab order.
    std::array<QWidget*, 5> tabfolge() const;

  signals:
    void uebernehmen();
    void auswerten();

  private:
    QLabel* lblQuoten;
    QLineEdit* txtAktSpieltag;
    std::array<QLineEdit*, 2> txtSonntag{};
    QPushButton *cmdSonntag, *cmdAuswerten;
};

}  // namespace kalimbo::ui
