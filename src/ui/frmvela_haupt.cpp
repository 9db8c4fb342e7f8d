#include "frmvela_haupt.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

#include "scoring/auswertung.h"
#include "scoring/regeln.h"
#include "state/eintraege.h"
#include "state/spieldatei.h"
#include "state/zahltext.h"
#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/twips.h"
#include "ui/haupt/blitztabelle.h"
#include "ui/haupt/eingabefeld.h"
#include "ui/haupt/tipptabellen.h"

namespace kalimbo::ui {

namespace {

const QString Spieldateifilter = QStringLiteral("Tippspiel-Dateien (*.tip)|*.tip|Alle Dateien|*.*");

// Layout of the matchday view in twips.
constexpr int ErsteSpielzeile = 720;  // top of match row 0 inside the matches frame
constexpr int Zeilenhoehe = 360;
constexpr int ErsteSpalte = 4920;  // left of the first player column
constexpr int Spaltenabstand = 960;
constexpr int SpalteOben = 480;  // top of a player column inside the matches frame

const QColor Dunkelgrau(64, 64, 64);
const QColor Hellgelb(255, 255, 128);
const QColor Auswahlfarbe(255, 204, 51);

std::filesystem::path pfadVon(const QString& pfad) {
    return QFile::encodeName(pfad).toStdString();
}

void setzeZahl(QLabel* l, i16 wert) {
    l->setText(QString::number(wert));
}

}  // namespace

frmVela_Haupt::frmVela_Haupt(Dialoge& dialoge, const QString& startdatei, QWidget* eltern)
    : QMainWindow(eltern), m_dialoge(dialoge) {
    setObjectName(QStringLiteral("frmVela_Haupt"));
    QFont schrift = font();  // the layout is designed for a small font
    schrift.setPointSizeF(7.5);
    setFont(schrift);
    auto* mitte = new QWidget(this);
    setCentralWidget(mitte);
    m_menue = baueHauptmenue(menuBar());
    erzeugeSpieltagswahl(mitte);
    erzeugeSpieltagsansicht(mitte);
    erzeugeUntereRahmen(mitte);
    verbindeMenue();
    setzeTabReihenfolge();
    resize(px(15360), px(10875) + menuBar()->sizeHint().height());
    aktualisiereTitel(QString());

    m_zuletzt.laden();
    aktualisiereZuletztMenue();
    zeigeAktuellenSpieltag();
    // A game named on the command line is opened at once; it ends by showing its last selected
    // matchday, so matchday 0 of the empty game need not be drawn first.
    if (!startdatei.isEmpty()) oeffne(startdatei);
    fangeFehler(this, m_dialoge, [this] {
        if (m_spiel.Dateipfad.empty()) lblSpieltagWahl_Click(0);
        lblSpieler_Click(0);
    });
}

std::function<void()> frmVela_Haupt::sicher(std::function<void()> handler) {
    return [this, handler] { fangeFehler(this, m_dialoge, handler); };
}

// ---------------------------------------------------------------------------------------------
// Building the window

void frmVela_Haupt::erzeugeSpieltagswahl(QWidget* mitte) {
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        auto* wahl = element<KlickLabel>(mitte, indexName("lblSpieltagWahl", tag),
                                         rechteck(tag * 395 + 100, 90, 375, 255));
        wahl->setText(QString::number(tag + 1));
        wahl->setAlignment(Qt::AlignCenter);
        wahl->setFrameStyle(QFrame::Box | QFrame::Plain);
        wahl->setCursor(Qt::PointingHandCursor);
        setzeFarben(wahl, Hellgelb, Qt::black);
        connect(wahl, &KlickLabel::geklickt, this, sicher([this, tag] { lblSpieltagWahl_Click(tag); }));
        lblSpieltagWahl[tag] = wahl;

        auto* auswahl = element<KlickLabel>(mitte, indexName("lblAuswahl", tag),
                                            rechteck(tag * 395 + 100, 360, 375, 105));
        setzeFarben(auswahl, Auswahlfarbe, QColor(160, 160, 160));  // the outline shows where to click
        auswahl->setAutoFillBackground(false);                      // transparent: not selected
        auswahl->setFrameStyle(QFrame::Box | QFrame::Plain);
        auswahl->setToolTip(QStringLiteral(" diesen Spieltag auswerten "));
        auswahl->setCursor(Qt::PointingHandCursor);
        connect(auswahl, &KlickLabel::geklickt, this, sicher([this, tag] { lblAuswahl_Click(tag); }));
        lblAuswahl[tag] = auswahl;
    }
}

