#include "frmhaeufigkeiten.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>

#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/nebenfenster.h"
#include "ui/bausteine/rollflaeche.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

namespace {

// Layout in twips.
constexpr int RasterLinks = 840, RasterOben = 780;  // the top left cell 0:0
constexpr int ZellenBreite = 540, ZellenHoehe = 360;
constexpr int AndereOben = RasterOben + 10 * ZellenHoehe + 120;
constexpr int UebersichtOben = AndereOben + ZellenHoehe + 240;  // headings of the per-player overview
constexpr int UebersichtZeile = 300;
constexpr int Rechts = 6720;  // left edge of the chosen score's part
constexpr int BalkenLinks = Rechts + 2280, BalkenMax = 3600;
constexpr int BalkenZeile = 330;
constexpr int ListeUnten = UebersichtOben + 10 * UebersichtZeile;

constexpr auto Links = Qt::AlignLeft | Qt::AlignVCenter;
constexpr auto RechtsBuendig = Qt::AlignRight | Qt::AlignVCenter;

QLabel* beschriftung(QWidget* eltern, const QString& name, const QRect& ort, const QString& text,
                     Qt::Alignment ausrichtung) {
    auto* l = element<QLabel>(eltern, name, ort);
    l->setText(text);
    l->setAlignment(ausrichtung);
    return l;
}

QLabel* ueberschrift(QWidget* eltern, const QRect& ort, const QString& text) {
    QLabel* l = beschriftung(eltern, QString(), ort, text, Links);
    setzeFett(l, true);
    return l;
}

// The score class an arrow key moves to from `klasse` (at an edge: the same one); "andere" lies
// under 9:1. -1 for any other key.
int nachbar(int klasse, int taste) {
    const int heim = klasse / 10, gast = klasse % 10;
    const bool andere = klasse == KlasseAndere;
    switch (taste) {
        case Qt::Key_Left:
            return andere ? klasse : heim * 10 + std::max(gast - 1, 0);
        case Qt::Key_Right:
            return andere ? klasse : heim * 10 + std::min(gast + 1, MaxToreImRaster);
        case Qt::Key_Up:
            return andere ? MaxToreImRaster * 10 + 1 : std::max(heim - 1, 0) * 10 + gast;
        case Qt::Key_Down:
            return andere || heim == MaxToreImRaster ? KlasseAndere : (heim + 1) * 10 + gast;
        default:
            return -1;
    }
}

}  // namespace

frmHaeufigkeiten::frmHaeufigkeiten(QWidget* eltern, Dialoge& dialoge) : QWidget(eltern), m_dialoge(dialoge) {
    richteNebenfensterEin(this, QStringLiteral("frmHäufigkeiten"), QStringLiteral("Häufigkeiten"));
    QWidget* mitte = m_inhalt =
        rollbarerInhalt(this, {px(12840), px(UebersichtOben + 10 * UebersichtZeile + 240)});
    // The grid takes the focus (a click on a cell gives it too) and walks with the arrow keys.
    mitte->setObjectName(QStringLiteral("fraRaster"));
    mitte->setFocusPolicy(Qt::StrongFocus);
    mitte->installEventFilter(this);
    erzeugeRaster(mitte);
    erzeugeAuswahl(mitte);
    erzeugeUebersicht(mitte);
}

void frmHaeufigkeiten::erzeugeRaster(QWidget* mitte) {
    ueberschrift(mitte, rechteck(240, 120, 6300, 300), QStringLiteral("Ergebnisse (Heimtore ↓, Gasttore →)"));
    for (int tore = 0; tore <= MaxToreImRaster; ++tore) {
        beschriftung(mitte, QString(), rechteck(RasterLinks + tore * ZellenBreite, 480, ZellenBreite, 300),
                     QString::number(tore), Qt::AlignCenter);
        beschriftung(mitte, QString(), rechteck(240, RasterOben + tore * ZellenHoehe, 480, ZellenHoehe),
                     QString::number(tore), RechtsBuendig);
    }
    beschriftung(mitte, QString(), rechteck(240, AndereOben, RasterLinks + ZellenBreite - 300, ZellenHoehe),
                 QStringLiteral("andere"), RechtsBuendig);
    for (int klasse = 0; klasse < AnzErgebnisklassen; ++klasse) {
        const QRect ort = klasse == KlasseAndere
                              ? rechteck(RasterLinks + ZellenBreite, AndereOben, ZellenBreite, ZellenHoehe)
                              : rechteck(RasterLinks + klasse % 10 * ZellenBreite,
                                         RasterOben + klasse / 10 * ZellenHoehe, ZellenBreite, ZellenHoehe);
        auto* zelle = element<KlickLabel>(mitte, indexName("lblErgebnis", klasse), ort);
        zelle->setAlignment(Qt::AlignCenter);
        zelle->setFrameStyle(QFrame::Box | QFrame::Plain);
        zelle->setCursor(Qt::PointingHandCursor);
        zelle->setToolTip(QString::fromStdString(klassenName(klasse)));
        connect(zelle, &KlickLabel::geklickt, this,
                sicher(this, m_dialoge, [this, klasse] { lblErgebnis_Click(klasse); }));
        lblErgebnis[klasse] = zelle;
    }
}

