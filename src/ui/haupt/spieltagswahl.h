#pragma once

#include <QWidget>
#include <array>
#include <bitset>

#include "state/spielstand.h"

namespace kalimbo::ui {

class KlickLabel;

// The row of matchday numbers at the top of the main window and, under each number, the strip
// that selects the matchday for the evaluation (filled when selected). A click on a number asks
// to show that matchday, a click on a strip to toggle it.
class Spieltagswahl : public QWidget {
    Q_OBJECT
  public:
    explicit Spieltagswahl(QWidget* eltern);

    // Numbers and strips of matchdays 0..AnzSpieltage shown, the others hidden; every strip as
    // the game selects it.
    void zeige(const Spielstand& spiel);
    // The strips of the matchdays marked in `geaendert`, as the game now selects them.
    void zeigeAuswahl(const Spielstand& spiel, const std::bitset<MaxSpieltage>& geaendert);
    // Highlights the number of the matchday shown (AktSpieltag), the others in their normal look.
    void hebeHervor(const Spielstand& spiel);

  signals:
    void spieltagGeklickt(int tag);
    void auswahlGeklickt(int tag);

  private:
    std::array<KlickLabel*, MaxSpieltage> lblSpieltagWahl{}, lblAuswahl{};
};

}  // namespace kalimbo::ui