Eingabefeld* frmVela_Haupt::eingabefeld(QWidget* eltern, const QString& name, Eingabefeld::Art art) {
    auto* feld = new Eingabefeld(eltern, art);
    feld->setObjectName(name);
    connect(feld, &Eingabefeld::fokusErhalten, this, sicher([this, feld] { feld_GotFocus(feld); }));
    connect(feld, &Eingabefeld::fokusVerloren, this, sicher([this, feld] { feld_LostFocus(feld); }));
    return feld;
}

void frmVela_Haupt::erzeugeSpieltagsansicht(QWidget* mitte) {
    fraSpiele = element<QFrame>(mitte, QStringLiteral("fraSpiele"), rechteck(60, 540, 15240, 4920));
    fraSpiele->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    const auto links = Qt::AlignLeft | Qt::AlignVCenter;
    const auto rechts = Qt::AlignRight | Qt::AlignVCenter;
    for (const auto& [titel, x, breite, ausrichtung] :
         {std::tuple{"Heim", 120, 1830, QFlags(rechts)}, std::tuple{"Gast", 2100, 1860, QFlags(links)},
          std::tuple{"Ergebnis", 4020, 795, QFlags(Qt::AlignCenter)}}) {
        auto* kopf = element<QLabel>(fraSpiele, QString(), rechteck(x, 480, breite, 240));
        kopf->setText(QString::fromUtf8(titel));
        kopf->setAlignment(ausrichtung);
        setzeFett(kopf, true);
    }
    for (int j = 0; j < 2; ++j) {
        shpSonntag[j] = element<QFrame>(fraSpiele, indexName("shpSonntag", j),
                                        rechteck(60, ErsteSpielzeile, 4755, Zeilenhoehe));
        shpSonntag[j]->setFrameStyle(QFrame::Box | QFrame::Plain);
        shpSonntag[j]->setLineWidth(2);
        shpSonntag[j]->setStyleSheet(QStringLiteral("color: rgb(0, 0, 179);"));
        shpSonntag[j]->setAttribute(Qt::WA_TransparentForMouseEvents);
        shpSonntag[j]->setToolTip(QStringLiteral("Sonntagsspiel"));
        shpSonntag[j]->hide();
    }
    for (int k = 0; k < MaxSpiele; ++k) {
        const int oben = ErsteSpielzeile + k * Zeilenhoehe + 30;
        lblHeimTeam[k] =
            element<KlickLabel>(fraSpiele, indexName("lblHeimTeam", k), rechteck(120, oben, 1830, 300));
        lblHeimTeam[k]->setAlignment(rechts);
        lblStrich[k] = element<QLabel>(fraSpiele, indexName("lblStrich", k), rechteck(1950, oben, 150, 300));
        lblStrich[k]->setText(QStringLiteral("-"));
        lblStrich[k]->setAlignment(Qt::AlignCenter);
        lblAusTeam[k] =
            element<KlickLabel>(fraSpiele, indexName("lblAusTeam", k), rechteck(2100, oben, 1860, 300));
        lblAusTeam[k]->setAlignment(links);
        for (int seite = 0; seite < 2; ++seite) {
            KlickLabel* team = seite == 0 ? lblHeimTeam[k] : lblAusTeam[k];
            team->setCursor(Qt::PointingHandCursor);
            team->setToolTip(QStringLiteral("Klick: ein Tor für diese Mannschaft"));
            connect(team, &KlickLabel::geklickt, this, sicher([this, k, seite] { lblTeam_Click(k, seite); }));
        }
        txtHeimErgebnis[k] =
            eingabefeld(fraSpiele, indexName("txtHeimErgebnis", k), Eingabefeld::HeimErgebnis);
        txtHeimErgebnis[k]->setGeometry(rechteck(4080, oben, 315, 300));
        txtAusErgebnis[k] = eingabefeld(fraSpiele, indexName("txtAusErgebnis", k), Eingabefeld::AusErgebnis);
        txtAusErgebnis[k]->setGeometry(rechteck(4440, oben, 315, 300));
        for (Eingabefeld* f : {txtHeimErgebnis[k], txtAusErgebnis[k]})
            setzeFarben(f, Dunkelgrau, Qt::white);
    }
    linTrenn = element<QFrame>(fraSpiele, QStringLiteral("linTrenn"), rechteck(4845, 480, 30, 4320 - 480));
    linTrenn->setFrameStyle(QFrame::VLine | QFrame::Sunken);
    lblSptgZeile =
        element<QLabel>(fraSpiele, QStringLiteral("lblSptgZeile"), rechteck(3000, 4320, 1800, 240));
    lblSptgZeile->setText(QStringLiteral("Spieltag:"));
    lblGesamtZeile =
        element<QLabel>(fraSpiele, QStringLiteral("lblGesamtZeile"), rechteck(3000, 4560, 1800, 240));
    lblGesamtZeile->setText(QStringLiteral("Gesamt:"));
    for (QLabel* l : {lblSptgZeile, lblGesamtZeile}) {
        l->setAlignment(rechts);
        l->setToolTip(QStringLiteral("Punkte und Platz"));
    }
    chkSonntag = element<QCheckBox>(fraSpiele, QStringLiteral("chkSonntag"), rechteck(120, 4440, 2850, 300));
    chkSonntag->setText(QStringLiteral("Sonntagsspiele nicht auswerten"));
    chkSonntag->hide();
    for (int p = 0; p < MaxSpieler; ++p)
        erzeugeSpielerspalte(p);
    erzeugeBedienfeld();
}

