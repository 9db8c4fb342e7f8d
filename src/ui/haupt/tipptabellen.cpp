#include "tipptabellen.h"

#include <QLabel>

#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

namespace {

QLabel* label(QWidget* eltern, const QString& name, const QRect& ort, Qt::Alignment ausrichtung) {
    auto* l = new QLabel(eltern);
    l->setObjectName(name);
    l->setGeometry(ort);
    l->setAlignment(ausrichtung);
    return l;
}

QLabel* ueberschrift(QWidget* eltern, const QString& name, const QString& text, int links) {
    QLabel* l = label(eltern, name, rechteck(links, 240, 1800, 240), Qt::AlignLeft | Qt::AlignVCenter);
    l->setText(text);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    return l;
}

}  // namespace

Tipptabellen::Tipptabellen(QWidget* eltern) : QGroupBox(QStringLiteral("Tipptabellen"), eltern) {
    setObjectName(QStringLiteral("fraTabelle"));
    lblSptgstabelle =
        ueberschrift(this, QStringLiteral("lblSptgstabelle"), QStringLiteral("Spieltag 1"), 120);
    ueberschrift(this, QStringLiteral("lblGesamttabelleKopf"), QStringLiteral("Gesamt"), 1980);
    const auto links = Qt::AlignLeft | Qt::AlignVCenter;
    const auto rechts = Qt::AlignRight | Qt::AlignVCenter;
    for (int z = 0; z < MaxSpieler; ++z) {
        const int oben = 480 + 240 * z;
        const QString n = QString::number(z);
        lblSptgTabelle[z] = label(this, "lblSptgTabelle_" + n, rechteck(120, oben, 1320, 240), links);
        lblSptgTabellePkt[z] = label(this, "lblSptgTabellePkt_" + n, rechteck(1440, oben, 420, 240), rechts);
        lblGesamttabelle[z] = label(this, "lblGesamttabelle_" + n, rechteck(1980, oben, 1320, 240), links);
        lblGesamttabellePkt[z] =
            label(this, "lblGesamttabellePkt_" + n, rechteck(3300, oben, 420, 240), rechts);
    }
}

}  // namespace kalimbo::ui
