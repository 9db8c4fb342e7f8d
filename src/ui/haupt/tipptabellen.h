#pragma once

#include <QGroupBox>
#include <array>

#include "state/spielstand.h"

class QLabel;

namespace kalimbo::ui {

// The two small rankings of the players: points of the shown matchday and total points, one
// row per position.
class Tipptabellen : public QGroupBox {
    Q_OBJECT
  public:
    explicit Tipptabellen(QWidget* eltern);

    std::array<QLabel*, MaxSpieler> lblSptgTabelle{}, lblSptgTabellePkt{}, lblGesamttabelle{},
        lblGesamttabellePkt{};
    QLabel* lblSptgstabelle = nullptr;
};

}  // namespace kalimbo::ui
