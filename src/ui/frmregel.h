#pragma once

#include <QWidget>
#include <array>

#include "scoring/regeln.h"
#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"

class QLineEdit;

namespace kalimbo::ui {

class Dialoge;
class KlickLabel;

// The own rule ("frmRegel"): points and background colour for each hit kind (0 fully correct,
// 1 correct margin, 2 correct tendency), starting from the rule in force. "OK" hands the three
// points and colours to the main window, which writes them with setModus and setFarbeMod; nothing
// is evaluated until the user asks for it. "Abbrechen", Escape and the frame's close button close
// it without them, and the main window goes back to the rule in force before it opened.
class frmRegel : public QWidget {
    Q_OBJECT
  public:
    frmRegel(QWidget* eltern, Dialoge& dialoge);

    // Points and colours of the rule in force, then shows the window (without waiting for it).
    void zeige(const Spielstand& spiel);
    // The game changed: what the user is editing stays, unless another game took the place of the
    // one edited; then the window closes and the edits are dropped.
    void folge(const Spielstand& spiel, const Aenderung& art);

    // The colours offered for the own rule; the fixed rules' red and yellow differ slightly.
    static const std::array<Farbe, 3> Angebot;

  signals:
    // "OK": the three points and colours, to be written with setModus and setFarbeMod.
    void bestaetigt(const EigeneRegel& regel);
    // Closed without "OK".
    void abgebrochen();

  protected:
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    Dialoge& m_dialoge;
    std::array<Farbe, 3> m_gewaehlt{};
    std::array<QLineEdit*, 3> txtNeuModus{};
    std::array<KlickLabel*, 9> lblFarbAlt{};
    std::array<QWidget*, 3> lblFarbWahl{};
    std::array<QWidget*, 9> lblFarbeFest{};

    void lblFarbAlt_Click(int index);
    void cmdOK_Click();
};

}  // namespace kalimbo::ui
