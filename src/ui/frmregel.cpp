#include "frmregel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "state/zahltext.h"
#include "ui/bausteine/allesmarkieren.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/nebenfenster.h"
#include "ui/bausteine/rollflaeche.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

const std::array<Farbe, 3> frmRegel::Angebot{rgb(247, 25, 25), rgb(250, 250, 124), rgb(48, 190, 48)};

namespace {

constexpr int ErsteZeile = 1200;
constexpr int Zeilenhoehe = 780;
constexpr int Punktespalte = 4440;
constexpr int Farbspalte = 5400;   // the colour chosen for each kind
constexpr int Wahlspalte = 8760;   // the three colours to choose from
constexpr int Festspalte = 11280;  // the fixed rules' colours, one column per rule

void setzeFlaeche(QWidget* w, Farbe farbe) {
    setzeFarben(w, qfarbe(farbe), Qt::black);
    w->setAutoFillBackground(true);
}

QLabel* beschriftung(QWidget* eltern, const QString& text, const QRect& ort, bool fett = false) {
    auto* l = element<QLabel>(eltern, QString(), ort);
    l->setText(text);
    l->setWordWrap(true);
    setzeFett(l, fett);
    return l;
}

QFrame* flaeche(QWidget* eltern, const QString& name, const QRect& ort) {
    auto* f = element<QFrame>(eltern, name, ort);
    f->setFrameStyle(QFrame::Box | QFrame::Plain);
    return f;
}

}  // namespace