void frmVela_Haupt::erzeugeSpielerspalte(int p) {
    auto* saeule = element<QFrame>(fraSpiele, indexName("fraSpielerSäule", p),
                                   rechteck(ErsteSpalte + p * Spaltenabstand, SpalteOben, 735, 4380));
    fraSpielerSaeule[p] = saeule;
    lblSpieler[p] = element<KlickLabel>(saeule, indexName("lblSpieler", p), rechteck(0, 0, 735, 240));
    lblSpieler[p]->setAlignment(Qt::AlignCenter);
    lblSpieler[p]->setCursor(Qt::PointingHandCursor);
    lblSpieler[p]->setToolTip(QStringLiteral("Spielerinformationen anzeigen"));
    setzeFett(lblSpieler[p], true);
    connect(lblSpieler[p], &KlickLabel::geklickt, this, sicher([this, p] { lblSpieler_Click(p); }));
    for (int k = 0; k < MaxSpiele; ++k) {
        const int i = p * MaxSpiele + k;
        const int oben = 240 + k * Zeilenhoehe + 30;
        txtHeimTipp[i] = eingabefeld(saeule, indexName("txtHeimTipp", i), Eingabefeld::HeimTipp);
        txtHeimTipp[i]->setGeometry(rechteck(15, oben, 345, 300));
        txtAusTipp[i] = eingabefeld(saeule, indexName("txtAusTipp", i), Eingabefeld::AusTipp);
        txtAusTipp[i]->setGeometry(rechteck(375, oben, 345, 300));
    }
    auto zahl = [&](const char* name, int links, int oben) {
        auto* l = element<QLabel>(saeule, indexName(name, p), rechteck(links, oben, 345, 240));
        l->setAlignment(Qt::AlignCenter);
        return l;
    };
    lblSptgPunkte[p] = zahl("lblSptgPunkte", 15, 3840);
    lblSptgPlatz[p] = zahl("lblSptgPlatz", 375, 3840);
    lblGesamtPunkte[p] = zahl("lblGesamtPunkte", 15, 4080);
    lblGesamtPlatz[p] = zahl("lblGesamtPlatz", 375, 4080);
    for (QLabel* l : {lblSptgPunkte[p], lblGesamtPunkte[p]})
        setzeFett(l, true);
}

void frmVela_Haupt::erzeugeBedienfeld() {
    lblQuoten = element<QLabel>(fraSpiele, QStringLiteral("lblQuoten"), rechteck(13560, 480, 1615, 1075));
    lblQuoten->setText(QStringLiteral(" Heimsieg: 3,15\r\n Remis: 2,00\r\n Auswärtssieg: 2,25"));
    lblQuoten->setFrameStyle(QFrame::Box | QFrame::Plain);
    lblQuoten->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    auto* lblAkt = element<QLabel>(fraSpiele, QString(), rechteck(13560, 1700, 1140, 300));
    lblAkt->setText(QStringLiteral("akt. Spieltag:"));
    txtAktSpieltag =
        element<QLineEdit>(fraSpiele, QStringLiteral("txtAktSpieltag"), rechteck(14730, 1700, 420, 300));
    txtAktSpieltag->setValidator(new QIntValidator(0, 99, txtAktSpieltag));
    txtAktSpieltag->setToolTip(
        QStringLiteral("aktueller Spieltag, von 0 an gezählt (1. Spieltag = 0; 99 = keiner)"));
    auto* lblSonntag = element<QLabel>(fraSpiele, QString(), rechteck(13560, 2060, 1140, 300));
    lblSonntag->setText(QStringLiteral("Sonntagsspiele:"));
    for (int j = 0; j < 2; ++j) {
        txtSonntag[j] = element<QLineEdit>(fraSpiele, indexName("txtSonntag", j),
                                           rechteck(14250 + j * 480, 2370, 420, 300));
        txtSonntag[j]->setValidator(new QIntValidator(0, 9, txtSonntag[j]));
        txtSonntag[j]->setToolTip(QStringLiteral("Nummer des Spiels, von 0 an gezählt (erstes Spiel = 0)"));
    }
    for (QLineEdit* t : {txtAktSpieltag, txtSonntag[0], txtSonntag[1]})
        t->setAlignment(Qt::AlignCenter);
    cmdSonntag =
        element<QPushButton>(fraSpiele, QStringLiteral("cmdSonntag"), rechteck(13560, 2760, 1590, 345));
    cmdSonntag->setText(QStringLiteral("übernehmen"));
    connect(cmdSonntag, &QPushButton::clicked, this, sicher([this] { cmdSonntag_Click(); }));
    cmdAuswerten =
        element<QPushButton>(fraSpiele, QStringLiteral("cmdAuswerten"), rechteck(13560, 3840, 1590, 600));
    cmdAuswerten->setText(QStringLiteral("Auswertung"));
    cmdAuswerten->setToolTip(QStringLiteral("alle ausgewählten Spieltage auswerten (F5)"));
    setzeFett(cmdAuswerten, true);
    connect(cmdAuswerten, &QPushButton::clicked, this, sicher([this] { cmdAuswerten_Click(); }));
}

