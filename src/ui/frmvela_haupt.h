#pragma once

#include <QMainWindow>
#include <array>
#include <functional>

#include "scoring/auswahl.h"
#include "state/spielstand.h"
#include "ui/haupt/eingabefeld.h"
#include "ui/haupt/hauptmenue.h"
#include "ui/haupt/zuletztliste.h"

class QCheckBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace kalimbo::ui {

class Blitztabelle;
class Dialoge;
class KlickLabel;
class Tipptabellen;

// The main window: owns the game, shows one matchday with its results, tips and points, the
// running league table and the players' rankings, and carries the menus.
class frmVela_Haupt : public QMainWindow {
    Q_OBJECT
  public:
    // Starts with the game file `startdatei` open, if one is given.
    explicit frmVela_Haupt(Dialoge& dialoge, const QString& startdatei = {}, QWidget* eltern = nullptr);

    const Spielstand& spiel() const { return m_spiel; }
    // Opens a game file as "Öffnen" does once the dialog has given the path.
    void oeffne(const QString& pfad);
    // Shows the window: maximised on screens less than 768 pixels high, else at its designed size.
    void zeigeBeimStart();
    static bool startMaximiert(int bildschirmhoehe) { return bildschirmhoehe < 768; }

  private:
    Dialoge& m_dialoge;
    Spielstand m_spiel;
    ZuletztListe m_zuletzt;
    Hauptmenue m_menue{};
    QString m_blitzAnlass;
    int m_spieltagWahlAlt = 0;
    int m_ausgewaehlterSpieler = 0;
    std::array<i16, 4> m_wertBeiFokus{};  // value of the box that took the focus, per Eingabefeld::Art

    std::array<KlickLabel*, MaxSpieltage> lblSpieltagWahl{}, lblAuswahl{};
    std::array<KlickLabel*, MaxSpiele> lblHeimTeam{}, lblAusTeam{};
    std::array<QLabel*, MaxSpiele> lblStrich{};
    std::array<Eingabefeld*, MaxSpiele> txtHeimErgebnis{}, txtAusErgebnis{};
    std::array<Eingabefeld*, MaxSpieler * MaxSpiele> txtHeimTipp{}, txtAusTipp{};
    std::array<QFrame*, MaxSpieler> fraSpielerSaeule{};
    std::array<KlickLabel*, MaxSpieler> lblSpieler{};
    std::array<QLabel*, MaxSpieler> lblSptgPunkte{}, lblSptgPlatz{}, lblGesamtPunkte{}, lblGesamtPlatz{};
    std::array<QFrame*, 2> shpSonntag{};
    std::array<QLineEdit*, 2> txtSonntag{};
    QFrame* fraSpiele = nullptr;
    QFrame* linTrenn = nullptr;
    QLabel *lblQuoten = nullptr, *lblSptgZeile = nullptr, *lblGesamtZeile = nullptr;
    QCheckBox* chkSonntag = nullptr;
    QLineEdit* txtAktSpieltag = nullptr;
    QPushButton *cmdSonntag = nullptr, *cmdAuswerten = nullptr;
    Blitztabelle* fraBlitztabelle = nullptr;
    Tipptabellen* fraTabelle = nullptr;
    QGroupBox* fraTeamInfo = nullptr;
    QPlainTextEdit* txtTeamInfo = nullptr;

    // Building the window.
    void erzeugeSpieltagswahl(QWidget* mitte);
    void erzeugeSpieltagsansicht(QWidget* mitte);
    void erzeugeSpielerspalte(int spieler);
    void erzeugeBedienfeld();
    void erzeugeUntereRahmen(QWidget* mitte);
    void verbindeMenue();
    void setzeTabReihenfolge();
    Eingabefeld* eingabefeld(QWidget* eltern, const QString& name, Eingabefeld::Art art);
    std::function<void()> sicher(std::function<void()> handler);

    // Handlers.
    void menOeffnen_Click();
    void menSpeichern_Click();
    void menRecent_Click(int slot);
    void menReg_Click(i16 modus);
    void menDieserTrainer_Click(int trainer);
    void cmdAuswerten_Click();
    void cmdSonntag_Click();
    void lblSpieltagWahl_Click(int spieltag);
    void zeigeSpieltag(int spieltag);
    void lblAuswahl_Click(int spieltag);
    void lblTeam_Click(int spiel, int seite);
    void lblSpieler_Click(int spieler);
    void feld_GotFocus(Eingabefeld* feld);
    void feld_LostFocus(Eingabefeld* feld);
    void stelleFokusfeldWiederHer();
    void waehleSpieltage(Auswahlergebnis (*operation)(Spielstand&));
    void zeigeAuswahl(const Auswahlergebnis& ergebnis);

    // What the handlers share.
    void ShowMatchday();
    void TakeEntries();
    void auswerten(const QString& anlass);
    void nachDemOeffnen(const QString& pfad, const QString& titel, const Dateiinhalt& inhalt);
    void wendeSpielAn();
    void zeigeTrainermenue();
    void setzeLayout();
    void aktualisiereZuletztMenue();
    void aktualisiereRegelHaken();
    void zeigeAktuellenSpieltag();
    void aktualisiereTitel(const QString& datei);
};

}  // namespace kalimbo::ui
