#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "state/eintraege.h"
#include "state/spielstand.h"
#include "ui/haupt/hauptmenue.h"
#include "ui/haupt/wiederherstellung.h"
#include "ui/haupt/zuletztliste.h"

class QWidget;

namespace kalimbo::ui {

class Dialoge;

// The game as the main window's document, and the commands of the "Datei" menu that read and write
// it: the file it was loaded from (named in the window title), the file a save proposes
// (Dateipfad, Dateititel: the one last opened through the dialog, merged or saved), the three
// files used last, whether it has unsaved changes (the title's "*"), and the recovery copy kept
// while it has them. Every command may throw the core's errors; the caller's error boundary shows
// them, and a file that cannot be read changes nothing.
class Dokument : public QObject {
    Q_OBJECT
  public:
    // `eintraege` gives what is typed into the matchday view's boxes, taken into the game before a
    // save or a merge and into the recovery copy.
    Dokument(QWidget* fenster, Dialoge& dialoge, Spielstand& spiel, const Hauptmenue& menue,
             std::function<Spieltagseintraege()> eintraege);
    // Stores the list of recent files if a change of it is still waiting.
    ~Dokument() override;

    // Opens the game file at `pfad` (made absolute), as "Öffnen" does once the dialog has answered.
    void oeffne(const QString& pfad);
    void menOeffnen_Click();
    // A recent file is read without becoming the file a later save proposes.
    void menRecent_Click(int eintrag);
    // Results and tips of another game file fill those still 0:0; every other field becomes the
    // other file's, which is then the file a save proposes.
    void menTippdatei_Click();
    // The coach periods of any file; the file does not become the game's file.
    void menImpTrainer_Click();
    void menSpeichern_Click();

    // The game changed: "*" in the title, and a moment later (so that a run of changes writes it
    // once) the recovery copy.
    void geaendert();
    // The window closes: with unsaved changes the copy is written at once, without them removed.
    void schliesst();
    // The copy an earlier run left, if the user wants it back ("Nein" discards it). The game is
    // then the copy's, with its file proposed for saving, and marked as changed.
    bool stelleWiederHer();

  signals:
    // A game was read into the state (opened, merged or recovered) and is to be shown.
    void spielGeladen();

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

    void nachDemLesen(const QString& pfad, const QString& titel, bool alsSpeicherziel);
    void setzeDatei(const QString& pfad, bool alsSpeicherziel);
    void merke(const QString& pfad, const QString& titel);
    void sichereKopie();
};

}  // namespace kalimbo::ui