void frmVela_Haupt::erzeugeUntereRahmen(QWidget* mitte) {
    fraBlitztabelle = new Blitztabelle(mitte);
    fraBlitztabelle->setGeometry(rechteck(60, 5520, 6060, 5295));
    fraTabelle = new Tipptabellen(mitte);
    fraTabelle->setGeometry(rechteck(6180, 5520, 3900, 5295));
    fraTeamInfo = element<QGroupBox>(mitte, QStringLiteral("fraTeamInfo"), rechteck(10140, 5520, 5160, 5295));
    txtTeamInfo =
        element<QPlainTextEdit>(fraTeamInfo, QStringLiteral("txtTeamInfo"), rechteck(120, 360, 4920, 4815));
    txtTeamInfo->setReadOnly(true);
    txtTeamInfo->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QFont fest = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    txtTeamInfo->setFont(fest);
    txtTeamInfo->setTabStopDistance(8 * QFontMetricsF(fest).horizontalAdvance(QLatin1Char(' ')));
}

void frmVela_Haupt::verbindeMenue() {
    const Hauptmenue& m = m_menue;
    auto verbinde = [this](QAction* a, std::function<void()> handler) {
        connect(a, &QAction::triggered, this, sicher(std::move(handler)));
    };
    verbinde(m.menOeffnen, [this] { menOeffnen_Click(); });
    verbinde(m.menSpeichern, [this] { menSpeichern_Click(); });
    for (int i = 0; i < 3; ++i)
        verbinde(m.menRecent[i], [this, i] { menRecent_Click(i); });
    connect(m.menBeenden, &QAction::triggered, this, [this] {
        close();
        QCoreApplication::quit();
    });
    verbinde(m.menSptgAlle, [this] { waehleSpieltage(waehleAlle); });
    verbinde(m.menSptgKeinen, [this] { waehleSpieltage(waehleKeine); });
    verbinde(m.menSptgHinrunde, [this] { waehleSpieltage(waehleHinrunde); });
    verbinde(m.menSptgRueckrunde, [this] { waehleSpieltage(waehleRueckrunde); });
    verbinde(m.menSptgAlleAbsolv, [this] { waehleSpieltage(waehleAlleAbsolvierten); });
    verbinde(m.menSptgAlleAbsolvRueck, [this] { waehleSpieltage(waehleAbsolvierteRueckrunde); });
    for (int i = 0; i < 10; ++i)
        verbinde(m.menDieserTrainer[i], [this, i] { menDieserTrainer_Click(i); });
    for (std::size_t i = 0; i < m.menSptgLetzten.size(); ++i) {
        const int n = Hauptmenue::LetzteAnzahlen[i];
        verbinde(m.menSptgLetzten[i], [this, n] { zeigeAuswahl(waehleLetzte(m_spiel, n)); });
    }
    verbinde(m.menReg2, [this] { menReg_Click(0); });
    verbinde(m.menReg3, [this] { menReg_Click(1); });
    verbinde(m.menReg321, [this] { menReg_Click(2); });
    verbinde(m.menRegEigene, [this] { menReg_Click(ModusEigeneRegel); });
    verbinde(m.menAuswerten, [this] { auswerten(QStringLiteral("---")); });
    connect(m.menNormal, &QAction::triggered, this, [this] { m_menue.menNormal->setChecked(true); });
}

