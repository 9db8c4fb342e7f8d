#include "frmueber.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "state/produkt.h"

namespace kalimbo::ui {

namespace {

const QString Funktionen = QStringLiteral(
    "Kalimbo verwaltet ein Fußball-Tippspiel über eine Saison mit bis zu neun Tippern:\n"
    "• Ergebnisse und Tipps eingeben, auch Tor für Tor während der Spiele\n"
    "• Auswertung nach der 2-Punkte-, 3-Punkte-, 3-2-1- oder einer eigenen Regel\n"
    "• Spieltags- und Gesamtwertung der Tipper, Blitztabelle der Liga\n"
    "• Auskunft über Spieler und Mannschaften, Punkteverlauf als Grafik\n"
    "• Simulation der Tabelle nach den Tipps jedes Spielers\n"
    "• Häufigkeiten der Ergebnisse und Tipps\n"
    "• Spieltage drucken oder als PDF und HTML speichern");

QLabel* zeile(QWidget* eltern, const char* name, const QString& text) {
    auto* l = new QLabel(text, eltern);
    l->setObjectName(QString::fromUtf8(name));
    return l;
}

}  // namespace

frmUeber::frmUeber(QWidget* eltern) : QDialog(eltern) {
    setObjectName(QStringLiteral("frmÜber"));
    setWindowTitle(QStringLiteral("Über Kalimbo"));
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(24, 20, 24, 16);  // the text keeps clear of the edge
    QLabel* produkt = zeile(this, "lblProdukt", QString::fromUtf8(Produktname));
    QFont gross = produkt->font();
    gross.setPointSizeF(gross.pointSizeF() * 2);
    gross.setBold(true);
    produkt->setFont(gross);
    spalte->addWidget(produkt);
    spalte->addWidget(zeile(this, "lblVersion", QString::fromUtf8(Versionszeile)));
    spalte->addSpacing(12);
    spalte->addWidget(zeile(this, "lblFunktionen", Funktionen));
    spalte->addSpacing(12);
    spalte->addWidget(
        zeile(this, "lblQt", QStringLiteral("Läuft mit Qt %1").arg(QString::fromUtf8(qVersion()))));
    spalte->addWidget(
        zeile(this, "lblHilfe", QStringLiteral("Hilfe und Kontakt: siehe README.md des Projekts")));
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    QPushButton* ok = knoepfe->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setText(QStringLiteral("OK"));
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    spalte->addWidget(knoepfe);
    spalte->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace kalimbo::ui
