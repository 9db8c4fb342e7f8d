#pragma once

#include <QMainWindow>
#include <array>
#include <functional>

#include "graph/punktegrafik.h"
#include "state/spielstand.h"

class QAction;
class QFrame;
class QLabel;

namespace kalimbo::ui {

class Dialoge;
class KlickLabel;
class Zeichenflaeche;

// The graph window: the players' running totals or matchday points as a chart, a legend that can
// be dragged by its "+" handle with a toggle per player for the marks and for the printed totals,
// and the "Bild" menu that saves the chart as a bitmap.
class frmGrafik : public QMainWindow {
    Q_OBJECT
  public:
    frmGrafik(QWidget* eltern, Dialoge& dialoge);

    // The highest matchday index drawn (the main window passes the season's).
    void setSpieltage(i16 spieltage);
    // With `ersterStart` set, the next zeige() sets the toggles afresh: marks for the players
    // taking part, no printed totals. Set when the window is made.
    void setFirstLoad(bool ersterStart);
    // Shows the window for `spiel`, which must outlive it, drawn afresh from its state.
    void zeige(const Spielstand& spiel);

  protected:
    bool event(QEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

  private:
    Dialoge& m_dialoge;
    const Spielstand* m_spiel = nullptr;
    i16 m_spieltage = 0;
    bool m_ersterStart = true;
    grafik::Ansicht m_ansicht;

    Zeichenflaeche* picHintergrund = nullptr;
    std::array<KlickLabel*, 2> lblSchalt{};
    QLabel* lblAnAus = nullptr;
    QFrame* shpRahmen = nullptr;
    std::array<QLabel*, MaxSpieler> lblSpieler{}, lblGesamtPunkte{}, lblSptgPunkte{};
    std::array<KlickLabel*, MaxSpieler> lblAnsicht{}, lblPunkteZeigen{};
    std::array<QFrame*, 2> linHori{};
    QLabel* lblTest = nullptr;
    QAction *menSpeichern = nullptr, *menDrucken = nullptr;

    void erzeugeLegende(QWidget* mitte);
    void erzeugeMenue();
    std::function<void()> sicher(std::function<void()> handler);

    // Handlers.
    void Form_Activate();
    void lblSchalt_Click(int index);
    void lblAnsicht_Click(int index);
    void lblPunkteZeigen_Click(int index);
    void lblAnAus_MouseMove(Qt::MouseButtons knoepfe, QPoint punkt);
    void lblAnAus_MouseUp(QPoint punkt);
    void menSpeichern_Click();

    void zeigeSchalter(int aktiv);
    void zeigeUmschalter();
    void setzeLegende(QPoint ursprung);
    void Redraw();
};

}  // namespace kalimbo::ui
