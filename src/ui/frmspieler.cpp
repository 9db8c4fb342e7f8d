#include "frmspieler.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "state/cp1252.h"
#include "ui/bausteine/allesmarkieren.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/nebenfenster.h"
#include "ui/bausteine/rollflaeche.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

const std::array<Farbe, 16> frmSpieler::Palette{
    rgb(0, 0, 0),       rgb(253, 0, 230), rgb(0, 128, 0),     rgb(153, 102, 51),
    rgb(0, 0, 179),     rgb(255, 128, 0), rgb(22, 220, 131),  rgb(179, 0, 255),
    rgb(204, 204, 255), rgb(241, 65, 65), rgb(255, 255, 0),   rgb(153, 0, 0),
    rgb(0, 255, 255),   rgb(255, 0, 0),   rgb(255, 255, 179), rgb(228, 248, 237)};

namespace {

constexpr int ErsteZeile = 600;
constexpr int Zeilenhoehe = 400;

void setzeFlaeche(QWidget* w, Farbe farbe) {
    setzeFarben(w, qfarbe(farbe), Qt::black);
    w->setAutoFillBackground(true);
}

}  // namespace

frmSpieler::frmSpieler(QWidget* eltern, Dialoge& dialoge) : QWidget(eltern), m_dialoge(dialoge) {
    richteNebenfensterEin(this, QStringLiteral("frmSpieler"), QStringLiteral("Spielerdaten ändern"));
    const int unten = ErsteZeile + MaxSpieler * Zeilenhoehe + 120;
    QWidget* mitte = rollbarerInhalt(this, {px(5400), px(unten + 1320)});
    for (const auto& [titel, links] :
         {std::pair{"Name", 240}, std::pair{"Farbe", 3120}, std::pair{"spielt mit", 3840}}) {
        auto* kopf = element<QLabel>(mitte, QString(), rechteck(links, 240, 1200, 300));
        kopf->setText(QString::fromUtf8(titel));
        setzeFett(kopf, true);
    }
    for (int p = 0; p < MaxSpieler; ++p) {
        m_farben[static_cast<std::size_t>(p)] = Palette[static_cast<std::size_t>(p)];
        const int oben = ErsteZeile + p * Zeilenhoehe;
        QLineEdit* name = txtSpieler[p] =
            element<QLineEdit>(mitte, indexName("txtSpieler", p), rechteck(240, oben, 2760, 315));
        name->setMaxLength(100);
        markiereBeimBetretenAlles(name);
        KlickLabel* farbe = lblSpielerFarbe[p] =
            element<KlickLabel>(mitte, indexName("lblSpielerFarbe", p), rechteck(3120, oben, 480, 315));
        farbe->setFrameStyle(QFrame::Box | QFrame::Plain);
        farbe->setCursor(Qt::PointingHandCursor);
        farbe->setToolTip(QStringLiteral("Kästchen klicken, um Farbe zu ändern"));
        connect(farbe, &KlickLabel::geklickt, this, [this, p] { lblSpielerFarbe_Click(p); });
        chkTeilnehmer[p] =
            element<QCheckBox>(mitte, indexName("chkTeilnehmer", p), rechteck(3960, oben, 1200, 315));
        chkTeilnehmer[p]->setText(QStringLiteral("spielt mit"));
    }
    auto* hinweis = element<QLabel>(mitte, QStringLiteral("lblHinweis"), rechteck(240, unten, 4920, 300));
    hinweis->setText(QStringLiteral("Kästchen klicken, um Farbe zu ändern"));
    for (int i = 0; i < 16; ++i) {
        shpFarbe[i] =
            element<QFrame>(mitte, indexName("shpFarbe", i), rechteck(240 + i * 300, unten + 360, 240, 240));
        shpFarbe[i]->setFrameStyle(QFrame::Box | QFrame::Plain);
    }
    shpAuswahl = element<QFrame>(mitte, QStringLiteral("shpAuswahl"), rechteck(240, unten + 720, 480, 315));
    shpAuswahl->setFrameStyle(QFrame::Box | QFrame::Plain);
    shpAuswahl->setToolTip(QStringLiteral("zuletzt gewählte Farbe"));
    cmdOK = element<QPushButton>(mitte, QStringLiteral("cmdOK"), rechteck(2400, unten + 720, 1320, 375));
    cmdOK->setText(QStringLiteral("OK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, sicher(this, m_dialoge, [this] { cmdOK_Click(); }));
    auto* abbrechen =
        element<QPushButton>(mitte, QStringLiteral("cmdAbbrechen"), rechteck(3840, unten + 720, 1320, 375));
    abbrechen->setText(QStringLiteral("Abbrechen"));
    connect(abbrechen, &QPushButton::clicked, this, &QWidget::close);
}

void frmSpieler::zeige(const Spielstand& spiel) {
    for (std::size_t i = 0; i < shpFarbe.size(); ++i)
        setzeFlaeche(shpFarbe[i], Palette[i]);
    for (int p = 0; p < MaxSpieler; ++p) {
        const auto s = static_cast<std::size_t>(p);
        txtSpieler[s]->setText(text(spiel.getSpielerName(p)));
        const bool spielt = spiel.getTeilnehmer(p) == 1;
        chkTeilnehmer[s]->setChecked(spielt);
        if (spielt) m_farben[s] = spiel.getSpielerFarbe(p);
        setzeFlaeche(lblSpielerFarbe[s], m_farben[s]);
    }
    m_farbenBeimZeigen = m_farben;
    holeNachVorn(this);
}

void frmSpieler::folge(const Spielstand&, const Aenderung& art) {
    if (art.ersetzt) hide();
}

void frmSpieler::lblSpielerFarbe_Click(int spieler) {
    const Farbe farbe = Palette[static_cast<std::size_t>(m_farbzaehler % 16)];
    m_farben[pruefeIndex(spieler, MaxSpieler)] = farbe;
    setzeFlaeche(lblSpielerFarbe[static_cast<std::size_t>(spieler)], farbe);
    setzeFlaeche(shpAuswahl, farbe);
    m_farbzaehler = (m_farbzaehler + 1) % 16;
}

// A name the game file cannot store is refused before anything is handed over.
void frmSpieler::cmdOK_Click() {
    std::array<std::string, MaxSpieler> namen;
    for (std::size_t p = 0; p < namen.size(); ++p) {
        namen[p] = txtSpieler[p]->text().toStdString();
        nachCp1252(namen[p]);
    }
    m_namen = namen;
    for (std::size_t p = 0; p < namen.size(); ++p)
        m_teilnehmer[p] = chkTeilnehmer[p]->isChecked() ? 1 : 0;
    emit bestaetigt();
    hide();
}

// Closed without "OK": the colours clicked are dropped too (the names and flags are filled afresh
// from the game when it opens again).
void frmSpieler::closeEvent(QCloseEvent* ereignis) {
    m_farben = m_farbenBeimZeigen;
    QWidget::closeEvent(ereignis);
}

std::string frmSpieler::getSpielerName(int spieler) const {
    return m_namen[pruefeIndex(spieler, MaxSpieler)];
}

Farbe frmSpieler::getSpielerFarbe(int spieler) const {
    return m_farben[pruefeIndex(spieler, MaxSpieler)];
}

i16 frmSpieler::getTeilnehmer(int spieler) const {
    return m_teilnehmer[pruefeIndex(spieler, MaxSpieler)];
}

}  // namespace kalimbo::ui
