#pragma once

#include <QWidget>
#include <array>

#include "reports/spieltagsbogen.h"
#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"

class QComboBox;
class QPushButton;
class QRadioButton;

namespace kalimbo::ui {

class Dialoge;

// Printing a matchday sheet: the choice of the matchday and of the kind of sheet, a print preview,
// printing (with no printer installed it offers the PDF instead), and saving the sheet as a PDF or
// an HTML page.
class frmDrucken : public QWidget {
    Q_OBJECT
  public:
    frmDrucken(QWidget* eltern, Dialoge& dialoge);

    // Offers the matchdays of the game with the shown one chosen, keeps the kind chosen before,
    // and brings the window to the front. The game must outlive the window.
    void zeige(const Spielstand& spiel);
    // The game changed: the matchdays of the game offered, the chosen one kept while the game has
    // it (else the shown one), the kind kept.
    void folge(const Spielstand& spiel, const Aenderung& art);

  private:
    Dialoge& m_dialoge;
    const Spielstand* m_spiel = nullptr;

    QComboBox* cmbSpieltag = nullptr;
    std::array<QRadioButton*, 3> optArt{};  // in the order of Bogenart
    QPushButton *cmdVorschau = nullptr, *cmdDrucken = nullptr, *cmdPDF = nullptr, *cmdHTML = nullptr;

    void fuelleSpieltage(const Spielstand& spiel, int gewaehlt);
    void cmdVorschau_Click();
    void cmdDrucken_Click();
    void cmdPDF_Click();
    void cmdHTML_Click();

    Spieltagsbogen bogen() const;
    // Asks for a file name (proposing one beside the game file) and writes `inhalt` there
    // atomically; a cancelled dialog does nothing.
    void speichere(const QString& titel, const QString& filter, const QString& endung,
                   const QByteArray& inhalt);
    void speicherePdf(const QString& titel);
};

}  // namespace kalimbo::ui
