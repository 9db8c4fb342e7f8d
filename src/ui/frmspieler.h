#pragma once

#include <QWidget>
#include <array>

#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kalimbo::ui {

class Dialoge;
class KlickLabel;

// The player settings ("frmSpieler"): name, "spielt mit" and colour of the nine player slots.
// A click on a slot's colour gives it the next colour of the palette; one counter serves all
// slots and keeps running while the program runs. "OK" hands the data over (the main window then
// takes it through HoleSpielerDaten, reading this window as its source) and hides the window;
// "Abbrechen", Escape and the frame's close button drop the edits.
class frmSpieler : public QWidget, public SpielerDatenQuelle {
    Q_OBJECT
  public:
    frmSpieler(QWidget* eltern, Dialoge& dialoge);

    // Fills the slots from the game (names; flag and colour of the participants; the others keep
    // this window's colour) and shows the window.
    void zeige(const Spielstand& spiel);
    // The game changed: what the user is editing stays, unless another game took the place of the
    // one edited; then the window closes and the edits are dropped.
    void folge(const Spielstand& spiel, const Aenderung& art);

    std::string getSpielerName(int spieler) const override;
    Farbe getSpielerFarbe(int spieler) const override;
    i16 getTeilnehmer(int spieler) const override;

    static const std::array<Farbe, 16> Palette;

  signals:
    // "OK": the data are ready to be taken over.
    void bestaetigt();

  protected:
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    Dialoge& m_dialoge;
    std::array<std::string, MaxSpieler> m_namen;
    std::array<Farbe, MaxSpieler> m_farben{};
    std::array<Farbe, MaxSpieler> m_farbenBeimZeigen{};
    std::array<i16, MaxSpieler> m_teilnehmer{};
    int m_farbzaehler = 5;

    std::array<QLineEdit*, MaxSpieler> txtSpieler{};
    std::array<QCheckBox*, MaxSpieler> chkTeilnehmer{};
    std::array<KlickLabel*, MaxSpieler> lblSpielerFarbe{};
    std::array<QFrame*, 16> shpFarbe{};
    QFrame* shpAuswahl;
    QPushButton* cmdOK;

    void lblSpielerFarbe_Click(int spieler);
    void cmdOK_Click();
};

}  // namespace kalimbo::ui