void frmVela_Haupt::setzeTabReihenfolge() {
    QWidget* vorher = nullptr;
    auto weiter = [&vorher](QWidget* w) {
        if (vorher) setTabOrder(vorher, w);
        vorher = w;
    };
    for (int k = 0; k < MaxSpiele; ++k) {
        weiter(txtHeimErgebnis[k]);
        weiter(txtAusErgebnis[k]);
    }
    // Tip field i takes tab positions 2i + 24 and 2i + 25: down one player's column, then the next.
    for (std::size_t i = 0; i < txtHeimTipp.size(); ++i) {
        weiter(txtHeimTipp[i]);
        weiter(txtAusTipp[i]);
    }
    for (QWidget* w : {static_cast<QWidget*>(txtAktSpieltag), static_cast<QWidget*>(txtSonntag[0]),
                       static_cast<QWidget*>(txtSonntag[1]), static_cast<QWidget*>(cmdSonntag),
                       static_cast<QWidget*>(cmdAuswerten)})
        weiter(w);
}

void frmVela_Haupt::zeigeBeimStart() {
    const QScreen* bildschirm = QGuiApplication::primaryScreen();
    if (bildschirm && startMaximiert(bildschirm->size().height()))
        showMaximized();
    else
        show();
}

void frmVela_Haupt::aktualisiereTitel(const QString& datei) {
    setWindowTitle(datei.isEmpty() ? QStringLiteral("Kalimbo") : QStringLiteral("Kalimbo - ") + datei);
}

// ---------------------------------------------------------------------------------------------
// Files

void frmVela_Haupt::menOeffnen_Click() {
    const QString pfad =
        m_dialoge.oeffnen(this, QStringLiteral("Wählen Sie den gespeicherten Spielstand!"), Spieldateifilter);
    if (!pfad.isEmpty()) oeffne(pfad);
}

void frmVela_Haupt::oeffne(const QString& pfad) {
    fangeFehler(this, m_dialoge, [this, pfad] {
        const Dateiinhalt inhalt = ladeSpieldatei(pfadVon(pfad));
        const QString titel = QFileInfo(pfad).fileName();
        m_spiel.Dateipfad = pfad.toStdString();
        m_spiel.Dateititel = titel.toStdString();
        nachDemOeffnen(pfad, titel, inhalt);
    });
}

// A recent file is opened without becoming the file a later save proposes.
void frmVela_Haupt::menRecent_Click(int slot) {
    const QString pfad = m_zuletzt.eintraege[slot];
    const Dateiinhalt inhalt = ladeSpieldatei(pfadVon(pfad));
    nachDemOeffnen(pfad, m_zuletzt.eintraege[slot + 3], inhalt);
}

void frmVela_Haupt::nachDemOeffnen(const QString& pfad, const QString& titel, const Dateiinhalt& inhalt) {
    m_spiel.oeffne(inhalt);
    m_zuletzt.hinzufuegen(pfad, titel);
    wendeSpielAn();  // ends by showing the matchday
    aktualisiereZuletztMenue();
    aktualisiereTitel(QFileInfo(pfad).fileName());
}

void frmVela_Haupt::menSpeichern_Click() {
    TakeEntries();
    m_spiel.kopiereArbeitInDatei();
    const QString pfad =
        m_dialoge.speichern(this, QStringLiteral("Geben Sie den Namen der Datei zum Speichern ein!"),
                            Spieldateifilter, text(m_spiel.Dateipfad));
    if (pfad.isEmpty()) return;
    speichereSpieldatei(pfadVon(pfad), m_spiel);
    const QString titel = QFileInfo(pfad).fileName();
    m_spiel.Dateipfad = pfad.toStdString();
    m_spiel.Dateititel = titel.toStdString();
    m_zuletzt.hinzufuegen(pfad, titel);
    aktualisiereZuletztMenue();
    aktualisiereTitel(titel);
}

void frmVela_Haupt::aktualisiereZuletztMenue() {
    for (std::size_t i = 0; i < m_menue.menRecent.size(); ++i) {
        m_menue.menRecent[i]->setText(m_zuletzt.eintraege[i + 3]);
        m_menue.menRecent[i]->setToolTip(m_zuletzt.eintraege[i]);
        m_menue.menRecent[i]->setVisible(!m_zuletzt.eintraege[i].isEmpty());
    }
    for (int tag = 0; tag <= m_spiel.AnzSpieltage; ++tag)
        lblAuswahl[pruefeIndex(tag, MaxSpieltage)]->setAutoFillBackground(m_spiel.SptgAuswerten[tag] == 1);
}

// ---------------------------------------------------------------------------------------------
// Applying a loaded game

void frmVela_Haupt::wendeSpielAn() {
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        lblSpieltagWahl[tag]->hide();
        lblAuswahl[tag]->hide();
    }
    for (int tag = 0; tag <= m_spiel.AnzSpieltage; ++tag) {
        lblSpieltagWahl[tag]->show();
        lblAuswahl[tag]->show();
    }
    aktualisiereRegelHaken();
    zeigeTrainermenue();
    setzeLayout();
    fraBlitztabelle->wendeSpielAn(m_spiel);
    for (int p = 0; p < MaxSpieler; ++p)
        lblSpieler[p]->setText(text(m_spiel.Spielername[p]));
    txtAktSpieltag->setText(QString::number(m_spiel.AktSpieltagGlobal));
    for (int j = 0; j < 2; ++j)
        txtSonntag[j]->setText(QString::number(m_spiel.SonntagSpiele[j]));
    ShowMatchday();  // so that the click below takes the new game's values, not the old boxes
    lblSpieltagWahl_Click(letzterAusgewaehlterSpieltag(m_spiel));
}

