#pragma once

#include <QGroupBox>
#include <array>

#include "state/spielstand.h"

class QLabel;

namespace kalimbo::ui {

class Beschriftung;
class Zahlenlabel;

// The two small rankings of the players: points of the shown matchday and total points, one
// row per position.
class Tipptabellen : public QGroupBox {
    Q_OBJECT
  public:
    explicit Tipptabellen(QWidget* eltern);

    // The rankings of matchday AktSpieltag from the evaluation records: every participant in the
    // row of his position, "  " before the name; the rows of the others hidden (the matchday row
    // keeps their points). The heading names the matchday.
    void zeige(const Spielstand& spiel);

  private:
    std::array<Beschriftung*, MaxSpieler> lblSptgTabelle{}, lblGesamttabelle{};
    std::array<Zahlenlabel*, MaxSpieler> lblSptgTabellePkt{}, lblGesamttabellePkt{};
    QLabel* lblSptgstabelle = nullptr;
};

}  // namespace kalimbo::ui
