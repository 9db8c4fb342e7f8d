#include "tipptabellen.h"

#include "ui/bausteine/beschriftung.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/twips.h"
#include "ui/bausteine/zahlenlabel.h"

namespace kalimbo::ui {

namespace {

constexpr auto Links = Qt::AlignLeft | Qt::AlignVCenter;
constexpr auto Rechts = Qt::AlignRight | Qt::AlignVCenter;

template <class L>
L* zelle(QWidget* eltern, const char* name, int zeile, int links, int breite, Qt::Alignment ausrichtung) {
    auto* l = element<L>(eltern, indexName(name, zeile), rechteck(links, 480 + 240 * zeile, breite, 240));
    l->setAlignment(ausrichtung);
    return l;
}

QLabel* ueberschrift(QWidget* eltern, const QString& name, const QString& text, int links) {
    auto* l = element<QLabel>(eltern, name, rechteck(links, 240, 1800, 240));
    l->setText(text);
    l->setAlignment(Links);
    setzeFett(l, true);
    return l;
}

}  // namespace

Tipptabellen::Tipptabellen(QWidget* eltern) : QGroupBox(QStringLiteral("Tipptabellen"), eltern) {
    setObjectName(QStringLiteral("fraTabelle"));
    lblSptgstabelle =
        ueberschrift(this, QStringLiteral("lblSptgstabelle"), QStringLiteral("Spieltag 1"), 120);
    ueberschrift(this, QStringLiteral("lblGesamttabelleKopf"), QStringLiteral("Gesamt"), 1980);
    for (int z = 0; z < MaxSpieler; ++z) {
        lblSptgTabelle[z] = zelle<Beschriftung>(this, "lblSptgTabelle", z, 120, 1320, Links);
        lblSptgTabellePkt[z] = zelle<Zahlenlabel>(this, "lblSptgTabellePkt", z, 1440, 420, Rechts);
        lblGesamttabelle[z] = zelle<Beschriftung>(this, "lblGesamttabelle", z, 1980, 1320, Links);
        lblGesamttabellePkt[z] = zelle<Zahlenlabel>(this, "lblGesamttabellePkt", z, 3300, 420, Rechts);
    }
}

void Tipptabellen::zeige(const Spielstand& spiel) {
    const int m = spiel.getAktSpieltag();
    for (int p = 0; p < MaxSpieler; ++p) {
        const SpielerAuswertung& r = spiel.Auswertung[p];
        const auto s = pruefeIndex(r.SptgSortierplatz[m], MaxSpieler);
        const auto g = pruefeIndex(r.Sortierplatz, MaxSpieler);
        const bool spielt = spiel.getTeilnehmer(p) == 1;
        lblSptgTabellePkt[s]->setZahl(spiel.getSpieltagPunkte(p, m));
        if (spielt) {
            const QString name = QStringLiteral("  ") + text(spiel.getSpielerName(p));
            lblSptgTabelle[s]->setText(name);  // unchanged text costs no repaint
            lblGesamttabelle[g]->setText(name);
            lblGesamttabellePkt[g]->setZahl(spiel.getGesamtPunkte(p));
        }
        for (QLabel* l : std::initializer_list<QLabel*>{lblSptgTabelle[s], lblSptgTabellePkt[s],
                                                        lblGesamttabelle[g], lblGesamttabellePkt[g]})
            l->setVisible(spielt);
    }
    lblSptgstabelle->setText(QStringLiteral("Spieltag %1").arg(m + 1));
}

}  // namespace kalimbo::ui
