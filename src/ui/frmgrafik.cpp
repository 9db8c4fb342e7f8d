#include "frmgrafik.h"

#include <QAction>
#include <QBuffer>
#include <QEvent>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>

#include "state/dateischreiben.h"
#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/nebenfenster.h"
#include "ui/bausteine/rollflaeche.h"
#include "ui/bausteine/twips.h"
#include "ui/bausteine/zeichenflaeche.h"

namespace kalimbo::ui {

namespace {

const QString Bildfilter = QStringLiteral("Bitmap-Dateien (*.bmp)|*.bmp|Alle Dateien|*.*");
const QString Speichertitel = QStringLiteral("Geben Sie den Namen der Datei zum Speichern ein!");

// Layout in twips.
constexpr int BildLinks = 120, BildOben = 615;
constexpr int SchalterBreite = 1800;
constexpr std::array<int, 2> SchalterLinks{120, 1980};
constexpr int LegendeLinks = BildLinks + 480, LegendeOben = BildOben + 300;  // in the chart's empty top left
constexpr int Zeilenabstand = 240, Zeilenhoehe = 225, Umschalter = 195, Griff = 180;
constexpr int LegendeBreite = 2280 + Umschalter, LegendeHoehe = 8 * Zeilenabstand + Zeilenhoehe;

void setzeTextfarbe(QLabel* l, const QColor& farbe) {
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, farbe);
    l->setPalette(p);
}

}  // namespace

frmGrafik::frmGrafik(QWidget* eltern, Dialoge& dialoge) : QMainWindow(eltern), m_dialoge(dialoge) {
    richteNebenfensterEin(this, QStringLiteral("frmGrafik"),
                          QStringLiteral("Grafische Anzeige der Tippergebnisse"));
    auto* mitte = new QWidget(this);
    QFont klein = font();  // the layout is designed for a small font
    klein.setPointSizeF(7.5);
    setFont(klein);

    const std::array<const char*, 2> titel{"Gesamtpunkte", "Spieltagspunkte"};
    for (int i = 0; i < 2; ++i) {
        auto* schalter = element<KlickLabel>(mitte, indexName("lblSchalt", i),
                                             rechteck(SchalterLinks[i], 300, SchalterBreite, 315));
        schalter->setText(QString::fromUtf8(titel[i]));
        schalter->setAlignment(Qt::AlignCenter);
        schalter->setCursor(Qt::PointingHandCursor);
        connect(schalter, &KlickLabel::geklickt, this,
                sicher(this, m_dialoge, [this, i] { lblSchalt_Click(i); }));
        lblSchalt[i] = schalter;
    }
    zeigeSchalter(grafik::Gesamtpunkte);

    picHintergrund =
        element<Zeichenflaeche>(mitte, QStringLiteral("picHintergrund"),
                                rechteck(BildLinks, BildOben, grafik::GrafikBreite, grafik::GrafikHoehe));
    lblTest = element<QLabel>(mitte, QStringLiteral("lblTest"), rechteck(120, 60, 600, 225));
    lblTest->hide();
    erzeugeLegende(mitte);
    erzeugeMenue();
    setzeRollbarenInhalt(
        this, mitte, {px(BildLinks + grafik::GrafikBreite + 120), px(BildOben + grafik::GrafikHoehe + 120)});
}

void frmGrafik::erzeugeLegende(QWidget* mitte) {
    // Under the legend's texts, so that the chart does not show through when it is dragged there.
    fraLegende = element<QFrame>(mitte, QStringLiteral("fraLegende"), {});
    fraLegende->setFrameStyle(QFrame::Box | QFrame::Plain);
    fraLegende->setAutoFillBackground(true);
    for (int p = 0; p < MaxSpieler; ++p) {
        lblSpieler[p] = element<QLabel>(mitte, indexName("lblSpieler", p), {});
        lblSpieler[p]->setIndent(px(90));  // clear of the handle's edge
        lblGesamtPunkte[p] = element<QLabel>(mitte, indexName("lblGesamtPunkte", p), {});
        lblGesamtPunkte[p]->setToolTip(QStringLiteral("Gesamtpunkte"));
        lblSptgPunkte[p] = element<QLabel>(mitte, indexName("lblSptgPunkte", p), {});
        lblSptgPunkte[p]->setToolTip(QStringLiteral("Punkte an diesem Spieltag"));
        for (QLabel* zahl : {lblGesamtPunkte[p], lblSptgPunkte[p]})
            zahl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

        lblAnsicht[p] = element<KlickLabel>(mitte, indexName("lblAnsicht", p), {});
        lblAnsicht[p]->setToolTip(QStringLiteral("Linie dieses Spielers einblenden"));
        connect(lblAnsicht[p], &KlickLabel::geklickt, this,
                sicher(this, m_dialoge, [this, p] { lblAnsicht_Click(p); }));
        lblPunkteZeigen[p] = element<KlickLabel>(mitte, indexName("lblPunkteZeigen", p), {});
        lblPunkteZeigen[p]->setToolTip(QStringLiteral("Punktzahl dieses Spielers anzeigen"));
        connect(lblPunkteZeigen[p], &KlickLabel::geklickt, this,
                sicher(this, m_dialoge, [this, p] { lblPunkteZeigen_Click(p); }));
        for (KlickLabel* umschalter : {lblAnsicht[p], lblPunkteZeigen[p]}) {
            umschalter->setFrameStyle(QFrame::Box | QFrame::Plain);
            umschalter->setCursor(Qt::PointingHandCursor);
        }
    }
    for (int i = 0; i < 2; ++i) {
        linHori[i] = element<QFrame>(mitte, indexName("linHori", i), {});
        linHori[i]->setFrameStyle(QFrame::HLine | QFrame::Plain);
    }
    lblAnAus = element<QLabel>(mitte, QStringLiteral("lblAnAus"), {});
    lblAnAus->setText(QStringLiteral("+"));
    lblAnAus->setAlignment(Qt::AlignCenter);
    lblAnAus->setFrameStyle(QFrame::Box | QFrame::Plain);
    lblAnAus->setToolTip(QStringLiteral("Übersicht verschieben (ziehen und loslassen)"));
    lblAnAus->setCursor(Qt::SizeAllCursor);
    lblAnAus->installEventFilter(this);
    shpRahmen =
        element<QFrame>(mitte, QStringLiteral("shpRahmen"), rechteck(0, 0, LegendeBreite, LegendeHoehe));
    shpRahmen->setFrameStyle(QFrame::Box | QFrame::Plain);
    shpRahmen->setAttribute(Qt::WA_TransparentForMouseEvents);
    shpRahmen->hide();
    setzeLegende({px(LegendeLinks), px(LegendeOben)});
}