frmRegel::frmRegel(QWidget* eltern, Dialoge& dialoge) : QWidget(eltern), m_dialoge(dialoge) {
    richteNebenfensterEin(this, QStringLiteral("frmRegel"),
                          QStringLiteral("Eigene Regel bezüglich der Auswertung erstellen"));
    QFont klein = font();  // the layout is designed for a small font: each caption's first line fits
    klein.setPointSizeF(7.5);
    setFont(klein);
    QWidget* mitte = rollbarerInhalt(this, {px(Festspalte + 2760), px(ErsteZeile + 3 * Zeilenhoehe + 600)});
    beschriftung(mitte, QStringLiteral("neue Regel"), rechteck(240, 120, 3000, 300), true);
    beschriftung(mitte, QStringLiteral("hier die Punktzahl eintragen"),
                 rechteck(Punktespalte - 240, 480, 1080, 660));
    beschriftung(
        mitte,
        QStringLiteral("hier die Hintergrundfarbe wählen [benötigt, um in der Übersicht richtige Tipps "
                       "mit der entsprechenden Farbe zu hinterlegen]"),
        rechteck(Farbspalte, 120, 3120, 1020));
    beschriftung(mitte, QStringLiteral("zur Wahl stehende Farben"), rechteck(Wahlspalte, 600, 2160, 480));
    const char* const festeKoepfe[] = {"3-Pkt- Regel", "2-Pkt -Regel", "3-2-1- Regel"};
    for (int r = 0; r < 3; ++r)
        beschriftung(mitte, QString::fromUtf8(festeKoepfe[r]), rechteck(Festspalte + r * 840, 600, 780, 480));

    const QString arten[] = {
        QStringLiteral("Punkte bei komplett richtigem Tipp\n( Ergebnis 3:0, Tipp 3:0)"),
        QStringLiteral("Punkte bei richtiger Vorhersage der Höhe des Sieges\n(Ergebnis 3:0, Tipp 4:1)"),
        QStringLiteral("Punkte bei richtig getippter Tendenz\n(Ergebnis 3:0, Tipp 2:1)")};
    // Which fixed swatch stands in which rule's column: 0..2 fully correct, 3 the margin of 3-2-1.
    constexpr int festeZeile[9] = {0, 0, 0, 1, 1, 1, 2, 2, 2};
    constexpr int festeSpalte[9] = {0, 1, 2, 2, 0, 1, 0, 1, 2};
    for (int k = 0; k < 3; ++k) {
        const int oben = ErsteZeile + k * Zeilenhoehe;
        beschriftung(mitte, arten[k], rechteck(240, oben - 120, 4080, 720));
        txtNeuModus[k] =
            element<QLineEdit>(mitte, indexName("txtNeuModus", k), rechteck(Punktespalte, oben, 540, 330));
        txtNeuModus[k]->setAlignment(Qt::AlignCenter);
        markiereBeimBetretenAlles(txtNeuModus[k]);
        lblFarbWahl[k] = flaeche(mitte, indexName("lblFarbWahl", k), rechteck(Farbspalte, oben, 1200, 330));
        lblFarbWahl[k]->setToolTip(QStringLiteral("aktuell gewählte Farbe"));
        for (int j = 0; j < 3; ++j) {
            const int i = 3 * k + j;
            auto* alt = element<KlickLabel>(mitte, indexName("lblFarbAlt", i),
                                            rechteck(Wahlspalte + j * 720, oben, 600, 330));
            alt->setFrameStyle(QFrame::Box | QFrame::Plain);
            alt->setCursor(Qt::PointingHandCursor);
            connect(alt, &KlickLabel::geklickt, this, [this, i] { lblFarbAlt_Click(i); });
            lblFarbAlt[i] = alt;
        }
    }
    beschriftung(mitte, QStringLiteral("aktuell gewählte Farbe"),
                 rechteck(Farbspalte, ErsteZeile + 3 * Zeilenhoehe - 360, 2400, 300));
    for (int i = 0; i < 9; ++i) {
        lblFarbeFest[i] = flaeche(
            mitte, indexName("lblFarbeFest", i),
            rechteck(Festspalte + festeSpalte[i] * 840, ErsteZeile + festeZeile[i] * Zeilenhoehe, 600, 330));
        setzeFlaeche(lblFarbeFest[i], Angebot[i == 3 ? 1 : (i < 3 ? 0 : 2)]);
    }
    const int knopfOben = ErsteZeile + 3 * Zeilenhoehe;
    auto* ok = element<QPushButton>(mitte, QStringLiteral("cmdOK"),
                                    rechteck(Festspalte - 840, knopfOben, 1320, 375));
    ok->setText(QStringLiteral("OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, sicher(this, m_dialoge, [this] { cmdOK_Click(); }));
    auto* abbrechen = element<QPushButton>(mitte, QStringLiteral("cmdAbbrechen"),
                                           rechteck(Festspalte + 600, knopfOben, 1320, 375));
    abbrechen->setText(QStringLiteral("Abbrechen"));
    connect(abbrechen, &QPushButton::clicked, this, &QWidget::close);
}

void frmRegel::zeige(const Spielstand& spiel) {
    for (int i = 0; i < 9; ++i)
        setzeFlaeche(lblFarbAlt[static_cast<std::size_t>(i)], Angebot[static_cast<std::size_t>(i % 3)]);
    const EigeneRegel inKraft = regelInKraft(spiel);
    m_gewaehlt = inKraft.farben;
    for (std::size_t k = 0; k < 3; ++k) {
        setzeFlaeche(lblFarbWahl[k], m_gewaehlt[k]);
        txtNeuModus[k]->setText(QString::number(inKraft.punkte[k]));
    }
    holeNachVorn(this);
}

void frmRegel::folge(const Spielstand&, const Aenderung& art) {
    if (art.ersetzt) hide();
}

void frmRegel::lblFarbAlt_Click(int index) {
    const auto art = static_cast<std::size_t>(index / 3);
    m_gewaehlt[art] = Angebot[static_cast<std::size_t>(index % 3)];
    setzeFlaeche(lblFarbWahl[art], m_gewaehlt[art]);
}

// All three points are read before anything is written: an empty box gives 0, a number outside
// the 16-bit range is refused and nothing changes.
void frmRegel::cmdOK_Click() {
    EigeneRegel regel{{}, m_gewaehlt};
    for (std::size_t k = 0; k < regel.punkte.size(); ++k)
        regel.punkte[k] = zahlAusText(txtNeuModus[k]->text().toStdString());
    emit bestaetigt(regel);
    hide();
}

void frmRegel::closeEvent(QCloseEvent* ereignis) {
    if (isVisible()) emit abgebrochen();
    QWidget::closeEvent(ereignis);
}

}  // namespace kalimbo::ui