void frmVela_Haupt::zeigeAktuellenSpieltag() {
    txtAktSpieltag->setText(QString::number(m_spiel.AktSpieltagGlobal));
    for (int j = 0; j < 2; ++j)
        txtSonntag[j]->setText(QString::number(m_spiel.SonntagSpiele[j]));
}

void frmVela_Haupt::aktualisiereRegelHaken() {
    const std::array<QAction*, 4> haken{m_menue.menReg2, m_menue.menReg3, m_menue.menReg321,
                                        m_menue.menRegEigene};
    for (std::size_t i = 0; i < haken.size(); ++i)
        haken[i]->setChecked(static_cast<int>(i) == m_spiel.Modus);
}

void frmVela_Haupt::zeigeTrainermenue() {
    for (int i = 0; i < 10; ++i) {
        const Trainerdaten& t = m_spiel.Trainerwechsel[i];
        QAction* eintrag = m_menue.menDieserTrainer[i];
        eintrag->setVisible(i == 0 || t.Aktiv != 0);
        eintrag->setEnabled(t.Aktiv != 0);
        eintrag->setText(i == 0 && t.Aktiv == 0 && t.Name.empty()
                             ? QStringLiteral("noch keine Trainerwechsel")
                             : text(t.Name));
    }
}

// 38 matchdays of ten matches, or 34 of nine: the tenth match line comes and goes, and the lower
// frames follow the height of the table.
void frmVela_Haupt::setzeLayout() {
    bool zehnSpiele = false;
    if (m_spiel.AnzSpieltage == 37)
        zehnSpiele = true;
    else if (m_spiel.AnzSpieltage != 33)
        return;
    const int k = MaxSpiele - 1;
    for (QWidget* w : {static_cast<QWidget*>(lblHeimTeam[k]), static_cast<QWidget*>(lblAusTeam[k]),
                       static_cast<QWidget*>(lblStrich[k]), static_cast<QWidget*>(txtHeimErgebnis[k]),
                       static_cast<QWidget*>(txtAusErgebnis[k])})
        w->setVisible(zehnSpiele);
    for (int p = 0; p < MaxSpieler; ++p) {
        txtHeimTipp[p * MaxSpiele + k]->setVisible(zehnSpiele);
        txtAusTipp[p * MaxSpiele + k]->setVisible(zehnSpiele);
    }
    const int rahmen = zehnSpiele ? 5295 : 4815;
    for (QWidget* w : {static_cast<QWidget*>(fraBlitztabelle), static_cast<QWidget*>(fraTabelle),
                       static_cast<QWidget*>(fraTeamInfo)})
        w->resize(w->width(), px(rahmen));
    txtTeamInfo->resize(txtTeamInfo->width(), px(zehnSpiele ? 4815 : 4335));
    linTrenn->resize(linTrenn->width(), px((zehnSpiele ? 4320 : 3960) - 480));
    const int sptg = zehnSpiele ? 3840 : 3480;
    const int gesamt = zehnSpiele ? 4080 : 3740;
    for (int p = 0; p < MaxSpieler; ++p) {
        lblSptgPunkte[p]->move(lblSptgPunkte[p]->x(), px(sptg));
        lblSptgPlatz[p]->move(lblSptgPlatz[p]->x(), px(sptg));
        lblGesamtPunkte[p]->move(lblGesamtPunkte[p]->x(), px(gesamt));
        lblGesamtPlatz[p]->move(lblGesamtPlatz[p]->x(), px(gesamt));
    }
    lblSptgZeile->move(lblSptgZeile->x(), px(SpalteOben + sptg));
    lblGesamtZeile->move(lblGesamtZeile->x(), px(SpalteOben + gesamt));
}

// ---------------------------------------------------------------------------------------------
// Matchday view