void frmGrafik::erzeugeMenue() {
    QMenu* bild = menuBar()->addMenu(QStringLiteral("Bild"));
    bild->setObjectName(QStringLiteral("menBild"));
    menSpeichern = bild->addAction(QStringLiteral("Speichern"));
    menSpeichern->setObjectName(QStringLiteral("menSpeichern"));
    connect(menSpeichern, &QAction::triggered, this,
            sicher(this, m_dialoge, [this] { menSpeichern_Click(); }));
    bild->addSeparator()->setObjectName(QStringLiteral("menStrich"));
    menDrucken = bild->addAction(QStringLiteral("Drucken"));
    menDrucken->setObjectName(QStringLiteral("menDrucken"));
}

void frmGrafik::zeige(const Spielstand& spiel) {
    m_spiel = &spiel;
    fangeFehler(this, m_dialoge, [&] {
        passeUmschalterAn(spiel);
        Form_Activate();
    });
    holeNachVorn(this);
}

void frmGrafik::folge(const Spielstand& spiel, const Aenderung&) {
    m_spiel = &spiel;
    passeUmschalterAn(spiel);
    zeigeUmschalter();
    zeichneNeu();
}

void frmGrafik::passeUmschalterAn(const Spielstand& spiel) {
    const grafik::Ansicht erste = grafik::ersteAnsicht(spiel);
    for (std::size_t p = 0; p < MaxSpieler; ++p) {
        const int slot = static_cast<int>(p);
        if (m_teilnehmer && (*m_teilnehmer)[slot] == spiel.getTeilnehmer(slot)) continue;
        m_ansicht.LinieZeigen[p] = erste.LinieZeigen[p];
        m_ansicht.PunkteZeigen[p] = erste.PunkteZeigen[p];
    }
    m_teilnehmer = spiel.Teilnehmer;
}

bool frmGrafik::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::WindowActivate && m_spiel)
        fangeFehler(this, m_dialoge, [this] { Form_Activate(); });
    return QMainWindow::event(ereignis);
}

bool frmGrafik::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == lblAnAus && ereignis->type() == QEvent::MouseButtonPress)
        return true;  // the handle grabs the mouse
    if (objekt == lblAnAus && ereignis->type() == QEvent::MouseMove) {
        const auto* maus = static_cast<QMouseEvent*>(ereignis);
        lblAnAus_MouseMove(maus->buttons(), maus->position().toPoint());
        return true;
    }
    if (objekt == lblAnAus && ereignis->type() == QEvent::MouseButtonRelease) {
        lblAnAus_MouseUp(static_cast<QMouseEvent*>(ereignis)->position().toPoint());
        return true;
    }
    return QMainWindow::eventFilter(objekt, ereignis);
}

// ---------------------------------------------------------------------------------------------
// Handlers

// Every time the window becomes active: the toggles show their flags, the total view is drawn.
void frmGrafik::Form_Activate() {
    zeigeUmschalter();
    m_ansicht.Darstellung = grafik::Gesamtpunkte;
    zeigeSchalter(grafik::Gesamtpunkte);
    zeichneNeu();
}

void frmGrafik::lblSchalt_Click(int index) {
    zeigeSchalter(index);
    m_ansicht.Darstellung = static_cast<i16>(index);
    zeichneNeu();
}