void frmHaeufigkeiten::erzeugeAuswahl(QWidget* mitte) {
    lblAuswahl = ueberschrift(mitte, rechteck(Rechts, 120, 5880, 300), QString());
    lblAuswahl->setObjectName(QStringLiteral("lblAuswahl"));
    auto zeile = [mitte](const QString& suffix, int oben, QLabel*& name, QLabel*& anzahl, QLabel*& balken) {
        name = beschriftung(mitte, "lblName" + suffix, rechteck(Rechts, oben, 1560, 300), QString(), Links);
        anzahl = beschriftung(mitte, "lblAnzahl" + suffix, rechteck(Rechts + 1620, oben, 540, 300), QString(),
                              RechtsBuendig);
        balken = element<QLabel>(mitte, "lblBalken" + suffix, rechteck(BalkenLinks, oben + 45, 0, 210));
    };
    zeile(QString(), 480, lblName, lblAnzahl, lblBalken);
    lblName->setText(QStringLiteral("Ergebnis"));
    setzeFarben(lblBalken, qfarbe(schattierung(1, 1)), Qt::white);
    for (int p = 0; p < MaxSpieler; ++p)
        zeile(QStringLiteral("_%1").arg(p), 480, lblSpielerName[p], lblSpielerAnzahl[p], lblSpielerBalken[p]);
    txtSpiele = element<QPlainTextEdit>(mitte, QStringLiteral("txtSpiele"),
                                        rechteck(Rechts, 480, 5880, ListeUnten - 480));
    txtSpiele->setReadOnly(true);
    txtSpiele->setTabStopDistance(px(1350));
}

void frmHaeufigkeiten::erzeugeUebersicht(QWidget* mitte) {
    ueberschrift(mitte, rechteck(240, UebersichtOben, 1800, 300), QStringLiteral("Spieler"));
    ueberschrift(mitte, rechteck(2100, UebersichtOben, 2100, 300), QStringLiteral("Häufigster Tipp"));
    ueberschrift(mitte, rechteck(4260, UebersichtOben, 2100, 300), QStringLiteral("Exakt richtig"));
    for (int p = 0; p < MaxSpieler; ++p) {
        const int oben = UebersichtOben + (p + 1) * UebersichtZeile;
        lblTipper[p] =
            beschriftung(mitte, indexName("lblTipper", p), rechteck(240, oben, 1800, 300), {}, Links);
        lblHaeufigsterTipp[p] = beschriftung(mitte, indexName("lblHäufigsterTipp", p),
                                             rechteck(2100, oben, 2100, 300), {}, Links);
        lblTreffer[p] =
            beschriftung(mitte, indexName("lblTreffer", p), rechteck(4260, oben, 2100, 300), {}, Links);
    }
}

void frmHaeufigkeiten::zeige(const Spielstand& spiel) {
    zeichne(spiel);
    holeNachVorn(this);
}

void frmHaeufigkeiten::folge(const Spielstand& spiel, const Aenderung&) {
    zeichne(spiel);
}

void frmHaeufigkeiten::zeichne(const Spielstand& spiel) {
    m_spiel = &spiel;
    m_haeufigkeiten = zaehleHaeufigkeiten(spiel);
    if (m_klasse < 0) m_klasse = std::max(0, m_haeufigkeiten.haeufigstesErgebnis());
    zeigeRaster();
    zeigeUebersicht();
    zeigeAuswahl();
}

bool frmHaeufigkeiten::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt != m_inhalt || ereignis->type() != QEvent::KeyPress || m_klasse < 0)
        return QWidget::eventFilter(objekt, ereignis);
    const int klasse = nachbar(m_klasse, static_cast<QKeyEvent*>(ereignis)->key());
    if (klasse < 0) return false;
    fangeFehler(this, m_dialoge, [&] { lblErgebnis_Click(klasse); });
    return true;
}

void frmHaeufigkeiten::lblErgebnis_Click(int klasse) {
    m_klasse = klasse;
    zeigeRaster();
    zeigeAuswahl();
}