void frmVela_Haupt::ShowMatchday() {
    const int m = m_spiel.AktSpieltag;
    markiereNichtteilnehmer(m_spiel);

    const bool sonntag = m_spiel.AktSpieltagGlobal == m;
    chkSonntag->setVisible(sonntag);
    for (int j = 0; j < 2; ++j) {
        if (sonntag) {
            const i16 oben = plus16(mal16(m_spiel.SonntagSpiele[j], Zeilenhoehe), ErsteSpielzeile);
            shpSonntag[j]->move(shpSonntag[j]->x(), px(oben));
        }
        shpSonntag[j]->setVisible(sonntag);
    }

    for (int k = 0; k <= m_spiel.AnzSpiele; ++k) {
        lblHeimTeam[k]->setText(text(m_spiel.getTeamName(m_spiel.getPaarung(m, k, 0))));
        lblAusTeam[k]->setText(text(m_spiel.getTeamName(m_spiel.getPaarung(m, k, 1))));
        txtHeimErgebnis[k]->setText(QString::number(m_spiel.getErgebnis(m, k, 0)));
        txtAusErgebnis[k]->setText(QString::number(m_spiel.getErgebnis(m, k, 1)));
        for (Eingabefeld* f : {txtHeimErgebnis[k], txtAusErgebnis[k]})
            setzeFarben(f, Dunkelgrau, Qt::white);
    }

    for (int p = 0; p < MaxSpieler; ++p) {
        const SpielerAuswertung& r = m_spiel.Auswertung[p];
        const auto s = pruefeIndex(r.SptgSortierplatz[m], MaxSpieler);
        const auto g = pruefeIndex(r.Sortierplatz, MaxSpieler);
        const bool spielt = m_spiel.Teilnehmer[p] == 1;
        fraSpielerSaeule[p]->setVisible(spielt);
        if (spielt) {
            const QString name = QStringLiteral("  ") + text(m_spiel.Spielername[p]);
            fraTabelle->lblSptgTabelle[s]->setText(name);
            setzeZahl(fraTabelle->lblSptgTabellePkt[s], r.SpieltagPunkte[m]);
            fraTabelle->lblGesamttabelle[g]->setText(name);
            setzeZahl(fraTabelle->lblGesamttabellePkt[g], r.GesamtPunkte);
            setzeZahl(lblSptgPunkte[p], r.SpieltagPunkte[m]);
            setzeZahl(lblSptgPlatz[p], plus16(r.SptgPlatz[m], 1));
            setzeZahl(lblGesamtPunkte[p], r.GesamtPunkte);
            setzeZahl(lblGesamtPlatz[p], plus16(r.Platz, 1));
            fraTabelle->lblSptgstabelle->setText(QStringLiteral("Spieltag %1").arg(m + 1));
        } else {
            setzeZahl(fraTabelle->lblSptgTabellePkt[s], r.SpieltagPunkte[m]);
        }
        for (QLabel* l : {fraTabelle->lblSptgTabelle[s], fraTabelle->lblSptgTabellePkt[s],
                          fraTabelle->lblGesamttabelle[g], fraTabelle->lblGesamttabellePkt[g]})
            l->setVisible(spielt);
    }

    int spalte = 0;
    for (int p = 0; p < MaxSpieler; ++p) {
        if (m_spiel.Teilnehmer[p] != 1) continue;
        fraSpielerSaeule[p]->move(px(spalte * Spaltenabstand + ErsteSpalte), fraSpielerSaeule[p]->y());
        ++spalte;
    }

    for (std::size_t i = 0; i < txtHeimTipp.size(); ++i) {
        const int p = static_cast<int>(i) / MaxSpiele;
        const int k = static_cast<int>(i) % MaxSpiele;
        txtHeimTipp[i]->setText(QString::number(m_spiel.getTipp(p, m, k, 0)));
        txtAusTipp[i]->setText(QString::number(m_spiel.getTipp(p, m, k, 1)));
        const QColor farbe = qfarbe(m_spiel.getSpielFarbe(p, m, k));
        for (Eingabefeld* f : {txtHeimTipp[i], txtAusTipp[i]})
            setzeFarben(f, farbe, Qt::black);
    }
}

// A box the user has just entered (and so emptied) still stands for the value it had: an empty
// box is never taken as 0 just because the focus has not left it yet.
void frmVela_Haupt::stelleFokusfeldWiederHer() {
    auto* feld = qobject_cast<Eingabefeld*>(QApplication::focusWidget());
    if (feld && feld->window() == this && feld->text().isEmpty())
        feld->setText(QString::number(m_wertBeiFokus[feld->art()]));
}

void frmVela_Haupt::TakeEntries() {
    stelleFokusfeldWiederHer();
    Spieltagseintraege e;
    for (std::size_t k = 0; k < MaxSpiele; ++k) {
        e.heimErgebnis[k] = txtHeimErgebnis[k]->text().toStdString();
        e.ausErgebnis[k] = txtAusErgebnis[k]->text().toStdString();
    }
    for (std::size_t i = 0; i < txtHeimTipp.size(); ++i) {
        e.heimTipp[i] = txtHeimTipp[i]->text().toStdString();
        e.ausTipp[i] = txtAusTipp[i]->text().toStdString();
    }
    uebernimmEintraege(m_spiel, e);
}

