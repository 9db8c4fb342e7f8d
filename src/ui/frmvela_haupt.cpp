#include "frmvela_haupt.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QScreen>

#include "scoring/anzeige.h"
#include "scoring/auswertung.h"
#include "scoring/regeln.h"
#include "state/eintraege.h"
#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/ligatabelle.h"
#include "ui/bausteine/rollflaeche.h"
#include "ui/bausteine/twips.h"
#include "ui/frmdrucken.h"
#include "ui/frmgrafik.h"
#include "ui/frmhaeufigkeiten.h"
#include "ui/frmregel.h"
#include "ui/frmsimulation.h"
#include "ui/frmspieler.h"
#include "ui/frmueber.h"
#include "ui/haupt/bedienfeld.h"
#include "ui/haupt/blitztabelle.h"
#include "ui/haupt/dokument.h"
#include "ui/haupt/ergebnisabgleich.h"
#include "ui/haupt/infobox.h"
#include "ui/haupt/saisonlayout.h"
#include "ui/haupt/spieltagsansicht.h"
#include "ui/haupt/spieltagswahl.h"
#include "ui/haupt/tipptabellen.h"

namespace kalimbo::ui {

namespace {

// The cause the running table names for an evaluation that no goal click started.
const QString OhneAnlass = QStringLiteral("---");

}  // namespace

frmVela_Haupt::frmVela_Haupt(Dialoge& dialoge, const std::string& startdatei, QWidget* eltern)
    : QMainWindow(eltern), m_dialoge(dialoge), m_startdatei(startdatei) {
    setObjectName(QStringLiteral("frmVela_Haupt"));
    QFont schrift = font();  // the layout is designed for a small font
    schrift.setPointSizeF(7.5);
    setFont(schrift);
    m_menue = baueHauptmenue(menuBar());
    baueFenster();
    m_dokument = new Dokument(this, m_dialoge, m_spiel, m_menue, [this] { return m_ansicht->eintraege(); });
    verbindePanels();
    verbindeMenue();
    m_bedienfeld->zeige(m_spiel);
}

// A game recovered or named on the command line ends by showing its last selected matchday, so
// matchday 0 of the empty game need not be drawn first.
void frmVela_Haupt::starte() {
    const bool wiederhergestellt = m_dokument->stelleWiederHer();
    if (!wiederhergestellt && !m_startdatei.empty()) oeffne(m_startdatei);
    fangeFehler(this, m_dialoge, [&] {
        if (!wiederhergestellt && m_spiel.Dateipfad.empty()) lblSpieltagWahl_Click(0);
        lblSpieler_Click(0);
    });
}

// The content keeps its designed size; on a smaller screen it scrolls.
void frmVela_Haupt::baueFenster() {
    auto* mitte = new QWidget(this);
    m_wahl = new Spieltagswahl(mitte);
    m_ansicht = new Spieltagsansicht(mitte);
    m_ansicht->setGeometry(rechteck(60, 540, 15240, 4920));
    m_bedienfeld = m_ansicht->bedienfeld();
    m_blitztabelle = new Blitztabelle(mitte);
    m_blitztabelle->setGeometry(rechteck(60, 5520, 6060, 5295));
    m_tipptabellen = new Tipptabellen(mitte);
    m_tipptabellen->setGeometry(rechteck(6180, 5520, 3900, 5295));
    m_infobox = new Infobox(mitte);
    m_infobox->setGeometry(rechteck(10140, 5520, 5160, 5295));
    setzeRollbarenInhalt(this, mitte, {px(15360), px(10875)});
}

void frmVela_Haupt::verbinde(QAction* aktion, std::function<void()> handler) {
    connect(aktion, &QAction::triggered, this, sicher(std::move(handler)));
}

void frmVela_Haupt::verbindePanels() {
    connect(m_dokument, &Dokument::spielGeladen, this, sicher([this] { zeigeGeladenesSpiel(); }));
    connect(m_wahl, &Spieltagswahl::spieltagGeklickt, this, sicher(&frmVela_Haupt::lblSpieltagWahl_Click));
    connect(m_wahl, &Spieltagswahl::auswahlGeklickt, this, sicher(&frmVela_Haupt::lblAuswahl_Click));
    connect(m_ansicht, &Spieltagsansicht::teamGeklickt, this, sicher(&frmVela_Haupt::lblTeam_Click));
    connect(m_ansicht, &Spieltagsansicht::spielerGeklickt, this, sicher(&frmVela_Haupt::lblSpieler_Click));
    connect(m_blitztabelle->tabelle(), &Ligatabelle::nameGeklickt, this,
            sicher(&frmVela_Haupt::lblTabName_Click));
    connect(m_ansicht, &Spieltagsansicht::bearbeitet, m_dokument, &Dokument::geaendert);
    connect(m_dokument, &Dokument::spielGeaendert, this, sicher(&frmVela_Haupt::folgeInfobox));
    connect(m_ansicht, &Spieltagsansicht::ueberlauf, this, [this](const QString& feld) {
        m_dialoge.warnung(this, QStringLiteral("Die Eingabe für %1 ist zu groß: höchstens 32767 Tore. Das "
                                               "Feld behält seinen bisherigen Wert.")
                                    .arg(feld));
    });
    connect(m_bedienfeld, &Bedienfeld::uebernehmen, this, sicher([this] { cmdSonntag_Click(); }));
    connect(m_bedienfeld, &Bedienfeld::auswerten, this, sicher([this] { auswerten(OhneAnlass); }));
}

void frmVela_Haupt::verbindeMenue() {
    const Hauptmenue& m = m_menue;
    verbinde(m.menNeuAusSpielplan, [this] { m_dokument->menNeuAusSpielplan_Click(); });
    verbinde(m.menOeffnen, [this] { m_dokument->menOeffnen_Click(); });
    verbinde(m.menSpeichern, [this] { m_dokument->menSpeichern_Click(); });
    verbinde(m.menTippdatei, [this] { m_dokument->menTippdatei_Click(); });
    verbinde(m.menImpTrainer, [this] { m_dokument->menImpTrainer_Click(); });
    auto* ergebnisse = new Ergebnisabgleich(this, m_dialoge, *m_dokument);
    verbinde(m.menImpErgebnisse, [ergebnisse] { ergebnisse->menImpErgebnisse_Click(); });
    connect(ergebnisse, &Ergebnisabgleich::ergebnisseGeaendert, this, [this] { zeichneSpieltag(); });
    for (int i = 0; i < 3; ++i)
        verbinde(m.menRecent[static_cast<std::size_t>(i)], [this, i] { m_dokument->menRecent_Click(i); });
    connect(m.menBeenden, &QAction::triggered, this, [this] {
        close();
        QCoreApplication::quit();
    });
    const std::pair<QAction*, Auswahlergebnis (*)(Spielstand&)> auswahl[] = {
        {m.menSptgAlle, waehleAlle},
        {m.menSptgKeinen, waehleKeine},
        {m.menSptgHinrunde, waehleHinrunde},
        {m.menSptgRueckrunde, waehleRueckrunde},
        {m.menSptgAlleAbsolv, waehleAlleAbsolvierten},
        {m.menSptgAlleAbsolvRueck, waehleAbsolvierteRueckrunde}};
    for (const auto& [aktion, waehle] : auswahl)
        verbinde(aktion, [this, waehle = waehle] { zeigeAuswahl(waehle(m_spiel)); });
    for (int i = 0; i < 10; ++i)
        verbinde(m.menDieserTrainer[static_cast<std::size_t>(i)],
                 [this, i] { zeigeAuswahl(waehleTrainerperiode(m_spiel, i)); });
    for (std::size_t i = 0; i < m.menSptgLetzten.size(); ++i)
        verbinde(m.menSptgLetzten[i],
                 [this, n = Hauptmenue::LetzteAnzahlen[i]] { zeigeAuswahl(waehleLetzte(m_spiel, n)); });
    verbinde(m.menReg2, [this] { menReg_Click(0); });
    verbinde(m.menReg3, [this] { menReg_Click(1); });
    verbinde(m.menReg321, [this] { menReg_Click(2); });
    verbinde(m.menRegEigene, [this] { menRegEigene_Click(); });
    verbinde(m.menSpielerAe, [this] { menSpielerAe_Click(); });
    verbinde(m.menAuswerten, [this] { auswerten(OhneAnlass); });
    verbinde(m.menBericht, [this] { m_infobox->exportiere(m_dialoge, m_spiel.getFussnote()); });
    verbinde(m.menHaeufigkeiten, [this] { fenster(m_frmHaeufigkeiten).zeige(m_spiel); });
    verbinde(m.menDrucken, [this] { fenster(m_frmDrucken).zeige(m_spiel); });
    verbinde(m.menSimulation, [this] { fenster(m_frmSimulation).zeige(m_spiel); });
    verbinde(m.menGrafik, [this] { fenster(m_frmGrafik).zeige(m_spiel); });
    verbinde(m.menUeber, [this] { menUeber_Click(); });
    connect(m.menNormal, &QAction::triggered, this, [this] { m_menue.menNormal->setChecked(true); });
    // Strg+Bild auf/ab show the matchday before or after the one shown.
    for (const auto& [taste, schritt] : {std::pair{Qt::Key_PageUp, -1}, std::pair{Qt::Key_PageDown, 1}}) {
        auto* blaettern = new QAction(this);
        blaettern->setShortcut(QKeySequence(Qt::CTRL | taste));
        addAction(blaettern);
        verbinde(blaettern, [this, schritt = schritt] { blaettere(schritt); });
    }
}

void frmVela_Haupt::zeigeBeimStart() {
    const QScreen* bildschirm = QGuiApplication::primaryScreen();
    if (bildschirm && startMaximiert(bildschirm->size().height()))
        showMaximized();
    else
        show();
    starte();
}

void frmVela_Haupt::closeEvent(QCloseEvent* ereignis) {
    m_dokument->schliesst();
    QMainWindow::closeEvent(ereignis);
}

void frmVela_Haupt::oeffne(const std::string& pfad) {
    fangeFehler(this, m_dialoge, [&] { m_dokument->oeffne(pfad); });
}

// ---------------------------------------------------------------------------------------------
// The game on screen

// The game just read (or recovered) is shown at once with the figures of an evaluation.
void frmVela_Haupt::zeigeGeladenesSpiel() {
    wendeSpielAn();
    auswerten(OhneAnlass);
}

// The game as read shows its last selected matchday (oeffneWieGezeigt).
void frmVela_Haupt::wendeSpielAn() {
    m_wahl->zeige(m_spiel);
    zeigeRegelhaken(m_menue, m_spiel.Modus);
    zeigeTrainermenue(m_menue, m_spiel);
    passeLayoutAn();
    m_blitztabelle->wendeSpielAn(m_spiel);
    m_ansicht->zeigeSpielernamen(m_spiel);
    m_bedienfeld->zeige(m_spiel);
    zeichneSpieltag();
}

void frmVela_Haupt::passeLayoutAn() {
    const auto layout = Saisonlayout::fuer(Saisonform::von(m_spiel));
    if (!layout) return;
    m_ansicht->setzeLayout(*layout);
    for (QWidget* rahmen : {static_cast<QWidget*>(m_blitztabelle), static_cast<QWidget*>(m_tipptabellen)})
        rahmen->resize(rahmen->width(), px(layout->rahmen));
    m_infobox->setzeHoehen(layout->rahmen, layout->infotext);
}

void frmVela_Haupt::zeichneSpieltag() {
    m_wahl->hebeHervor(m_spiel);
    m_ansicht->zeige(m_spiel);
    m_tipptabellen->zeige(m_spiel);
}

void frmVela_Haupt::nimmEintraege() {
    if (uebernimmEintraege(m_spiel, m_ansicht->eintraege())) m_dokument->melde({.daten = true});
}

// The boxes go back to the matchday they were drawn from before another one is shown.
void frmVela_Haupt::lblSpieltagWahl_Click(int spieltag) {
    nimmEintraege();
    zeigeSpieltag(m_spiel, spieltag);
    zeichneSpieltag();
}

void frmVela_Haupt::lblAuswahl_Click(int spieltag) {
    zeigeAuswahl(schalteSpieltag(m_spiel, spieltag));
}

void frmVela_Haupt::blaettere(int schritt) {
    const int tag = m_spiel.getAktSpieltag() + schritt;
    if (tag >= 0 && tag <= m_spiel.getAnzSpieltage()) lblSpieltagWahl_Click(tag);
}

void frmVela_Haupt::auswerten(const QString& anlass) {
    werteAusMit(m_ansicht->eintraege(), anlass, {.zahlen = true});
}

// The boxes are taken and the game evaluated in a copy; only when both succeed do the game and the
// whole window show the new state (a failed goal click leaves its box as it was).
void frmVela_Haupt::werteAusMit(const Spieltagseintraege& eintraege, const QString& anlass, Aenderung art) {
    const bool sonntag = m_ansicht->sonntagsspieleAuslassen();
    m_dokument->aendere(
        [&](Spielstand& s) {
            art.daten = uebernimmEintraege(s, eintraege) || art.daten;
            werteAusWieGezeigt(s, sonntag);
        },
        art);
    m_blitztabelle->zeige(m_spiel, anlass);
    zeichneSpieltag();
}

void frmVela_Haupt::lblTeam_Click(int spiel, int seite) {
    Spieltagseintraege eintraege = m_ansicht->eintraege();
    zaehleTor(eintraege, spiel, seite);
    const int team = m_spiel.getPaarung(m_spiel.getAktSpieltag(), spiel, seite);
    werteAusMit(eintraege, QStringLiteral("Tor für") + text(m_spiel.getTeamName(team)),
                {.daten = true, .zahlen = true});
}

void frmVela_Haupt::lblSpieler_Click(int spieler) {
    m_infobox->zeigeSpieler(m_spiel, spieler);
}

void frmVela_Haupt::folgeInfobox(const Aenderung& art) {
    m_infobox->folge(m_spiel, art);
}

void frmVela_Haupt::lblTabName_Click(int zeile) {
    m_infobox->zeigeTeam(m_spiel, zeile);
}

template <class Fenster>
Fenster& frmVela_Haupt::fenster(Fenster*& zeiger) {
    if (zeiger) return *zeiger;
    zeiger = new Fenster(this, m_dialoge);
    connect(m_dokument, &Dokument::spielGeaendert, zeiger, [this, f = zeiger](const Aenderung& art) {
        if (f->isVisible()) fangeFehler(f, m_dialoge, [&] { f->folge(m_spiel, art); });
    });
    verbindeFenster(zeiger);
    return *zeiger;
}

void frmVela_Haupt::verbindeFenster(frmRegel* regel) {
    connect(regel, &frmRegel::bestaetigt, this, sicher(&frmVela_Haupt::uebernimmEigeneRegel));
    connect(regel, &frmRegel::abgebrochen, this, sicher(&frmVela_Haupt::stelleRegelWiederHer));
}

void frmVela_Haupt::verbindeFenster(frmSpieler* spieler) {
    connect(spieler, &frmSpieler::bestaetigt, this, sicher([this, spieler] { HoleSpielerDaten(*spieler); }));
}

void frmVela_Haupt::menUeber_Click() {
    if (!m_frmUeber) m_frmUeber = new frmUeber(this);
    m_frmUeber->open();
}

// The boxes are taken too: the redraw below would otherwise drop what was typed.
void frmVela_Haupt::cmdSonntag_Click() {
    const Spieltagseintraege eintraege = m_ansicht->eintraege();
    const auto [aktuell, sonntag0, sonntag1] = m_bedienfeld->eingaben();
    m_dokument->aendere(
        [&](Spielstand& s) {
            uebernimmEintraege(s, eintraege);
            uebernimmAktuellenSpieltag(s, aktuell, sonntag0, sonntag1);
            markiereNichtteilnehmer(s);
        },
        {.daten = true});
    zeichneSpieltag();
}

void frmVela_Haupt::menReg_Click(i16 modus) {
    waehleRegel(m_spiel, modus);
    zeigeRegelhaken(m_menue, m_spiel.Modus);
    m_dokument->melde({.daten = true});
}

// The own rule's window is opened without waiting for it; the rule is in force at once, with the
// points and colours of the rule before until the window is confirmed.
void frmVela_Haupt::menRegEigene_Click() {
    frmRegel& regel = fenster(m_frmRegel);
    if (!regel.isVisible()) {
        m_modusVorher = m_spiel.Modus;
        m_regelVorher = regelInKraft(m_spiel);
    }
    menReg_Click(ModusEigeneRegel);
    regel.zeige(m_spiel);
}

void frmVela_Haupt::stelleRegelWiederHer() {
    m_dokument->aendere(
        [this](Spielstand& s) {
            setzeEigeneRegel(s, m_regelVorher);
            waehleRegel(s, m_modusVorher);
        },
        {.daten = true});
    zeigeRegelhaken(m_menue, m_spiel.Modus);
}

void frmVela_Haupt::menSpielerAe_Click() {
    fenster(m_frmSpieler).zeige(m_spiel);
}

void frmVela_Haupt::zeigeAuswahl(const Auswahlergebnis& ergebnis) {
    if (!ergebnis.ablehnung.empty()) {
        m_dialoge.meldung(this, text(ergebnis.ablehnung));
        return;
    }
    m_wahl->zeigeAuswahl(m_spiel, ergebnis.geaendert);
    if (ergebnis.geaendert.any()) m_dokument->melde({.daten = true});
}

void frmVela_Haupt::uebernimmEigeneRegel(const EigeneRegel& regel) {
    setzeEigeneRegel(m_spiel, regel);
    m_dokument->melde({.daten = true});
}

void frmVela_Haupt::HoleSpielerDaten(const SpielerDatenQuelle& quelle) {
    m_dokument->aendere(
        [&](Spielstand& s) {
            s.HoleSpielerDaten(quelle);
            markiereNichtteilnehmer(s);
        },
        {.daten = true});
    m_ansicht->zeigeSpielernamen(m_spiel);
    zeichneSpieltag();
}

}  // namespace kalimbo::ui
