#include "spieltagswahl.h"

#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

Spieltagswahl::Spieltagswahl(QWidget* eltern) : QWidget(eltern) {
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        auto* wahl = element<KlickLabel>(this, indexName("lblSpieltagWahl", tag),
                                         rechteck(tag * 395 + 100, 90, 375, 255));
        wahl->setText(QString::number(tag + 1));
        wahl->setAlignment(Qt::AlignCenter);
        wahl->setFrameStyle(QFrame::Box | QFrame::Plain);
        wahl->setCursor(Qt::PointingHandCursor);
        setzeFarben(wahl, Hellgelb, Qt::black);
        connect(wahl, &KlickLabel::geklickt, this, [this, tag] { emit spieltagGeklickt(tag); });
        lblSpieltagWahl[tag] = wahl;

        auto* auswahl =
            element<KlickLabel>(this, indexName("lblAuswahl", tag), rechteck(tag * 395 + 100, 360, 375, 105));
        setzeFarben(auswahl, Auswahlfarbe, QColor(160, 160, 160));  // the outline shows where to click
        auswahl->setAutoFillBackground(false);                      // transparent: not selected
        auswahl->setFrameStyle(QFrame::Box | QFrame::Plain);
        auswahl->setToolTip(QStringLiteral(" diesen Spieltag auswerten "));
        auswahl->setCursor(Qt::PointingHandCursor);
        connect(auswahl, &KlickLabel::geklickt, this, [this, tag] { emit auswahlGeklickt(tag); });
        lblAuswahl[tag] = auswahl;
    }
    resize(px(MaxSpieltage * 395 + 100), px(480));
    hebeHervor(Spielstand());
}

void Spieltagswahl::zeige(const Spielstand& spiel) {
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        const bool inSaison = tag <= spiel.getAnzSpieltage();
        lblSpieltagWahl[tag]->setVisible(inSaison);
        lblAuswahl[tag]->setVisible(inSaison);
        lblAuswahl[tag]->setAutoFillBackground(spiel.getSptgAuswerten(tag) == 1);
    }
}

void Spieltagswahl::zeigeAuswahl(const Spielstand& spiel, const std::bitset<MaxSpieltage>& geaendert) {
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        if (geaendert[static_cast<std::size_t>(tag)])
            lblAuswahl[tag]->setAutoFillBackground(spiel.getSptgAuswerten(tag) == 1);
}

// Only the labels whose look changes are touched (as a rule the one shown before and the new one).
void Spieltagswahl::hebeHervor(const Spielstand& spiel) {
    pruefeIndex(spiel.getAktSpieltag(), MaxSpieltage);
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        KlickLabel* l = lblSpieltagWahl[tag];
        const bool hervor = tag == spiel.getAktSpieltag();
        if (l->font().bold() == hervor) continue;
        setzeFarben(l, hervor ? Rot : Hellgelb, hervor ? Qt::white : Qt::black);
        setzeFett(l, hervor);
    }
}

}  // namespace kalimbo::ui
