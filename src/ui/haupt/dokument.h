#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <string>

#include "state/eintraege.h"
#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"
#include "ui/haupt/hauptmenue.h"
#include "ui/haupt/wiederherstellung.h"
#include "ui/haupt/zuletztliste.h"

class QWidget;

namespace kalimbo::ui {

class Dialoge;

// The game as the main window's document, and the commands of the "Datei" menu that read and write
// it: the game's file (named in the window title and proposed by a save: the last one opened by any
// way or saved), the three files used last, whether it has unsaved changes (the title's "*"), and
// the recovery copy kept while it has them. Every change of the game is announced through
// spielGeaendert, so every window showing the game follows it. Every command may throw the core's
// errors; the caller's error boundary shows them, and a file that cannot be read changes nothing.
class Dokument : public QObject {
    Q_OBJECT
  public:
    // `eintraege` gives what is typed into the matchday view's boxes, taken into the game before a
    // save or a merge and into the recovery copy.
    Dokument(QWidget* fenster, Dialoge& dialoge, Spielstand& spiel, const Hauptmenue& menue,
             std::function<Spieltagseintraege()> eintraege);
    // Stores the list of recent files if a change of it is still waiting.
    ~Dokument() override;

    // Runs `aenderung` on a copy of the game and puts the copy in its place only when it succeeds:
    // an operation that fails half-way (an overflow in an evaluation) leaves the game as it was.
    // Then announces `art` as it stands then: the operation may add to what it names.
    void aendere(const std::function<void(Spielstand&)>& aenderung, const Aenderung& art);
    // Announces a change already made in one step: the title's "*" and the recovery copy for a
    // change of the data, then spielGeaendert.
    void melde(Aenderung art);

    const Spielstand& spiel() const { return m_spiel; }
    // What is typed into the matchday view's boxes now.
    Spieltagseintraege eintraege() const { return m_eintraege(); }

    // Opens the game file at `pfad` (file-system bytes; made absolute), as "Öffnen" does once the
    // dialog has answered. Asks nothing.
    void oeffne(const std::string& pfad);
    void menOeffnen_Click();
    // A new game from a fixture list (neuesSpiel), unsaved: "Speichern" asks for its name.
    void menNeuAusSpielplan_Click();
    void menRecent_Click(int eintrag);
    // Results and tips of another game file fill those still 0:0; every other field becomes the
    // other file's. The game's file stays the same.
    void menTippdatei_Click();
    // The coach periods of any file; the game's file stays the same.
    void menImpTrainer_Click();
    // Saves after asking for the name; false when the user cancelled.
    bool menSpeichern_Click();

    // The user typed into a box: the game counts as changed ("*" in the title, and a moment later,
    // so that a run of changes writes it once, the recovery copy).
    void geaendert();
    // The window closes: with unsaved changes the copy is kept (written at once), else removed.
    void schliesst();
    // Offers the copies that windows no longer running left, newest first, until the user takes
    // one ("Ja"); "Nein" discards a copy, Escape leaves it for the next start. A copy that cannot be
    // read is reported and moved aside. Returns whether a copy was taken: the game is then the
    // copy's, with its file proposed for saving, and marked as changed.
    bool stelleWiederHer();

  signals:
    // A game was read into the state (opened, merged or recovered) and is to be shown whole.
    void spielGeladen();
    // The game changed (see Aenderung).
    void spielGeaendert(const Aenderung& art);

  private:
    QWidget* m_fenster;
    Dialoge& m_dialoge;
    Spielstand& m_spiel;
    const Hauptmenue& m_menue;
    std::function<Spieltagseintraege()> m_eintraege;
    ZuletztListe m_zuletzt;
    Wiederherstellung m_wiederherstellung;
    QTimer m_sicherung;
    QTimer m_zuletztSchreiben;

    // Before another game takes this one's place: unsaved changes are saved or dropped as the
    // user says. False when the user cancelled.
    bool darfErsetzen();
    void oeffneUnter(const std::string& pfad, const QString& titel);
    void setzeDatei(const std::string& pfad);
    // The game is as its file has it: no "*", no recovery copy.
    void unveraendert();
    void merke(const QString& pfad, const QString& titel);
    void sichereKopie();
};

}  // namespace kalimbo::ui
