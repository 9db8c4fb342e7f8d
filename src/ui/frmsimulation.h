#pragma once

#include <QWidget>
#include <array>

#include "scoring/tabelle.h"
#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"

class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QPlainTextEdit;

namespace kalimbo::ui {

class Dialoge;
class Ligatabelle;

// The simulation: the league table one player's tips would have produced next to the real one,
// with each predicted team's real points beside it and the deviation report below. The player is
// chosen by name among those taking part; the pointer over a team's name marks that team in both
// tables.
class frmSimulation : public QWidget {
    Q_OBJECT
  public:
    frmSimulation(QWidget* eltern, Dialoge& dialoge);

    // Builds everything afresh from the game for player 0 (whether taking part or not): the
    // choice of players, the real table, the layout for the league's size, the predicted table
    // and the report; then brings the window to the front. The game must outlive the window.
    void zeige(const Spielstand& spiel);
    // The game changed: everything built afresh for the chosen player while he takes part in the
    // game, else for player 0.
    void folge(const Spielstand& spiel, const Aenderung& art);

  private:
    Dialoge& m_dialoge;
    const Spielstand* m_spiel = nullptr;
    i16 m_spieler = 0;            // the chosen player slot
    Tabellenzeilen m_vorhersage;  // the chosen player's table, by team

    QGroupBox *fraVorhersage = nullptr, *fraTatsaechlich = nullptr;    // both "fraBlitztabelle"
    Ligatabelle *m_tatsaechlich = nullptr, *m_vorhergesagt = nullptr;  // rows 0..19 and 20..39
    std::array<QLabel*, MaxTeams> lblPunkteDiff{};
    QComboBox* cmbSpielerWahl = nullptr;
    QLabel* lblLiga = nullptr;
    QPlainTextEdit* txtPunkteDiff = nullptr;
    std::array<QFrame*, 2> linHori{};
    QFrame *Line1 = nullptr, *Line2 = nullptr;

    void erzeugeVorhersage(QWidget* mitte);
    void erzeugeTatsaechliche(QWidget* mitte);
    void erzeugeBericht(QWidget* mitte);
    void zeichne(const Spielstand& spiel);
    void fuelleSpielerWahl();
    void fuelleTatsaechlicheTabelle();
    void wendeLayoutAn();
    void baueNeu();
    void cmbSpielerWahl_Click(const QString& name);
    void lblTabName_MouseMove(int index);
    void faerbeZeile(int index, bool markiert);
};

}  // namespace kalimbo::ui
