#include "frmdrucken.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>

#include "reports/bogenhtml.h"
#include "reports/bogenzeichnung.h"
#include "state/dateischreiben.h"
#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/druckseite.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/fehlergrenze.h"
#include "ui/bausteine/nebenfenster.h"
#include "ui/bausteine/rollflaeche.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

namespace {

constexpr std::array<const char*, 3> Arten{"Auwertung (Ergebnisse und Tipps)",
                                           "Live-Spiel (getippt, Ergebnisse unbekannt)",
                                           "Tippabgabe (Spalten bleiben leer)"};

const QString PdfFilter = QStringLiteral("PDF-Dateien (*.pdf)|*.pdf|Alle Dateien|*.*");
const QString HtmlFilter = QStringLiteral("HTML-Dateien (*.html)|*.html|Alle Dateien|*.*");

QString titelVon(const Spieltagsbogen& b) {
    return text(b.liga) + QStringLiteral(" – ") + text(b.titel);
}

}  // namespace

frmDrucken::frmDrucken(QWidget* eltern, Dialoge& dialoge) : QWidget(eltern), m_dialoge(dialoge) {
    richteNebenfensterEin(this, QStringLiteral("frmDrucken"), QStringLiteral("Drucken"));
    QWidget* mitte = rollbarerInhalt(this, {px(8280), px(2580)});
    auto* beschriftung = element<QLabel>(mitte, QStringLiteral("lblSpieltag"), rechteck(240, 270, 1140, 300));
    beschriftung->setText(QStringLiteral("Spieltag:"));
    cmbSpieltag = element<QComboBox>(mitte, QStringLiteral("cmbSpieltag"), rechteck(1380, 225, 1800, 390));
    beschriftung->setBuddy(cmbSpieltag);

    auto* fraArt = element<QGroupBox>(mitte, QStringLiteral("fraArt"), rechteck(240, 780, 5280, 1560));
    fraArt->setTitle(QStringLiteral("Art des Ausdrucks"));
    for (std::size_t i = 0; i < Arten.size(); ++i) {
        optArt[i] = element<QRadioButton>(fraArt, indexName("optArt", static_cast<int>(i)),
                                          rechteck(240, 360 + static_cast<int>(i) * 360, 4920, 330));
        optArt[i]->setText(QString::fromUtf8(Arten[i]));
    }
    optArt[0]->setChecked(true);

    struct Knopf {
        QPushButton* frmDrucken::*feld;
        const char* name;
        const char* beschriftung;
        void (frmDrucken::*handler)();
    };
    const std::array<Knopf, 4> knoepfe{{
        {&frmDrucken::cmdVorschau, "cmdVorschau", "Vorschau", &frmDrucken::cmdVorschau_Click},
        {&frmDrucken::cmdDrucken, "cmdDrucken", "Drucken", &frmDrucken::cmdDrucken_Click},
        {&frmDrucken::cmdPDF, "cmdPDF", "Als PDF speichern", &frmDrucken::cmdPDF_Click},
        {&frmDrucken::cmdHTML, "cmdHTML", "Als HTML speichern", &frmDrucken::cmdHTML_Click},
    }};
    for (std::size_t i = 0; i < knoepfe.size(); ++i) {
        const Knopf& k = knoepfe[i];
        this->*k.feld = element<QPushButton>(mitte, QString::fromUtf8(k.name),
                                             rechteck(5760, 240 + static_cast<int>(i) * 525, 2280, 420));
        (this->*k.feld)->setText(QString::fromUtf8(k.beschriftung));
        connect(this->*k.feld, &QPushButton::clicked, this,
                sicher(this, m_dialoge, [this, h = k.handler] { (this->*h)(); }));
    }
}

void frmDrucken::zeige(const Spielstand& spiel) {
    fuelleSpieltage(spiel, spiel.getAktSpieltag());
    holeNachVorn(this);
}

void frmDrucken::folge(const Spielstand& spiel, const Aenderung&) {
    const int gewaehlt = cmbSpieltag->currentIndex();
    fuelleSpieltage(spiel, gewaehlt <= spiel.getAnzSpieltage() ? gewaehlt : spiel.getAktSpieltag());
}

void frmDrucken::fuelleSpieltage(const Spielstand& spiel, int gewaehlt) {
    m_spiel = &spiel;
    cmbSpieltag->clear();
    for (int tag = 0; tag <= spiel.getAnzSpieltage(); ++tag)
        cmbSpieltag->addItem(QStringLiteral("%1. Spieltag").arg(tag + 1));
    cmbSpieltag->setCurrentIndex(gewaehlt);
}

Spieltagsbogen frmDrucken::bogen() const {
    std::size_t art = 0;
    while (art + 1 < optArt.size() && !optArt[art]->isChecked())
        ++art;
    return erstelleBogen(*m_spiel, cmbSpieltag->currentIndex(), static_cast<Bogenart>(art), heutigesDatum());
}

void frmDrucken::cmdVorschau_Click() {
    const grafik::Zeichnung seite = zeichneBogen(bogen());
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setPageLayout(seitenlayout(seite));
    m_dialoge.druckvorschau(this, drucker, [&seite](QPrinter* ziel) { druckeSeite(*ziel, seite); });
}

void frmDrucken::cmdDrucken_Click() {
    if (QPrinterInfo::availablePrinters().isEmpty()) {
        speicherePdf(QStringLiteral("Kein Drucker eingerichtet – als PDF speichern"));
        return;
    }
    const Spieltagsbogen b = bogen();
    const grafik::Zeichnung seite = zeichneBogen(b);
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setPageLayout(seitenlayout(seite));
    drucker.setDocName(titelVon(b));
    if (m_dialoge.drucken(this, drucker)) druckeSeite(drucker, seite);
}

void frmDrucken::cmdPDF_Click() {
    speicherePdf(QStringLiteral("Als PDF speichern"));
}

void frmDrucken::cmdHTML_Click() {
    speichere(QStringLiteral("Als HTML speichern"), HtmlFilter, QStringLiteral(".html"),
              QByteArray::fromStdString(bogenAlsHtml(bogen())));
}

void frmDrucken::speicherePdf(const QString& titel) {
    const Spieltagsbogen b = bogen();
    speichere(titel, PdfFilter, QStringLiteral(".pdf"), alsPdf(zeichneBogen(b), titelVon(b)));
}

void frmDrucken::speichere(const QString& titel, const QString& filter, const QString& endung,
                           const QByteArray& inhalt) {
    const QFileInfo spieldatei(text(m_spiel->Dateipfad));
    QString vorschlag = QStringLiteral("Spieltag %1%2").arg(cmbSpieltag->currentIndex() + 1).arg(endung);
    if (!m_spiel->Dateipfad.empty())
        vorschlag = spieldatei.absolutePath() + '/' + spieldatei.completeBaseName() + ' ' + vorschlag;
    const QString pfad = m_dialoge.speichern(this, titel, filter, vorschlag);
    if (pfad.isEmpty()) return;
    schreibeDateiAtomar(QFile::encodeName(pfad).toStdString(),
                        std::string_view(inhalt.constData(), inhalt.size()));
}

}  // namespace kalimbo::ui