void frmVela_Haupt::lblSpieltagWahl_Click(int spieltag) {
    TakeEntries();  // for the matchday shown so far, so that nothing typed is lost
    zeigeSpieltag(spieltag);
}

void frmVela_Haupt::zeigeSpieltag(int spieltag) {
    KlickLabel* alt = lblSpieltagWahl[pruefeIndex(m_spieltagWahlAlt, MaxSpieltage)];
    setzeFarben(alt, Hellgelb, Qt::black);
    setzeFett(alt, false);
    KlickLabel* neu = lblSpieltagWahl[pruefeIndex(spieltag, MaxSpieltage)];
    setzeFarben(neu, QColor(255, 0, 0), Qt::white);
    setzeFett(neu, true);
    m_spiel.AktSpieltag = static_cast<i16>(spieltag);
    ShowMatchday();
    m_spieltagWahlAlt = spieltag;
}

void frmVela_Haupt::feld_GotFocus(Eingabefeld* feld) {
    m_wertBeiFokus[feld->art()] = zahlAusText(feld->text().toStdString());
    feld->clear();
    setzeFarben(feld, QColor(255, 0, 0), Qt::white);
}

void frmVela_Haupt::feld_LostFocus(Eingabefeld* feld) {
    if (feld->text().isEmpty()) feld->setText(QString::number(m_wertBeiFokus[feld->art()]));
    if (feld->art() == Eingabefeld::HeimErgebnis || feld->art() == Eingabefeld::AusErgebnis)
        setzeFarben(feld, Dunkelgrau, Qt::white);
    else
        setzeFarben(feld, Qt::white, Qt::black);
}

void frmVela_Haupt::lblTeam_Click(int spiel, int seite) {
    Eingabefeld* feld = (seite == 0 ? txtHeimErgebnis : txtAusErgebnis)[pruefeIndex(spiel, MaxSpiele)];
    stelleFokusfeldWiederHer();
    feld->setText(QString::number(plus16(zahlAusText(feld->text().toStdString()), 1)));
    const int team = m_spiel.getPaarung(m_spiel.AktSpieltag, spiel, seite);
    auswerten(QStringLiteral("Tor für") + text(m_spiel.getTeamName(team)));
}

void frmVela_Haupt::lblSpieler_Click(int spieler) {
    m_ausgewaehlterSpieler = spieler;
    fraTeamInfo->setTitle(QStringLiteral("Spielerinformationen: ") + text(m_spiel.getSpielerName(spieler)));
}

// ---------------------------------------------------------------------------------------------
// Evaluation, rule, selection

void frmVela_Haupt::auswerten(const QString& anlass) {
    m_blitzAnlass = anlass;
    TakeEntries();
    werteAus(m_spiel, chkSonntag->isChecked());
    fraBlitztabelle->zeige(m_spiel, m_blitzAnlass);
    ShowMatchday();
}

void frmVela_Haupt::cmdAuswerten_Click() {
    auswerten(QStringLiteral("---"));
}

void frmVela_Haupt::cmdSonntag_Click() {
    TakeEntries();  // the redraw below would otherwise drop what was typed
    const i16 aktuell = zahlAusText(txtAktSpieltag->text().toStdString());
    const i16 erstes = zahlAusText(txtSonntag[0]->text().toStdString());
    const i16 zweites = zahlAusText(txtSonntag[1]->text().toStdString());
    m_spiel.AktSpieltagGlobal = aktuell;
    m_spiel.SonntagSpiele = {{erstes, zweites}};
    ShowMatchday();
}

void frmVela_Haupt::menReg_Click(i16 modus) {
    waehleRegel(m_spiel, modus);
    aktualisiereRegelHaken();
}

void frmVela_Haupt::menDieserTrainer_Click(int trainer) {
    zeigeAuswahl(waehleTrainerperiode(m_spiel, trainer));
}

void frmVela_Haupt::lblAuswahl_Click(int spieltag) {
    zeigeAuswahl(schalteSpieltag(m_spiel, spieltag));
}

void frmVela_Haupt::waehleSpieltage(Auswahlergebnis (*operation)(Spielstand&)) {
    zeigeAuswahl(operation(m_spiel));
}

void frmVela_Haupt::zeigeAuswahl(const Auswahlergebnis& ergebnis) {
    if (!ergebnis.ablehnung.empty()) {
        m_dialoge.meldung(this, text(ergebnis.ablehnung));
        return;
    }
    for (std::size_t tag = 0; tag < ergebnis.geaendert.size(); ++tag)
        if (ergebnis.geaendert[tag])
            lblAuswahl[tag]->setAutoFillBackground(m_spiel.SptgAuswerten[static_cast<int>(tag)] == 1);
}

}  // namespace kalimbo::ui
