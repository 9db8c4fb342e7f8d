#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>

#include "state/spielstand.h"
#include "ui/haupt/wiederherstellung.h"

class QWidget;

namespace kalimbo::ui {

class Dialoge;

// The game as the main window's document: the file it was loaded from (named in the window
// title), the file a save proposes (Dateipfad, Dateititel: the one last opened through the dialog
// or saved), whether it has unsaved changes (the title's "*"), and the recovery copy kept while it
// has them.
class Dokument : public QObject {
    Q_OBJECT
  public:
    // `zuSichern` gives the game as it would be saved now, with what is typed into the boxes.
    Dokument(QWidget* fenster, Spielstand& spiel, std::function<Dateiinhalt()> zuSichern);

    // A game was read from `pfad`; with `alsSpeicherziel` a later save proposes it. No unsaved
    // changes.
    void geladen(const QString& pfad, bool alsSpeicherziel);
    // The game was saved to `pfad`: no unsaved changes, no recovery copy.
    void gespeichert(const QString& pfad);
    // The game changed: "*" in the title, and a moment later (so that a run of changes writes it
    // once) the recovery copy.
    void geaendert();
    // The window closes: with unsaved changes the copy is written at once, without them removed.
    void schliesst();
    // The copy an earlier run left, if the user wants it back ("Nein" discards it). The game is
    // then the copy's, with its file proposed for saving and marked as changed.
    bool stelleWiederHer(Dialoge& dialoge);

  private:
    QWidget* m_fenster;
    Spielstand& m_spiel;
    std::function<Dateiinhalt()> m_zuSichern;
    Wiederherstellung m_wiederherstellung;
    QTimer m_sicherung;

    void setzeDatei(const QString& pfad, bool alsSpeicherziel);
    void sichereKopie();
};

}  // namespace kalimbo::ui
