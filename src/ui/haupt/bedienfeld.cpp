#include "bedienfeld.h"

#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/bausteine/elemente.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

namespace {

QLineEdit* zahlfeld(QWidget* eltern, const QString& name, const QRect& ort, int hoechstens,
                    const QString& hinweis) {
    auto* feld = element<QLineEdit>(eltern, name, ort);
    feld->setValidator(new QIntValidator(0, hoechstens, feld));
    feld->setAlignment(Qt::AlignCenter);
    feld->setToolTip(hinweis);
    return feld;
}

}  // namespace

// Positions in twips are those inside the matchday view, less the panel's own corner (13560, 480).
Bedienfeld::Bedienfeld(QWidget* eltern) : QWidget(eltern) {
    lblQuoten = element<QLabel>(this, QStringLiteral("lblQuoten"), rechteck(0, 0, 1615, 1075));
    lblQuoten->setText(QStringLiteral(" Heimsieg: 3,15\r\n Remis: 2,00\r\n Auswärtssieg: 2,25"));
    lblQuoten->setFrameStyle(QFrame::Box | QFrame::Plain);
    lblQuoten->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    element<QLabel>(this, QString(), rechteck(0, 1220, 1140, 300))->setText(QStringLiteral("akt. Spieltag:"));
    txtAktSpieltag =
        zahlfeld(this, QStringLiteral("txtAktSpieltag"), rechteck(1170, 1220, 420, 300), 99,
                 QStringLiteral("aktueller Spieltag, von 0 an gezählt (1. Spieltag = 0; 99 = keiner)"));
    element<QLabel>(this, QString(), rechteck(0, 1580, 1140, 300))
        ->setText(QStringLiteral("Sonntagsspiele:"));
    for (int j = 0; j < 2; ++j)
        txtSonntag[j] = zahlfeld(this, indexName("txtSonntag", j), rechteck(690 + j * 480, 1890, 420, 300), 9,
                                 QStringLiteral("Nummer des Spiels, von 0 an gezählt (erstes Spiel = 0)"));
    cmdSonntag = element<QPushButton>(this, QStringLiteral("cmdSonntag"), rechteck(0, 2280, 1590, 345));
    cmdSonntag->setText(QStringLiteral("übernehmen"));
    connect(cmdSonntag, &QPushButton::clicked, this, &Bedienfeld::uebernehmen);
    cmdAuswerten = element<QPushButton>(this, QStringLiteral("cmdAuswerten"), rechteck(0, 3360, 1590, 600));
    cmdAuswerten->setText(QStringLiteral("Auswertung"));
    cmdAuswerten->setToolTip(QStringLiteral("alle ausgewählten Spieltage auswerten (F5)"));
    setzeFett(cmdAuswerten, true);
    connect(cmdAuswerten, &QPushButton::clicked, this, &Bedienfeld::auswerten);
    resize(px(1615), px(3960));
}

void Bedienfeld::zeige(const Spielstand& spiel) {
    txtAktSpieltag->setText(QString::number(spiel.getAktSpieltagGlobal()));
    for (int j = 0; j < 2; ++j)
        txtSonntag[static_cast<std::size_t>(j)]->setText(QString::number(spiel.SonntagSpiele[j]));
}

std::array<std::string, 3> Bedienfeld::eingaben() const {
    return {txtAktSpieltag->text().toStdString(), txtSonntag[0]->text().toStdString(),
            txtSonntag[1]->text().toStdString()};
}

std::array<QWidget*, 5> Bedienfeld::tabfolge() const {
    return {txtAktSpieltag, txtSonntag[0], txtSonntag[1], cmdSonntag, cmdAuswerten};
}

}  // namespace kalimbo::ui
