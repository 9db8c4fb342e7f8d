#include "blitztabelle.h"

#include <QTime>

#include "ui/bausteine/farben.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

namespace {

struct Spalte {
    int links, breite;
    const char* kopf;
    Qt::Alignment ausrichtung;
};
constexpr Spalte Platz{120, 330, "Pl.", Qt::AlignCenter};
constexpr Spalte Name{510, 2280, "Mannschaft", Qt::AlignLeft | Qt::AlignVCenter};
constexpr Spalte Punkte{2850, 480, "Pkt.", Qt::AlignRight | Qt::AlignVCenter};
constexpr Spalte Tore{3390, 690, "Tore", Qt::AlignCenter};
constexpr Spalte Differenz{4140, 480, "Diff.", Qt::AlignRight | Qt::AlignVCenter};
constexpr Spalte Siege{4740, 360, "S", Qt::AlignRight | Qt::AlignVCenter};
constexpr Spalte Un{5160, 360, "U", Qt::AlignRight | Qt::AlignVCenter};
constexpr Spalte Niederlagen{5580, 360, "N", Qt::AlignRight | Qt::AlignVCenter};
constexpr int ErsteZeile = 480;
constexpr int Zeilenhoehe = 240;

template <class L>
L* zelle(QWidget* eltern, const char* name, int zeile, const Spalte& s) {
    auto* l = new L(eltern);
    l->setObjectName(QStringLiteral("%1_%2").arg(name).arg(zeile));
    l->setGeometry(rechteck(s.links, ErsteZeile + zeile * Zeilenhoehe, s.breite, Zeilenhoehe));
    l->setAlignment(s.ausrichtung);
    return l;
}

QString text(const TabInfo& info) {
    if (const auto* zahl = std::get_if<i16>(&info)) return QString::number(*zahl);
    if (const auto* s = std::get_if<std::string>(&info)) return QString::fromStdString(*s);
    return {};
}

}  // namespace

QString positionsHinweis(Farbe farbe) {
    switch (farbe) {
        case rgb(255, 0, 0):
            return QStringLiteral("Meister");
        case rgb(245, 183, 35):
            return QStringLiteral("Champions-League-Platz");
        case rgb(255, 204, 51):
            return QStringLiteral("Champions-League-Qualifikation");
        case rgb(255, 255, 0):
            return QStringLiteral("UEFA-Pokal-Platz");
        case rgb(255, 255, 192):
            return QStringLiteral("Mittelmaß");
        case rgb(255, 255, 255):
            return QStringLiteral("Abstiegsplatz");
        default:
            return {};
    }
}

Blitztabelle::Blitztabelle(QWidget* eltern) : QGroupBox(QStringLiteral("Blitztabelle"), eltern) {
    setObjectName(QStringLiteral("fraBlitztabelle"));
    for (const Spalte* s : {&Platz, &Name, &Punkte, &Tore, &Differenz, &Siege, &Un, &Niederlagen}) {
        auto* kopf = new QLabel(QString::fromUtf8(s->kopf), this);
        kopf->setGeometry(rechteck(s->links, ErsteZeile - Zeilenhoehe, s->breite, Zeilenhoehe));
        kopf->setAlignment(s->ausrichtung);
        QFont f = kopf->font();
        f.setBold(true);
        kopf->setFont(f);
    }
    for (int z = 0; z < MaxTeams; ++z) {
        lblTabellenplatz[z] = zelle<QLabel>(this, "lblTabellenplatz", z, Platz);
        lblTabellenplatz[z]->setText(QString::number(z + 1));
        lblTabName[z] = zelle<KlickLabel>(this, "lblTabName", z, Name);
        lblTabName[z]->setCursor(Qt::PointingHandCursor);
        connect(lblTabName[z], &KlickLabel::geklickt, this, [this, z] { emit teamGeklickt(z); });
        lblTabPunkte[z] = zelle<QLabel>(this, "lblTabPunkte", z, Punkte);
        lblTabTore[z] = zelle<QLabel>(this, "lblTabTore", z, Tore);
        lblTabDifferenz[z] = zelle<QLabel>(this, "lblTabDifferenz", z, Differenz);
        lblTabSiege[z] = zelle<QLabel>(this, "lblTabSiege", z, Siege);
        lblTabUn[z] = zelle<QLabel>(this, "lblTabUn", z, Un);
        lblTabNiederlagen[z] = zelle<QLabel>(this, "lblTabNiederlagen", z, Niederlagen);
    }
}

void Blitztabelle::zeigeZeile(int z, bool sichtbar) {
    for (QLabel* l : {lblTabellenplatz[z], static_cast<QLabel*>(lblTabName[z]), lblTabPunkte[z],
                      lblTabTore[z], lblTabDifferenz[z], lblTabSiege[z], lblTabUn[z], lblTabNiederlagen[z]})
        l->setVisible(sichtbar);
}

void Blitztabelle::wendeSpielAn(const Spielstand& spiel) {
    for (int z = 0; z < 18; ++z) {
        lblTabName[z]->setText(QString::fromStdString(spiel.getTeamName(z)));
        for (QLabel* l : {lblTabPunkte[z], lblTabTore[z], lblTabDifferenz[z], lblTabSiege[z], lblTabUn[z],
                          lblTabNiederlagen[z]})
            l->clear();
    }
    for (int z = 0; z < MaxTeams; ++z)
        zeigeZeile(z, false);
    for (int z = 0; z <= spiel.getAnzTeams(); ++z) {
        const Farbe farbe = spiel.getTabFarbe(z);
        setzeFarben(lblTabellenplatz[z], qfarbe(farbe), Qt::black);
        zeigeZeile(z, true);
        // A colour without a hint leaves the hint the position had before.
        if (const QString hinweis = positionsHinweis(farbe); !hinweis.isEmpty())
            lblTabellenplatz[z]->setToolTip(hinweis);
    }
}

void Blitztabelle::zeige(const Spielstand& spiel, const QString& anlass) {
    for (int t = 0; t <= spiel.getAnzTeams(); ++t) {
        const int z = static_cast<int>(pruefeIndex(std::get<i16>(spiel.getTabInfo(t, 0)), MaxTeams));
        lblTabellenplatz[z]->setText(QString::number(z + 1));
        lblTabName[z]->setText(text(spiel.getTabInfo(t, 1)));
        lblTabPunkte[z]->setText(text(spiel.getTabInfo(t, 2)));
        lblTabTore[z]->setText(text(spiel.getTabInfo(t, 3)));
        lblTabDifferenz[z]->setText(text(spiel.getTabInfo(t, 4)));
        lblTabSiege[z]->setText(text(spiel.getTabInfo(t, 5)));
        lblTabUn[z]->setText(text(spiel.getTabInfo(t, 6)));
        lblTabNiederlagen[z]->setText(text(spiel.getTabInfo(t, 7)));
    }
    setTitle(QStringLiteral("Blitztabelle [%1, %2]")
                 .arg(anlass, QTime::currentTime().toString(QStringLiteral("HH:mm:ss"))));
}

}  // namespace kalimbo::ui
