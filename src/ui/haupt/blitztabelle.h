#pragma once

#include <QGroupBox>
#include <array>

#include "state/spielstand.h"

class QLabel;

namespace kalimbo::ui {

class KlickLabel;

// The running league table ("Blitztabelle"): twenty rows, one per table position.
class Blitztabelle : public QGroupBox {
    Q_OBJECT
  public:
    explicit Blitztabelle(QWidget* eltern);

    // After a game was loaded: names by team index, empty figures, the rows of the league shown,
    // each position in its colour with the hint belonging to that colour.
    void wendeSpielAn(const Spielstand& spiel);
    // Every team at the row of its table position, with the cause and time in the caption.
    void zeige(const Spielstand& spiel, const QString& anlass);

  signals:
    void teamGeklickt(int zeile);

  private:
    std::array<QLabel*, MaxTeams> lblTabellenplatz{};
    std::array<KlickLabel*, MaxTeams> lblTabName{};
    std::array<QLabel*, MaxTeams> lblTabPunkte{}, lblTabTore{}, lblTabDifferenz{}, lblTabSiege{}, lblTabUn{},
        lblTabNiederlagen{};

    void zeigeZeile(int zeile, bool sichtbar);
};

// Hint of a table position by its colour; empty for colours without one.
QString positionsHinweis(Farbe farbe);

}  // namespace kalimbo::ui