void frmGrafik::lblAnsicht_Click(int index) {
    auto& flag = m_ansicht.LinieZeigen[static_cast<std::size_t>(index)];
    flag = !flag;
    zeigeUmschalter();
    zeichneNeu();
}

void frmGrafik::lblPunkteZeigen_Click(int index) {
    auto& flag = m_ansicht.PunkteZeigen[static_cast<std::size_t>(index)];
    flag = !flag;
    zeigeUmschalter();
    zeichneNeu();
}

// The outline follows the pointer while only the left button is held.
void frmGrafik::lblAnAus_MouseMove(Qt::MouseButtons knoepfe, QPoint punkt) {
    if (knoepfe != Qt::LeftButton) return;
    shpRahmen->move(lblAnAus->pos() + punkt);
    shpRahmen->show();
    shpRahmen->raise();
}

void frmGrafik::lblAnAus_MouseUp(QPoint punkt) {
    setzeLegende(lblAnAus->pos() + punkt);
}

void frmGrafik::menSpeichern_Click() {
    const QString pfad = m_dialoge.speichern(this, Speichertitel, Bildfilter, QString());
    if (pfad.isEmpty()) return;
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    picHintergrund->bild().save(&puffer, "BMP");
    schreibeDateiAtomar(QFile::encodeName(pfad).toStdString(),
                        std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

// ---------------------------------------------------------------------------------------------
// What the handlers share

// The active tab stands taller and dark, the other lower and grey.
void frmGrafik::zeigeSchalter(int aktiv) {
    for (int i = 0; i < 2; ++i) {
        KlickLabel* s = lblSchalt[i];
        const bool an = i == aktiv;
        s->setGeometry(s->x(), px(an ? 240 : 300), s->width(), px(an ? 375 : 315));
        setzeFarben(s, an ? QColor(64, 64, 64) : QColor(128, 128, 128),
                    an ? Qt::white : QColor(224, 224, 224));
    }
}

// A toggle that is on shows the window-text colour with white text, one that is off the reverse.
void frmGrafik::zeigeUmschalter() {
    const QColor text = qfarbe(Fenstertext);
    for (int p = 0; p < MaxSpieler; ++p) {
        const auto i = static_cast<std::size_t>(p);
        for (const auto& [umschalter, an] : {std::pair{lblAnsicht[i], m_ansicht.LinieZeigen[i]},
                                             std::pair{lblPunkteZeigen[i], m_ansicht.PunkteZeigen[i]}})
            setzeFarben(umschalter, an ? text : Qt::white, an ? Qt::white : text);
    }
}

// Places the legend with the top left of its first row at `ursprung` (pixels in the window).
void frmGrafik::setzeLegende(QPoint ursprung) {
    const auto ort = [&](int dx, int dy, int breite, int hoehe) {
        return QRect(ursprung.x() + px(dx), ursprung.y() + px(dy), px(breite), px(hoehe));
    };
    lblAnAus->setGeometry(QRect(ursprung - QPoint(px(180), px(60)), QSize(px(Griff), px(Griff))));
    fraLegende->setGeometry(ort(-240, -120, LegendeBreite + 300, LegendeHoehe + 180));
    for (int p = 0; p < MaxSpieler; ++p) {
        const int y = Zeilenabstand * p;
        lblSpieler[p]->setGeometry(ort(0, y, 1080, Zeilenhoehe));
        lblGesamtPunkte[p]->setGeometry(ort(1080, y, 420, Zeilenhoehe));
        lblSptgPunkte[p]->setGeometry(ort(1560, y, 300, Zeilenhoehe));
        lblAnsicht[p]->setGeometry(ort(2040, y, Umschalter, Umschalter));
        lblPunkteZeigen[p]->setGeometry(ort(2280, y, Umschalter, Umschalter));
    }
    linHori[0]->setGeometry(ort(1920, 120, 120, 15));
    linHori[1]->setGeometry(ort(1920, 2040, 120, 15));
    shpRahmen->hide();
}

void frmGrafik::zeichneNeu() {
    if (!m_spiel) return;
    const i16 spieltage = m_spiel->getAnzSpieltage();
    grafik::Zeichnung zeichnung = grafik::punktegrafik(*m_spiel, spieltage, m_ansicht);
    const auto zeilen = grafik::legende(*m_spiel);
    for (int p = 0; p < MaxSpieler; ++p) {
        const grafik::Legendenzeile& z = zeilen[static_cast<std::size_t>(p)];
        lblSpieler[p]->setText(text(z.spieler));
        setzeTextfarbe(lblSpieler[p], qfarbe(z.farbe.value_or(Fenstertext)));
        setzeFett(lblSpieler[p], z.farbe.has_value());
        lblGesamtPunkte[p]->setText(text(z.gesamtPunkte));
        lblSptgPunkte[p]->setText(text(z.spieltagPunkte));
    }
    if (m_ansicht.Darstellung == grafik::Gesamtpunkte)
        lblTest->setText(QString::number(grafik::skalenspitze(*m_spiel, spieltage)));
    picHintergrund->setzeZeichnung(std::move(zeichnung));
}

}  // namespace kalimbo::ui
