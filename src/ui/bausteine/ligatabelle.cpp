#include "ligatabelle.h"

#include <QApplication>
#include <algorithm>

#include "elemente.h"
#include "farben.h"
#include "klicklabel.h"
#include "reports/haeufigkeiten.h"
#include "twips.h"

namespace kalimbo::ui {

namespace {

struct Spalte {
    const char* name;
    int links, breite;
    const char* kopf;
    Qt::Alignment ausrichtung;
};
constexpr auto Rechts = Qt::AlignRight | Qt::AlignVCenter;
constexpr std::array<Spalte, 8> Spalten{{
    {"lblTabellenplatz", 120, 330, "Pl.", Qt::AlignCenter},
    {"lblTabName", 510, 2280, "Mannschaft", Qt::AlignLeft | Qt::AlignVCenter},
    {"lblTabPunkte", 2850, 480, "Pkt.", Rechts},
    {"lblTabTore", 3390, 690, "Tore", Qt::AlignCenter},
    {"lblTabDifferenz", 4140, 480, "Diff.", Rechts},
    {"lblTabSiege", 4740, 360, "S", Rechts},
    {"lblTabUn", 5160, 360, "U", Rechts},
    {"lblTabNiederlagen", 5580, 360, "N", Rechts},
}};
constexpr int ErsteZeile = 240;
constexpr int Zeilenhoehe = 240;

QString zelle(const TabInfo& info) {
    if (const auto* zahl = std::get_if<i16>(&info)) return QString::number(*zahl);
    if (const auto* s = std::get_if<std::string>(&info)) return text(*s);
    return {};
}

}  // namespace

Ligatabelle::Ligatabelle(QWidget* eltern, int ersterIndex) : QWidget(eltern) {
    std::array<std::array<QLabel*, MaxTeams>*, 8> spalten{&lblTabellenplatz, nullptr,           &lblTabPunkte,
                                                          &lblTabTore,       &lblTabDifferenz,  &lblTabSiege,
                                                          &lblTabUn,         &lblTabNiederlagen};
    for (std::size_t s = 0; s < Spalten.size(); ++s) {
        const Spalte& sp = Spalten[s];
        auto* kopf = element<QLabel>(this, QString(), rechteck(sp.links, 0, sp.breite, Zeilenhoehe));
        kopf->setText(QString::fromUtf8(sp.kopf));
        kopf->setAlignment(sp.ausrichtung);
        setzeFett(kopf, true);
        for (int z = 0; z < MaxTeams; ++z) {
            const QRect ort = rechteck(sp.links, ErsteZeile + z * Zeilenhoehe, sp.breite, Zeilenhoehe);
            const QString name = indexName(sp.name, ersterIndex + z);
            QLabel* l = nullptr;
            if (spalten[s]) {
                l = (*spalten[s])[z] = element<QLabel>(this, name, ort);
            } else {
                auto* klick = element<KlickLabel>(this, name, ort);
                klick->setCursor(Qt::PointingHandCursor);
                connect(klick, &KlickLabel::geklickt, this, [this, z] { emit nameGeklickt(z); });
                connect(klick, &KlickLabel::betreten, this, [this, z] { emit nameBetreten(z); });
                l = lblTabName[z] = klick;
            }
            l->setAlignment(sp.ausrichtung);
        }
    }
    leereZeilen();
    resize(px(Spalten.back().links + Spalten.back().breite), px(ErsteZeile + MaxTeams * Zeilenhoehe));
}

std::array<QLabel*, 8> Ligatabelle::zeile(int z) const {
    return {lblTabellenplatz[z], lblTabName[z],  lblTabPunkte[z], lblTabTore[z],
            lblTabDifferenz[z],  lblTabSiege[z], lblTabUn[z],     lblTabNiederlagen[z]};
}

void Ligatabelle::setzeZeile(int z, const Zellen& zellen) {
    const auto labels = zeile(static_cast<int>(pruefeIndex(z, MaxTeams)));
    for (std::size_t s = 0; s < labels.size(); ++s)
        labels[s]->setText(zellen[s]);
    m_gezeigt[static_cast<std::size_t>(z)].reset();
}

void Ligatabelle::leereZeilen() {
    for (int z = 0; z < MaxTeams; ++z)
        setzeZeile(z, {QString::number(z + 1)});
}

void Ligatabelle::fuelle(const Spielstand& spiel) {
    for (int t = 0; t <= spiel.getAnzTeams(); ++t) {
        const auto z = pruefeIndex(std::get<i16>(spiel.getTabInfo(t, 0)), MaxTeams);
        const Gezeigt neu{t, spiel.Tabelle[t]};
        if (m_gezeigt[z] && m_gezeigt[z]->team == t && m_gezeigt[z]->zeile == neu.zeile) continue;
        setzeZeile(static_cast<int>(z), tabellenzellen(spiel, t));
        m_gezeigt[z] = neu;
    }
}

void Ligatabelle::zeigeZeilen(int anzahl) {
    for (int z = 0; z < MaxTeams; ++z)
        for (QLabel* l : zeile(z))
            l->setVisible(z < anzahl);
}

void Ligatabelle::setzePlatzfarbe(int z, Farbe farbe, std::string_view hinweis) {
    QLabel* platz = lblTabellenplatz[pruefeIndex(z, MaxTeams)];
    setzeFarben(platz, qfarbe(farbe), Qt::black);
    if (!hinweis.empty())
        platz->setToolTip(QString::fromUtf8(hinweis.data(), static_cast<qsizetype>(hinweis.size())));
}

void Ligatabelle::faerbeZeile(int z, Farbe platzfarbe, bool markiert) {
    static const QColor Silbergrau(192, 192, 192), Hellgrau(224, 224, 224), Markierung(153, 204, 255);
    const auto labels = zeile(static_cast<int>(pruefeIndex(z, MaxTeams)));
    const QColor text = QApplication::palette().color(QPalette::Text);
    // The name on the place's colour, in black or white, whichever reads on it.
    setzeFarben(labels[1], qfarbe(platzfarbe), qfarbe(schriftfarbeAuf(platzfarbe)));
    setzeFett(labels[1], markiert);
    const QColor normal[] = {Dunkelgrau, Silbergrau, Hellgrau, QApplication::palette().color(QPalette::Base)};
    for (std::size_t s = 2; s < labels.size(); ++s) {
        if (markiert)
            setzeFarben(labels[s], Markierung, text);
        else
            setzeFarben(labels[s], normal[std::min<std::size_t>(s - 2, 3)],
                        s == 2 ? QColor(Qt::white) : text);
    }
}

QRect Ligatabelle::zeilenOrt(int z) const {
    return lblTabPunkte[pruefeIndex(z, MaxTeams)]->geometry();
}

namespace {

// The cells from `info(art)`, the figure of kind `art` as getTabInfo gives it.
template <class Info>
Ligatabelle::Zellen zellenAus(const Info& info) {
    Ligatabelle::Zellen zellen;
    zellen[0] = QString::number(plus16(std::get<i16>(info(0)), 1));
    for (int art = 1; art < 8; ++art)
        zellen[static_cast<std::size_t>(art)] = zelle(info(art));
    return zellen;
}

}  // namespace

Ligatabelle::Zellen tabellenzellen(const Spielstand& spiel, int team) {
    return zellenAus([&](int art) { return spiel.getTabInfo(team, art); });
}

Ligatabelle::Zellen tabellenzellen(const Tabellenzeile& zeile) {
    return zellenAus([&](int art) { return tabInfo(zeile, art); });
}

}  // namespace kalimbo::ui
