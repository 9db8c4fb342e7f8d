#pragma once

#include <QMainWindow>
#include <functional>
#include <type_traits>

#include "scoring/auswahl.h"
#include "scoring/regeln.h"
#include "state/eintraege.h"
#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/haupt/hauptmenue.h"

namespace kalimbo::ui {

class Bedienfeld;
class Blitztabelle;
class Dialoge;
class Dokument;
class frmDrucken;
class frmHaeufigkeiten;
class frmRegel;
class frmSimulation;
class frmGrafik;
class frmSpieler;
class frmUeber;
class Infobox;
class Spieltagsansicht;
class Spieltagswahl;
class Tipptabellen;

// The main window: owns the game, composes the panels that show it (the matchday selector row,
// the matchday view with its controls, the running league table, the players' rankings and the
// information box), carries the menus and opens the other windows. Its handlers take what the
// user typed into the game, run the core's operations and let the panels draw the result.
class frmVela_Haupt : public QMainWindow {
    Q_OBJECT
  public:
    // The window with an empty game; starte() opens the game file `startdatei` (file-system bytes),
    // if one is given.
    explicit frmVela_Haupt(Dialoge& dialoge, const std::string& startdatei = {}, QWidget* eltern = nullptr);

    const Spielstand& spiel() const { return m_spiel; }
    // Opens a game file as "Öffnen" does once the dialog has given the path (file-system bytes).
    void oeffne(const std::string& pfad);
    // Opens the game to start with: a recovery copy the user takes, else the start file, else the
    // empty game's first matchday. Its messages appear over the window when it is shown already.
    void starte();
    // Shows the window, maximised on screens less than 768 pixels high, else at its designed size;
    // then starts.
    void zeigeBeimStart();
    static bool startMaximiert(int bildschirmhoehe) { return bildschirmhoehe < 768; }

    // The only ways other windows change the game: the own rule's points and colours (written with
    // setModus and setFarbeMod), and the players' names, colours and participation.
    void uebernimmEigeneRegel(const EigeneRegel& regel);
    void HoleSpielerDaten(const SpielerDatenQuelle& quelle);

  protected:
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    Dialoge& m_dialoge;
    Spielstand m_spiel;
    Hauptmenue m_menue{};
    Dokument* m_dokument;
    std::string m_startdatei;

    Spieltagswahl* m_wahl;
    Spieltagsansicht* m_ansicht;
    Bedienfeld* m_bedienfeld;
    Blitztabelle* m_blitztabelle;
    Tipptabellen* m_tipptabellen;
    Infobox* m_infobox;
    // The other windows, created on first use and kept.
    frmSpieler* m_frmSpieler = nullptr;
    frmRegel* m_frmRegel = nullptr;
    frmHaeufigkeiten* m_frmHaeufigkeiten = nullptr;
    frmDrucken* m_frmDrucken = nullptr;
    frmSimulation* m_frmSimulation = nullptr;
    frmGrafik* m_frmGrafik = nullptr;
    frmUeber* m_frmUeber = nullptr;
    // The rule in force before the own rule's window opened, for when it closes without "OK".
    i16 m_modusVorher = 0;
    EigeneRegel m_regelVorher{};

    void baueFenster();
    void verbindePanels();
    void verbindeMenue();
    void verbinde(QAction* aktion, std::function<void()> handler);
    // A handler inside the error boundary (ui::sicher): a core error is shown and the window keeps
    // going. A member function is called on this window.
    template <class Handler>
    auto sicher(Handler handler) {
        if constexpr (std::is_member_function_pointer_v<Handler>)
            return ui::sicher(this, m_dialoge, std::bind_front(handler, this));
        else
            return ui::sicher(this, m_dialoge, std::move(handler));
    }

    // The game on screen.
    void zeigeGeladenesSpiel();
    void wendeSpielAn();
    void passeLayoutAn();
    // Draws the shown matchday (the view and the rankings); writes nothing into the game.
    void zeichneSpieltag();
    // Takes the boxes into the game; announces the change when a value changed.
    void nimmEintraege();
    void lblSpieltagWahl_Click(int spieltag);
    void lblAuswahl_Click(int spieltag);
    void blaettere(int schritt);
    void auswerten(const QString& anlass);
    void werteAusMit(const Spieltagseintraege& eintraege, const QString& anlass, Aenderung art);
    void lblTeam_Click(int spiel, int seite);
    void lblSpieler_Click(int spieler);
    void folgeInfobox(const Aenderung& art);
    void lblTabName_Click(int zeile);
    void menUeber_Click();
    // A secondary window, created on first use and kept; from then on it follows every change of
    // the game (see Aenderung) while it is open.
    template <class Fenster>
    Fenster& fenster(Fenster*& zeiger);
    // What a window hands back to the main window, connected once when it is made.
    void verbindeFenster(QWidget*) {}
    void verbindeFenster(frmRegel* regel);
    void verbindeFenster(frmSpieler* spieler);
    void cmdSonntag_Click();
    void menReg_Click(i16 modus);
    void menRegEigene_Click();
    void stelleRegelWiederHer();
    void menSpielerAe_Click();
    void zeigeAuswahl(const Auswahlergebnis& ergebnis);
};

}  // namespace kalimbo::ui
