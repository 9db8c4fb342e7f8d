#pragma once

#include <QMainWindow>
#include <array>
#include <functional>
#include <optional>

#include "graph/punktegrafik.h"
#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"

class QAction;
class QFrame;
class QLabel;

namespace kalimbo::ui {

class Dialoge;
class KlickLabel;
class Zeichenflaeche;

// The graph window: the players' running totals or matchday points as a chart, a legend on an
// opaque background in the chart's top left that can be dragged by its "+" handle, with a toggle per
// player for the marks and for the printed totals, and the "Bild" menu that saves the chart as a
// bitmap.
class frmGrafik : public QMainWindow {
    Q_OBJECT
  public:
    frmGrafik(QWidget* eltern, Dialoge& dialoge);

    // Shows the window for `spiel`, which must outlive it, drawn afresh from its state over the
    // season's matchdays. The first time, the toggles show the marks of the players taking part
    // and no printed totals.
    void zeige(const Spielstand& spiel);
    // The game changed: drawn afresh in the view shown; the toggles of the slots that took part
    // before and still do stay as they were, the others are set as the first time.
    void folge(const Spielstand& spiel, const Aenderung& art);

  protected:
    bool event(QEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

  private:
    Dialoge& m_dialoge;
    const Spielstand* m_spiel = nullptr;
    grafik::Ansicht m_ansicht;
    std::optional<Feld<i16, MaxSpieler>> m_teilnehmer;  // the slots taking part when last drawn

    Zeichenflaeche* picHintergrund = nullptr;
    std::array<KlickLabel*, 2> lblSchalt{};
    QLabel* lblAnAus = nullptr;
    QFrame* shpRahmen = nullptr;
    QFrame* fraLegende = nullptr;  // the legend's opaque background
    std::array<QLabel*, MaxSpieler> lblSpieler{}, lblGesamtPunkte{}, lblSptgPunkte{};
    std::array<KlickLabel*, MaxSpieler> lblAnsicht{}, lblPunkteZeigen{};
    std::array<QFrame*, 2> linHori{};
    QLabel* lblTest = nullptr;
    QAction *menSpeichern = nullptr, *menDrucken = nullptr;

    void erzeugeLegende(QWidget* mitte);
    void erzeugeMenue();

    // Handlers.
    void Form_Activate();
    void lblSchalt_Click(int index);
    void lblAnsicht_Click(int index);
    void lblPunkteZeigen_Click(int index);
    void lblAnAus_MouseMove(Qt::MouseButtons knoepfe, QPoint punkt);
    void lblAnAus_MouseUp(QPoint punkt);
    void menSpeichern_Click();

    void passeUmschalterAn(const Spielstand& spiel);
    void zeigeSchalter(int aktiv);
    void zeigeUmschalter();
    void setzeLegende(QPoint ursprung);
    void zeichneNeu();
};

}  // namespace kalimbo::ui