void frmHaeufigkeiten::zeigeRaster() {
    const int hoechste = m_haeufigkeiten.hoechsteAnzahl();
    for (int klasse = 0; klasse < AnzErgebnisklassen; ++klasse) {
        KlickLabel* zelle = lblErgebnis[klasse];
        const int anzahl = m_haeufigkeiten.anzahl(klasse);
        const Farbe hintergrund = schattierung(anzahl, hoechste);
        zelle->setText(QString::number(anzahl));
        setzeFarben(zelle, qfarbe(hintergrund), qfarbe(schriftfarbeAuf(hintergrund)));
        const bool gewaehlt = klasse == m_klasse;
        zelle->setLineWidth(gewaehlt ? 3 : 1);
        setzeFett(zelle, gewaehlt);
    }
}

void frmHaeufigkeiten::zeigeUebersicht() {
    int zeile = 0;
    for (int p = 0; p < MaxSpieler; ++p) {
        const bool spielt = m_spiel->getTeilnehmer(p) == 1;
        for (QLabel* l : {lblTipper[p], lblHaeufigsterTipp[p], lblTreffer[p]})
            l->setVisible(spielt);
        if (!spielt) continue;
        const int oben = UebersichtOben + (zeile + 1) * UebersichtZeile;
        lblTipper[p]->move(px(240), px(oben));
        lblHaeufigsterTipp[p]->move(px(2100), px(oben));
        lblTreffer[p]->move(px(4260), px(oben));
        lblTipper[p]->setText(text(m_spiel->getSpielerName(p)));
        const int tipp = m_haeufigkeiten.haeufigsterTipp(p);
        lblHaeufigsterTipp[p]->setText(tipp < 0 ? QStringLiteral("-")
                                                : QStringLiteral("%1 (%2-mal)")
                                                      .arg(text(klassenName(tipp)))
                                                      .arg(m_haeufigkeiten.anzahlTipps(p, tipp)));
        lblTreffer[p]->setText(QString::number(m_haeufigkeiten.treffer[p]));
        ++zeile;
    }
}

void frmHaeufigkeiten::zeigeAuswahl() {
    lblAuswahl->setText(m_klasse == KlasseAndere ? QStringLiteral("Andere Ergebnisse")
                                                 : "Ergebnis " + text(klassenName(m_klasse)));
    int hoechste = m_haeufigkeiten.anzahl(m_klasse);
    for (int p = 0; p < MaxSpieler; ++p)
        if (m_spiel->getTeilnehmer(p) == 1)
            hoechste = std::max(hoechste, m_haeufigkeiten.anzahlTipps(p, m_klasse));
    auto balken = [hoechste](QLabel* anzahlLabel, QLabel* balkenLabel, int anzahl) {
        anzahlLabel->setText(QString::number(anzahl));
        balkenLabel->resize(hoechste > 0 ? px(BalkenMax * anzahl / hoechste) : 0, balkenLabel->height());
        balkenLabel->setVisible(anzahl > 0);
    };
    balken(lblAnzahl, lblBalken, m_haeufigkeiten.anzahl(m_klasse));
    int zeile = 0;
    for (int p = 0; p < MaxSpieler; ++p) {
        const bool spielt = m_spiel->getTeilnehmer(p) == 1;
        for (QLabel* l : {lblSpielerName[p], lblSpielerAnzahl[p]})
            l->setVisible(spielt);
        if (!spielt) {
            lblSpielerBalken[p]->hide();
            continue;
        }
        const int oben = 480 + (++zeile) * BalkenZeile;
        lblSpielerName[p]->move(px(Rechts), px(oben));
        lblSpielerAnzahl[p]->move(px(Rechts + 1620), px(oben));
        lblSpielerBalken[p]->move(px(BalkenLinks), px(oben + 45));
        lblSpielerName[p]->setText(text(m_spiel->getSpielerName(p)));
        setzeFarben(lblSpielerBalken[p], qfarbe(m_spiel->getSpielerFarbe(p)), Qt::black);
        balken(lblSpielerAnzahl[p], lblSpielerBalken[p], m_haeufigkeiten.anzahlTipps(p, m_klasse));
    }
    const int listeOben = 480 + (zeile + 1) * BalkenZeile + 120;  // right under the last bar
    txtSpiele->setGeometry(rechteck(Rechts, listeOben, 5880, ListeUnten - listeOben));
    txtSpiele->setPlainText(text(spielliste(*m_spiel, m_haeufigkeiten, m_klasse)));
}

}  // namespace kalimbo::ui
