#pragma once

#include <QGroupBox>

#include "state/spielstand.h"

namespace kalimbo::ui {

class Ligatabelle;

// The running league table ("Blitztabelle"): the league table of the last evaluation with its
// cause and time of day in the caption.
class Blitztabelle : public QGroupBox {
    Q_OBJECT
  public:
    explicit Blitztabelle(QWidget* eltern);

    // After a game was loaded: names by team index, empty figures, the rows of the league shown,
    // each position in its colour with the hint belonging to that colour (a colour without a hint
    // keeps the hint the position had).
    void wendeSpielAn(const Spielstand& spiel);
    // Every team at the row of its table position; the caption names `anlass` and the time of day
    // in the user's format.
    void zeige(const Spielstand& spiel, const QString& anlass);

    Ligatabelle* tabelle() const { return m_tabelle; }

  private:
    Ligatabelle* m_tabelle;
};

}  // namespace kalimbo::ui
