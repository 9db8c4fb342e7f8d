#pragma once

#include <QObject>
#include <optional>

#include "quellen/ergebnisimport.h"

class QWidget;

namespace kalimbo::ui {

class Dialoge;
class Dokument;

// "Datei → Importieren → Ergebnisse…": the results of a fixture list or result file taken into the
// game. A file of another league is refused as a whole. The file's names that fit no team of the
// game, or several, are paired by the user in a dialog; the pairs are remembered for the game's
// file in the settings store and used without asking the next time (a game without a file
// remembers nothing). The results are one change of the document; the summary that follows offers
// to replace those the game has differently, as one more change. Nothing is evaluated: the manager
// selects the complete matchdays and evaluates, as the summary says. Throws the core's errors; a
// file that cannot be read or paired changes nothing.
class Ergebnisabgleich : public QObject {
    Q_OBJECT
  public:
    // The game and what is typed into its boxes (taken into the game first) come from `dokument`.
    Ergebnisabgleich(QWidget* fenster, Dialoge& dialoge, Dokument& dokument);

    void menImpErgebnisse_Click();

  signals:
    // The game's results changed; the matchday view is to show them.
    void ergebnisseGeaendert();

  private:
    QWidget* m_fenster;
    Dialoge& m_dialoge;
    Dokument& m_dokument;
    const Spielstand& m_spiel;

    // The file's names paired with the game's teams, asking for those still open; nothing when the
    // user cancelled.
    std::optional<Zuordnung> ordneZu(const Quelle& quelle);
    // The results taken into `vorher` (the game with what is typed) become the game.
    Ergebnisbericht uebernimm(const Spielstand& vorher, const Quelle& quelle, const Zuordnung& zuordnung,
                              bool ersetzen);
};

}  // namespace kalimbo::ui
