#pragma once

#include <QDialog>
#include <QList>

#include "ui/bausteine/dialoge.h"

class QComboBox;

namespace kalimbo::ui {

// Pairs the team names of a fixture list or result file that fit no team of the game, or several,
// with the game's teams: one row per name, "lblQuelle_i" with the name and "cboTeam_i" with the
// teams, set to the best guess. OK takes the choice, Abbrechen or Escape cancels. Shown with exec().
class frmZuordnung : public QDialog {
    Q_OBJECT
  public:
    frmZuordnung(QWidget* eltern, const Zuordnungsfrage& frage);

    // The team chosen for each name, as an index into the question's teams.
    QList<int> auswahl() const;

  private:
    QList<QComboBox*> m_teams;
};

}  // namespace kalimbo::ui
