#include "frmsimulation.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>

#include "reports/haeufigkeiten.h"
#include "simulation/abweichung.h"
#include "simulation/vorhersage.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/ligatabelle.h"
#include "ui/bausteine/nebenfenster.h"
#include "ui/bausteine/rollflaeche.h"
#include "ui/bausteine/saisonform.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

namespace {

// Layout in twips. The frames stand side by side, the predicted table on the left with the real
// points beside its rows, the report under both. Inside a frame: the player choice or the league
// line under the caption, then the table, a line under its headings and one under its last row.
constexpr int RahmenOben = 60;
constexpr int VorhersageLinks = 120, VorhersageBreite = 6660;
constexpr int TatsaechlichLinks = 6900, TatsaechlichBreite = 6120;
constexpr int KopfOben = 300, KopfHoehe = 315;
constexpr int TabelleOben = 680;    // the table's headings; its rows follow 240 twips apart
constexpr int KopflinieOben = 905;  // the last line of the headings
constexpr int PunkteDiffLinks = 6000, PunkteDiffBreite = 540;
constexpr int LinieLinks = 120;
constexpr int BerichtLinks = 120, BerichtBreite = 12900;
constexpr int FensterBreite = 13140, FensterHoehe = 9000;

// What depends on the size of the league.
struct Layout {
    int rahmenHoehe, berichtHoehe, berichtOben;
    int zeilen;  // rows shown in each table
};
constexpr Layout Entwurf{6015, 2760, 6120, MaxTeams};  // 38 matchdays, and any season but 34
constexpr Layout Kurz{5295, 3255, 5520, 18};           // 34 matchdays
// The lines under the last row, linHori 0 (predicted frame) and 1 (real frame): right under row
// 19, or under row 17 in an 18-team league.
constexpr std::array<int, 2> LinienEntwurf{5735, 5720}, Linien18{5255, 5240};

// "Courier" where it is installed, otherwise the platform's fixed-pitch font.
QFont festeSchrift() {
    if (QFontDatabase::hasFamily(QStringLiteral("Courier"))) return QFont(QStringLiteral("Courier"), 10);
    return QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

QGroupBox* rahmen(QWidget* eltern, const QString& titel, int links, int breite) {
    auto* r = element<QGroupBox>(eltern, QStringLiteral("fraBlitztabelle"),
                                 rechteck(links, RahmenOben, breite, Entwurf.rahmenHoehe));
    r->setTitle(titel);
    return r;
}

QFrame* linie(QWidget* eltern, const QString& name, int oben, int breite) {
    auto* l = element<QFrame>(eltern, name, rechteck(LinieLinks, oben, breite, 15));
    l->setFrameShape(QFrame::HLine);
    l->setFrameShadow(QFrame::Plain);
    return l;
}

}  // namespace

frmSimulation::frmSimulation(QWidget* eltern, Dialoge& dialoge) : QWidget(eltern), m_dialoge(dialoge) {
    richteNebenfensterEin(this, QStringLiteral("frmSimulation"), QStringLiteral("Simulation"));
    QWidget* mitte = rollbarerInhalt(this, {px(FensterBreite), px(FensterHoehe)});
    erzeugeVorhersage(mitte);
    erzeugeTatsaechliche(mitte);
    erzeugeBericht(mitte);
}

void frmSimulation::erzeugeVorhersage(QWidget* mitte) {
    fraVorhersage = rahmen(mitte, QStringLiteral("Tabelle laut Vorhersage des gewählten Tippers"),
                           VorhersageLinks, VorhersageBreite);
    cmbSpielerWahl = element<QComboBox>(fraVorhersage, QStringLiteral("cmbSpielerWahl"),
                                        rechteck(120, KopfOben, 2880, KopfHoehe));
    cmbSpielerWahl->setPlaceholderText(QStringLiteral("Spieler wählen"));
    connect(cmbSpielerWahl, &QComboBox::textActivated, this,
            sicher(this, m_dialoge, [this](const QString& name) { cmbSpielerWahl_Click(name); }));
    m_vorhergesagt = new Ligatabelle(fraVorhersage, MaxTeams);
    m_vorhergesagt->move(0, px(TabelleOben));
    for (int z = 0; z < MaxTeams; ++z) {
        const QRect zeile = m_vorhergesagt->zeilenOrt(z).translated(m_vorhergesagt->pos());
        lblPunkteDiff[z] =
            element<QLabel>(fraVorhersage, indexName("lblPunkteDiff", z),
                            QRect(px(PunkteDiffLinks), zeile.y(), px(PunkteDiffBreite), zeile.height()));
        lblPunkteDiff[z]->setAlignment(Qt::AlignCenter);
        lblPunkteDiff[z]->setToolTip(QStringLiteral("tatsächlich erreichte Punktzahl"));
    }
    connect(m_vorhergesagt, &Ligatabelle::nameBetreten, this,
            sicher(this, m_dialoge, [this](int zeile) { lblTabName_MouseMove(MaxTeams + zeile); }));
    const int linienBreite = PunkteDiffLinks + PunkteDiffBreite - LinieLinks;
    Line1 = linie(fraVorhersage, QStringLiteral("Line1"), KopflinieOben, linienBreite);
    linHori[0] = linie(fraVorhersage, indexName("linHori", 0), LinienEntwurf[0], linienBreite);
}

void frmSimulation::erzeugeTatsaechliche(QWidget* mitte) {
    fraTatsaechlich =
        rahmen(mitte, QStringLiteral("Tatsächliche Tabelle"), TatsaechlichLinks, TatsaechlichBreite);
    lblLiga = element<QLabel>(fraTatsaechlich, QStringLiteral("lblLiga"),
                              rechteck(120, KopfOben, TatsaechlichBreite - 240, KopfHoehe));
    setzeFett(lblLiga, true);
    m_tatsaechlich = new Ligatabelle(fraTatsaechlich, 0);
    m_tatsaechlich->move(0, px(TabelleOben));
    connect(m_tatsaechlich, &Ligatabelle::nameBetreten, this,
            sicher(this, m_dialoge, [this](int zeile) { lblTabName_MouseMove(zeile); }));
    const int linienBreite = TatsaechlichBreite - 2 * LinieLinks;
    Line2 = linie(fraTatsaechlich, QStringLiteral("Line2"), KopflinieOben, linienBreite);
    linHori[1] = linie(fraTatsaechlich, indexName("linHori", 1), LinienEntwurf[1], linienBreite);
}

void frmSimulation::erzeugeBericht(QWidget* mitte) {
    txtPunkteDiff = element<QPlainTextEdit>(
        mitte, QStringLiteral("txtPunkteDiff"),
        rechteck(BerichtLinks, Entwurf.berichtOben, BerichtBreite, Entwurf.berichtHoehe));
    txtPunkteDiff->setReadOnly(true);
    txtPunkteDiff->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtPunkteDiff->setFont(festeSchrift());
    // The report aligns its columns with tabs at every eighth character.
    txtPunkteDiff->setTabStopDistance(
        8 * QFontMetricsF(txtPunkteDiff->font()).horizontalAdvance(QLatin1Char(' ')));
}

void frmSimulation::zeige(const Spielstand& spiel) {
    m_spieler = 0;
    cmbSpielerWahl->setCurrentIndex(-1);
    zeichne(spiel);
    holeNachVorn(this);
}

void frmSimulation::folge(const Spielstand& spiel, const Aenderung&) {
    if (spiel.getTeilnehmer(m_spieler) != 1) m_spieler = 0;
    zeichne(spiel);
}

void frmSimulation::zeichne(const Spielstand& spiel) {
    m_spiel = &spiel;
    fuelleSpielerWahl();
    fuelleTatsaechlicheTabelle();
    wendeLayoutAn();
    baueNeu();
}

// The chosen player's name where he is offered; else the prompt (player 0 is shown all the same).
void frmSimulation::fuelleSpielerWahl() {
    const bool gewaehlt = cmbSpielerWahl->currentIndex() >= 0;
    cmbSpielerWahl->clear();
    int eintrag = -1;
    for (const i16 p : waehlbareSpieler(*m_spiel)) {
        if (gewaehlt && p == m_spieler) eintrag = cmbSpielerWahl->count();
        cmbSpielerWahl->addItem(text(m_spiel->getSpielerName(p)));
    }
    cmbSpielerWahl->setCurrentIndex(eintrag);
}

void frmSimulation::fuelleTatsaechlicheTabelle() {
    lblLiga->setText(text(m_spiel->getLigaInfo()));
    m_tatsaechlich->leereZeilen();
    m_tatsaechlich->fuelle(*m_spiel);
}

void frmSimulation::wendeLayoutAn() {
    // Keyed on the season's length, as the league files give it.
    const Layout& layout = Saisonform::von(*m_spiel).laenge == Saisonform::Kurz ? Kurz : Entwurf;
    for (QGroupBox* r : {fraVorhersage, fraTatsaechlich})
        r->resize(r->width(), px(layout.rahmenHoehe));
    txtPunkteDiff->setGeometry(
        rechteck(BerichtLinks, layout.berichtOben, BerichtBreite, layout.berichtHoehe));
    m_tatsaechlich->zeigeZeilen(layout.zeilen);
    m_vorhergesagt->zeigeZeilen(layout.zeilen);
    for (int z = 0; z < MaxTeams; ++z)
        lblPunkteDiff[z]->setVisible(z < layout.zeilen);
}

void frmSimulation::baueNeu() {
    m_vorhersage = vorhergesagteTabelle(*m_spiel, m_spieler);
    m_vorhergesagt->leereZeilen();
    for (QLabel* l : lblPunkteDiff)
        l->clear();
    const auto plaetze = vorhersageNachPlatz(*m_spiel, m_vorhersage);
    for (std::size_t p = 0; p < plaetze.size(); ++p) {
        const int platz = static_cast<int>(p);
        m_vorhergesagt->setzeZeile(platz, tabellenzellen(m_vorhersage[plaetze[p].team]));
        lblPunkteDiff[pruefeIndex(platz, MaxTeams)]->setText(
            QStringLiteral("(%1)").arg(plaetze[p].tatsaechlichePunkte));
    }
    txtPunkteDiff->setPlainText(
        text(abweichungsbericht(*m_spiel, m_spieler, m_vorhersage, QLocale().decimalPoint().toStdString())));
    const auto& linien = Saisonform::von(*m_spiel).achtzehnTeams ? Linien18 : LinienEntwurf;
    for (std::size_t i = 0; i < linHori.size(); ++i)
        linHori[i]->move(linHori[i]->x(), px(linien[i]));
    for (int index = 0; index < 2 * MaxTeams; ++index)
        faerbeZeile(index, false);
}

void frmSimulation::cmbSpielerWahl_Click(const QString& name) {
    m_spieler = waehleSpieler(*m_spiel, name.toStdString(), m_spieler);
    baueNeu();
}

void frmSimulation::lblTabName_MouseMove(int index) {
    if (!m_spiel) return;  // nothing shown yet
    for (int i = 0; i < 2 * MaxTeams; ++i)
        faerbeZeile(i, false);
    const int platz = index % MaxTeams;
    if (platz > m_spiel->getAnzTeams()) return;  // an empty row names no team
    const i16 team = index < MaxTeams ? m_spiel->DiesTeam(platz)
                                      : teamAufPlatz(m_vorhersage, m_spiel->getAnzTeams(), platz);
    faerbeZeile(std::get<i16>(m_spiel->getTabInfo(team, 0)), true);
    faerbeZeile(MaxTeams + m_vorhersage[team].Tabellenplatz, true);
}

void frmSimulation::faerbeZeile(int index, bool markiert) {
    Ligatabelle* tabelle = index < MaxTeams ? m_tatsaechlich : m_vorhergesagt;
    const int z = static_cast<int>(pruefeIndex(index % MaxTeams, MaxTeams));
    tabelle->faerbeZeile(z, m_spiel->getTabFarbe(z), markiert);
}

}  // namespace kalimbo::ui
