#pragma once

#include <QWidget>
#include <array>
#include <optional>
#include <string_view>

#include "state/spielstand.h"

class QLabel;

namespace kalimbo::ui {

class Beschriftung;
class KlickLabel;

// A league table: column headings and twenty rows, one per place. The labels are named after the
// columns with the row's number from `ersterIndex` on ("lblTabName_0".. or, for a second table in
// the same window, "lblTabName_20"..), so tests and hints find them.
class Ligatabelle : public QWidget {
    Q_OBJECT
  public:
    // place, name, points, "goals:against", difference, wins, draws, losses
    using Zellen = std::array<QString, 8>;

    Ligatabelle(QWidget* eltern, int ersterIndex);

    void setzeZeile(int zeile, const Zellen& zellen);
    // Every row back to its place number alone.
    void leereZeilen();
    // Every team 0..AnzTeams of the game's league table at the row of its position. Rows showing
    // what they showed before are not touched, so after a goal only the changed rows repaint.
    void fuelle(const Spielstand& spiel);
    // Rows 0..anzahl-1 shown, the others hidden.
    void zeigeZeilen(int anzahl);
    // The place of row `zeile` in the colour of its position, with `hinweis` as its hint (an empty
    // one keeps the hint the place had).
    void setzePlatzfarbe(int zeile, Farbe farbe, std::string_view hinweis);
    // Row `zeile` in its normal colours (the name on `platzfarbe`, the figures on their greys), or
    // marked as the team the pointer is over: name bold, figures on light blue.
    void faerbeZeile(int zeile, Farbe platzfarbe, bool markiert);
    // Where row `zeile` lies in the table (pixels).
    QRect zeilenOrt(int zeile) const;

  signals:
    void nameGeklickt(int zeile);
    // The pointer came over the name of row `zeile`.
    void nameBetreten(int zeile);

  private:
    std::array<QLabel*, 8> zeile(int z) const;

    std::array<QLabel*, MaxTeams> lblTabellenplatz{};
    std::array<KlickLabel*, MaxTeams> lblTabName{};
    std::array<QLabel*, MaxTeams> lblTabPunkte{}, lblTabTore{}, lblTabDifferenz{}, lblTabSiege{}, lblTabUn{},
        lblTabNiederlagen{};

    // What fuelle() drew into a row: the team and its row of the league table.
    struct Gezeigt {
        int team;
        Tabellenzeile zeile;
    };
    std::array<std::optional<Gezeigt>, MaxTeams> m_gezeigt;
};

// The cells of team `team` in the game's league table, through getTabInfo; the place shown is
// one more than the 0-based position.
Ligatabelle::Zellen tabellenzellen(const Spielstand& spiel, int team);
// The cells of a row of any table built like the league table (such as a predicted one).
Ligatabelle::Zellen tabellenzellen(const Tabellenzeile& zeile);

}  // namespace kalimbo::ui
