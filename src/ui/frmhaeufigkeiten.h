#pragma once

#include <QWidget>
#include <array>

#include "reports/haeufigkeiten.h"
#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"

class QLabel;
class QPlainTextEdit;

namespace kalimbo::ui {

class Dialoge;
class KlickLabel;

// The score frequencies over the matchdays selected for evaluation: a 10 x 10 grid of the real
// results (home goals down, away goals across) shaded by frequency; for the chosen score each
// taking-part player's count of such tips with a bar in the player's colour and the matches
// concerned; per player the most frequent tip and the number of exact hits.
class frmHaeufigkeiten : public QWidget {
    Q_OBJECT
  public:
    frmHaeufigkeiten(QWidget* eltern, Dialoge& dialoge);

    // Counts the game afresh, shows the grid and the score chosen before (at first the most
    // frequent result), and brings the window to the front. The game must outlive the window.
    void zeige(const Spielstand& spiel);
    // The game changed: counted and drawn afresh, the chosen score kept.
    void folge(const Spielstand& spiel, const Aenderung& art);

  protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

  private:
    Dialoge& m_dialoge;
    const Spielstand* m_spiel = nullptr;
    Haeufigkeiten m_haeufigkeiten;
    int m_klasse = -1;            // the chosen score class; -1 until the first show
    QWidget* m_inhalt = nullptr;  // the window's content, which has the focus for the arrow keys

    std::array<KlickLabel*, AnzErgebnisklassen> lblErgebnis{};  // 0..99 the grid, 100 "andere"
    QLabel* lblAuswahl = nullptr;
    QLabel *lblName = nullptr, *lblAnzahl = nullptr, *lblBalken = nullptr;  // the real results' row
    std::array<QLabel*, MaxSpieler> lblSpielerName{}, lblSpielerAnzahl{}, lblSpielerBalken{};
    std::array<QLabel*, MaxSpieler> lblTipper{}, lblHaeufigsterTipp{}, lblTreffer{};
    QPlainTextEdit* txtSpiele = nullptr;

    void erzeugeRaster(QWidget* mitte);
    void erzeugeAuswahl(QWidget* mitte);
    void erzeugeUebersicht(QWidget* mitte);
    void zeichne(const Spielstand& spiel);
    void lblErgebnis_Click(int klasse);
    void zeigeRaster();
    void zeigeUebersicht();
    void zeigeAuswahl();
};

}  // namespace kalimbo::ui
