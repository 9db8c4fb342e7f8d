#pragma once

#include <QFrame>
#include <array>

#include "state/eintraege.h"
#include "state/spielstand.h"
#include "ui/haupt/eingabefeld.h"
#include "ui/haupt/saisonlayout.h"

class QCheckBox;
class QLabel;

namespace kalimbo::ui {

class Bedienfeld;
class KlickLabel;
class Zahlenlabel;

// The matchday view ("fraSpiele"): the fixtures with their result boxes, one column of tip boxes
// per taking-part player with his points and places, and the frames around the Sunday matches.
// Draws the shown matchday (AktSpieltag) from the game and its evaluation records, hands back what
// was typed, and keeps the rules of the boxes: a box being edited shows empty in red, and a box
// left empty gets back the value it had.
class Spieltagsansicht : public QFrame {
    Q_OBJECT
  public:
    explicit Spieltagsansicht(QWidget* eltern);

    // Draws matchday AktSpieltag: the Sunday frames on the current matchday, fixtures and results,
    // the columns of the participants side by side with points and places, every tip in the colour
    // of its hit. Writes nothing into the game.
    void zeige(const Spielstand& spiel);
    // The texts of the boxes; a box being edited and still empty stands for the value it had.
    Spieltagseintraege eintraege() const;
    // The players' names over their columns.
    void zeigeSpielernamen(const Spielstand& spiel);
    void setzeLayout(const Saisonlayout& layout);
    bool sonntagsspieleAuslassen() const;
    // The controls at its right: current matchday, Sunday matches, "Auswertung".
    Bedienfeld* bedienfeld() const { return m_bedienfeld; }

  signals:
    void teamGeklickt(int spiel, int seite);
    void spielerGeklickt(int spieler);
    // The user changed the text of a box.
    void bearbeitet();
    // Typed or pasted digits were refused: the number would have been larger than 32767. `feld`
    // names the box: "das Heimergebnis von „Aachen – Bochum“", "den Gasttipp von Anna zu „…“".
    void ueberlauf(const QString& feld);

  private:
    std::array<KlickLabel*, MaxSpiele> lblHeimTeam{}, lblAusTeam{};
    std::array<QLabel*, MaxSpiele> lblStrich{};
    std::array<Eingabefeld*, MaxSpiele> txtHeimErgebnis{}, txtAusErgebnis{};
    std::array<Eingabefeld*, MaxSpieler * MaxSpiele> txtHeimTipp{}, txtAusTipp{};
    std::array<QFrame*, MaxSpieler> fraSpielerSaeule{};
    std::array<KlickLabel*, MaxSpieler> lblSpieler{};
    std::array<Zahlenlabel*, MaxSpieler> lblSptgPunkte{}, lblSptgPlatz{}, lblGesamtPunkte{}, lblGesamtPlatz{};
    // The team names drawn into the fixture labels, so that an unchanged one is not set again.
    std::array<std::array<std::string, 2>, MaxSpiele> m_teamnamen;
    std::array<QFrame*, 2> shpSonntag{};
    QFrame* linTrenn = nullptr;
    QLabel *lblSptgZeile = nullptr, *lblGesamtZeile = nullptr;
    QCheckBox* chkSonntag = nullptr;
    Bedienfeld* m_bedienfeld = nullptr;
    // The value each kind of box had when it began to be edited (Eingabefeld::Art).
    std::array<i16, 4> m_wertBeiFokus{};

    void erzeugeSpiel(int k);
    void erzeugeSpielerspalte(int p);
    void setzeTabfolge();
    Eingabefeld* eingabefeld(QWidget* eltern, const char* name, int index, Eingabefeld::Art art);
    void feld_GotFocus(Eingabefeld* feld);
    void feld_LostFocus(Eingabefeld* feld);
    void zeigeSpiele(const Spielstand& spiel, int m);
    void zeigeSpieler(const Spielstand& spiel, int m);
    void zeigeTipps(const Spielstand& spiel, int m);
    // The box being edited, if the user is in one.
    Eingabefeld* bearbeitetesFeld() const;
    std::string wertVon(const Eingabefeld* feld) const;
    // The box of kind `art` with index `index` in its control array, as ueberlauf names it.
    QString feldname(Eingabefeld::Art art, int index) const;
};

}  // namespace kalimbo::ui
