#pragma once

#include <array>

#include "state/spielstand.h"
#include "ui/haupt/zuletztliste.h"

class QAction;
class QMenu;
class QMenuBar;

namespace kalimbo::ui {

// The main window's menu tree. Every item carries its name as object name ("menOeffnen",
// "menRecent_1", "menSptgLetzten_6", ...), so tests and handlers can find it.
struct Hauptmenue {
    QAction *menNeuAusSpielplan, *menOeffnen, *menSpeichern, *menTippdatei, *menImpTrainer, *menImpErgebnisse,
        *menHTML, *menBericht, *menDrucken, *menBeenden;
    std::array<QAction*, 3> menRecent;
    QAction *menSptgAlle, *menSptgKeinen, *menSptgHinrunde, *menSptgRueckrunde, *menSptgAlleAbsolv,
        *menSptgAlleAbsolvRueck;
    QMenu* menTrainerwechsel;
    std::array<QAction*, 10> menDieserTrainer;
    static constexpr std::array<int, 5> LetzteAnzahlen{3, 6, 10, 17, 24};
    std::array<QAction*, 5> menSptgLetzten;  // in the order of LetzteAnzahlen
    QAction *menReg321, *menReg3, *menReg2, *menRegEigene;
    QAction *menSpielerAe, *menAuswerten;
    QAction *menNormal, *menGrafik, *menSimulation, *menHaeufigkeiten;
    QAction* menUeber;
};

Hauptmenue baueHauptmenue(QMenuBar* leiste);

// The check mark of the rule in force (Modus 0..3; any other value checks none).
void zeigeRegelhaken(const Hauptmenue& menue, i16 modus);
// The coach periods: item 0 is always there (disabled while its period is not active, "noch keine
// Trainerwechsel" while it has no name either), the others only when active.
void zeigeTrainermenue(const Hauptmenue& menue, const Spielstand& spiel);
// The recent files by their names ("&" shown as itself), the full path as hint; empty ones hidden.
void zeigeZuletzt(const Hauptmenue& menue, const ZuletztListe& liste);

}  // namespace kalimbo::ui
