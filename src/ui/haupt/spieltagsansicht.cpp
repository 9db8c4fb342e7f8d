#include "spieltagsansicht.h"

#include <QCheckBox>
#include <QLabel>

#include "state/zahltext.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/twips.h"
#include "ui/bausteine/zahlenlabel.h"
#include "ui/haupt/bedienfeld.h"

namespace kalimbo::ui {

namespace {

// Layout in twips, inside the frame.
constexpr int ErsteSpielzeile = 720;  // top of match row 0
constexpr int Zeilenhoehe = 360;
constexpr int ErsteSpalte = 4920;  // left of the first player column
constexpr int Spaltenabstand = 960;
constexpr int SpalteOben = 480;  // top of a player column
constexpr int Spaltenbreite = 735;
// A player's name stands over his column as wide as the pitch allows, centred.
constexpr int Kopfbreite = Spaltenabstand - 30, Kopfversatz = (Kopfbreite - Spaltenbreite) / 2;
constexpr auto Links = Qt::AlignLeft | Qt::AlignVCenter;
constexpr auto Rechts = Qt::AlignRight | Qt::AlignVCenter;

bool istErgebnis(const Eingabefeld* feld) {
    return !feld->istTipp();
}

void setzeNormaleFarben(Eingabefeld* feld) {
    if (istErgebnis(feld))
        feld->setzeFarben(Dunkelgrau, Qt::white);
    else
        feld->setzeFarben(Qt::white, Qt::black);
}

// The text of a box as the core reads it; a box holds digits (or "X") only, so one byte a character.
std::string ascii(const QString& text) {
    std::string s;
    s.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar c : text)
        s += static_cast<char>(c.unicode() < 128 ? c.unicode() : '?');
    return s;
}

}  // namespace

Spieltagsansicht::Spieltagsansicht(QWidget* eltern) : QFrame(eltern) {
    setObjectName(QStringLiteral("fraSpiele"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    for (const auto& [titel, x, breite, ausrichtung] :
         {std::tuple{"Heim", 120, 1830, QFlags(Rechts)}, std::tuple{"Gast", 2100, 1860, QFlags(Links)},
          std::tuple{"Ergebnis", 4020, 795, QFlags(Qt::AlignCenter)}}) {
        auto* kopf = element<QLabel>(this, QString(), rechteck(x, 480, breite, 240));
        kopf->setText(QString::fromUtf8(titel));
        kopf->setAlignment(ausrichtung);
        setzeFett(kopf, true);
    }
    for (int j = 0; j < 2; ++j) {
        QFrame* rahmen = shpSonntag[j] = element<QFrame>(this, indexName("shpSonntag", j),
                                                         rechteck(60, ErsteSpielzeile, 4755, Zeilenhoehe));
        rahmen->setFrameStyle(QFrame::Box | QFrame::Plain);
        rahmen->setLineWidth(2);
        rahmen->setStyleSheet(QStringLiteral("color: rgb(0, 0, 179);"));
        rahmen->setAttribute(Qt::WA_TransparentForMouseEvents);
        rahmen->hide();
    }
    for (int k = 0; k < MaxSpiele; ++k)
        erzeugeSpiel(k);
    linTrenn = element<QFrame>(this, QStringLiteral("linTrenn"), rechteck(4845, 480, 30, 4320 - 480));
    linTrenn->setFrameStyle(QFrame::VLine | QFrame::Sunken);
    lblSptgZeile = element<QLabel>(this, QStringLiteral("lblSptgZeile"), rechteck(3000, 4320, 1800, 240));
    lblSptgZeile->setText(QStringLiteral("Spieltag:"));
    lblGesamtZeile = element<QLabel>(this, QStringLiteral("lblGesamtZeile"), rechteck(3000, 4560, 1800, 240));
    lblGesamtZeile->setText(QStringLiteral("Gesamt:"));
    for (QLabel* l : {lblSptgZeile, lblGesamtZeile}) {
        l->setAlignment(Rechts);
        l->setToolTip(QStringLiteral("Punkte und Platz"));
    }
    chkSonntag = element<QCheckBox>(this, QStringLiteral("chkSonntag"), rechteck(120, 4440, 2850, 300));
    chkSonntag->setText(QStringLiteral("Sonntagsspiele nicht auswerten"));
    chkSonntag->hide();
    for (int p = 0; p < MaxSpieler; ++p)
        erzeugeSpielerspalte(p);
    m_bedienfeld = new Bedienfeld(this);
    m_bedienfeld->move(px(13560), px(480));
    setzeTabfolge();
}

Eingabefeld* Spieltagsansicht::eingabefeld(QWidget* eltern, const char* name, int index,
                                           Eingabefeld::Art art) {
    auto* feld = new Eingabefeld(eltern, art);
    feld->setObjectName(indexName(name, index));
    connect(feld, &Eingabefeld::bearbeitungBeginnt, this, [this, feld] { feld_GotFocus(feld); });
    connect(feld, &Eingabefeld::bearbeitungEndet, this, [this, feld] { feld_LostFocus(feld); });
    connect(feld, &Eingabefeld::geaendert, this, &Spieltagsansicht::bearbeitet);
    connect(feld, &Eingabefeld::ueberlauf, this,
            [this, art, index] { emit ueberlauf(feldname(art, index)); });
    return feld;
}

void Spieltagsansicht::erzeugeSpiel(int k) {
    const int oben = ErsteSpielzeile + k * Zeilenhoehe + 30;
    lblHeimTeam[k] = element<KlickLabel>(this, indexName("lblHeimTeam", k), rechteck(120, oben, 1830, 300));
    lblHeimTeam[k]->setAlignment(Rechts);
    lblStrich[k] = element<QLabel>(this, indexName("lblStrich", k), rechteck(1950, oben, 150, 300));
    lblStrich[k]->setText(QStringLiteral("-"));
    lblStrich[k]->setAlignment(Qt::AlignCenter);
    lblAusTeam[k] = element<KlickLabel>(this, indexName("lblAusTeam", k), rechteck(2100, oben, 1860, 300));
    lblAusTeam[k]->setAlignment(Links);
    for (int seite = 0; seite < 2; ++seite) {
        KlickLabel* team = seite == 0 ? lblHeimTeam[k] : lblAusTeam[k];
        team->setCursor(Qt::PointingHandCursor);
        team->setToolTip(QStringLiteral("Klick: ein Tor für diese Mannschaft"));
        connect(team, &KlickLabel::geklickt, this, [this, k, seite] { emit teamGeklickt(k, seite); });
    }
    txtHeimErgebnis[k] = eingabefeld(this, "txtHeimErgebnis", k, Eingabefeld::HeimErgebnis);
    txtHeimErgebnis[k]->setGeometry(rechteck(4080, oben, 315, 300));
    txtAusErgebnis[k] = eingabefeld(this, "txtAusErgebnis", k, Eingabefeld::AusErgebnis);
    txtAusErgebnis[k]->setGeometry(rechteck(4440, oben, 315, 300));
    setzeNormaleFarben(txtHeimErgebnis[k]);
    setzeNormaleFarben(txtAusErgebnis[k]);
}

void Spieltagsansicht::erzeugeSpielerspalte(int p) {
    const int links = ErsteSpalte + p * Spaltenabstand;
    auto* saeule = element<QFrame>(this, indexName("fraSpielerSäule", p),
                                   rechteck(links, SpalteOben, Spaltenbreite, 4380));
    fraSpielerSaeule[p] = saeule;
    lblSpieler[p] = element<KlickLabel>(this, indexName("lblSpieler", p),
                                        rechteck(links - Kopfversatz, SpalteOben, Kopfbreite, 240));
    lblSpieler[p]->setAlignment(Qt::AlignCenter);
    lblSpieler[p]->setCursor(Qt::PointingHandCursor);
    lblSpieler[p]->setToolTip(QStringLiteral("Spielerinformationen anzeigen"));
    setzeFett(lblSpieler[p], true);
    connect(lblSpieler[p], &KlickLabel::geklickt, this, [this, p] { emit spielerGeklickt(p); });
    for (int k = 0; k < MaxSpiele; ++k) {
        const int i = p * MaxSpiele + k;
        const int oben = 240 + k * Zeilenhoehe + 30;
        txtHeimTipp[i] = eingabefeld(saeule, "txtHeimTipp", i, Eingabefeld::HeimTipp);
        txtHeimTipp[i]->setGeometry(rechteck(15, oben, 345, 300));
        txtAusTipp[i] = eingabefeld(saeule, "txtAusTipp", i, Eingabefeld::AusTipp);
        txtAusTipp[i]->setGeometry(rechteck(375, oben, 345, 300));
    }
    auto zahl = [&](const char* name, int links, int oben) {
        auto* l = element<Zahlenlabel>(saeule, indexName(name, p), rechteck(links, oben, 345, 240));
        l->setAlignment(Qt::AlignCenter);
        return l;
    };
    lblSptgPunkte[p] = zahl("lblSptgPunkte", 15, 3840);
    lblSptgPlatz[p] = zahl("lblSptgPlatz", 375, 3840);
    lblGesamtPunkte[p] = zahl("lblGesamtPunkte", 15, 4080);
    lblGesamtPlatz[p] = zahl("lblGesamtPlatz", 375, 4080);
    setzeFett(lblSptgPunkte[p], true);
    setzeFett(lblGesamtPunkte[p], true);
}

// Results down the matches, then each player's column (tip field i: tab positions 2i + 24 and
// 2i + 25), then the controls at the right.
void Spieltagsansicht::setzeTabfolge() {
    QWidget* vorher = nullptr;
    auto weiter = [&vorher](QWidget* w) {
        if (vorher) setTabOrder(vorher, w);
        vorher = w;
    };
    for (std::size_t k = 0; k < MaxSpiele; ++k) {
        weiter(txtHeimErgebnis[k]);
        weiter(txtAusErgebnis[k]);
    }
    for (std::size_t i = 0; i < txtHeimTipp.size(); ++i) {
        weiter(txtHeimTipp[i]);
        weiter(txtAusTipp[i]);
    }
    for (QWidget* w : m_bedienfeld->tabfolge())
        weiter(w);
}

void Spieltagsansicht::zeigeSpielernamen(const Spielstand& spiel) {
    for (int p = 0; p < MaxSpieler; ++p)
        lblSpieler[p]->setText(text(spiel.getSpielerName(p)));
}

void Spieltagsansicht::setzeLayout(const Saisonlayout& layout) {
    const int k = MaxSpiele - 1;
    for (QWidget* w : std::initializer_list<QWidget*>{lblHeimTeam[k], lblAusTeam[k], lblStrich[k],
                                                      txtHeimErgebnis[k], txtAusErgebnis[k]})
        w->setVisible(layout.zehnSpiele);
    for (int p = 0; p < MaxSpieler; ++p) {
        txtHeimTipp[p * MaxSpiele + k]->setVisible(layout.zehnSpiele);
        txtAusTipp[p * MaxSpiele + k]->setVisible(layout.zehnSpiele);
    }
    linTrenn->resize(linTrenn->width(), px(layout.linienende - 480));
    for (int p = 0; p < MaxSpieler; ++p) {
        for (QLabel* l : {lblSptgPunkte[p], lblSptgPlatz[p]})
            l->move(l->x(), px(layout.spieltagOben));
        for (QLabel* l : {lblGesamtPunkte[p], lblGesamtPlatz[p]})
            l->move(l->x(), px(layout.gesamtOben));
    }
    lblSptgZeile->move(lblSptgZeile->x(), px(SpalteOben + layout.spieltagOben));
    lblGesamtZeile->move(lblGesamtZeile->x(), px(SpalteOben + layout.gesamtOben));
}

bool Spieltagsansicht::sonntagsspieleAuslassen() const {
    return chkSonntag->isChecked();
}

void Spieltagsansicht::zeige(const Spielstand& spiel) {
    const int m = spiel.getAktSpieltag();
    const bool sonntag = spiel.getAktSpieltagGlobal() == m;
    chkSonntag->setVisible(sonntag);
    for (int j = 0; j < 2; ++j) {
        if (sonntag)
            shpSonntag[j]->move(shpSonntag[j]->x(),
                                px(plus16(mal16(spiel.SonntagSpiele[j], Zeilenhoehe), ErsteSpielzeile)));
        shpSonntag[j]->setVisible(sonntag);
    }
    zeigeSpiele(spiel, m);
    zeigeSpieler(spiel, m);
    zeigeTipps(spiel, m);
    // A box still being edited keeps its look and now stands for the value just drawn into it.
    if (Eingabefeld* feld = bearbeitetesFeld()) {
        m_wertBeiFokus[feld->art()] = zahlAusText(feld->text().toStdString());
        feld->setzeFarben(Rot, Qt::white);
    }
}

void Spieltagsansicht::zeigeSpiele(const Spielstand& spiel, int m) {
    for (int k = 0; k <= spiel.getAnzSpiele(); ++k) {
        for (int seite = 0; seite < 2; ++seite) {
            const std::string& name = spiel.getTeamName(spiel.getPaarung(m, k, seite));
            std::string& gezeigt = m_teamnamen[static_cast<std::size_t>(k)][static_cast<std::size_t>(seite)];
            if (name == gezeigt) continue;
            gezeigt = name;
            (seite == 0 ? lblHeimTeam : lblAusTeam)[static_cast<std::size_t>(k)]->setText(text(name));
        }
        txtHeimErgebnis[k]->setZahl(spiel.getErgebnis(m, k, 0));
        txtAusErgebnis[k]->setZahl(spiel.getErgebnis(m, k, 1));
        setzeNormaleFarben(txtHeimErgebnis[k]);
        setzeNormaleFarben(txtAusErgebnis[k]);
    }
}

// The participants' columns stand side by side without gaps, whatever their slots.
void Spieltagsansicht::zeigeSpieler(const Spielstand& spiel, int m) {
    int spalte = 0;
    for (int p = 0; p < MaxSpieler; ++p) {
        const bool spielt = spiel.getTeilnehmer(p) == 1;
        fraSpielerSaeule[p]->setVisible(spielt);
        lblSpieler[p]->setVisible(spielt);
        if (!spielt) continue;
        const SpielerAuswertung& r = spiel.Auswertung[p];
        lblSptgPunkte[p]->setZahl(r.SpieltagPunkte[m]);
        lblSptgPlatz[p]->setZahl(plus16(r.SptgPlatz[m], 1));
        lblGesamtPunkte[p]->setZahl(r.GesamtPunkte);
        lblGesamtPlatz[p]->setZahl(plus16(r.Platz, 1));
        const int links = ErsteSpalte + spalte * Spaltenabstand;
        fraSpielerSaeule[p]->move(px(links), fraSpielerSaeule[p]->y());
        lblSpieler[p]->move(px(links - Kopfversatz), lblSpieler[p]->y());
        ++spalte;
    }
}

// Every one of the 90 tip fields, used or not, with the colour of the tip's hit.
void Spieltagsansicht::zeigeTipps(const Spielstand& spiel, int m) {
    for (std::size_t i = 0; i < txtHeimTipp.size(); ++i) {
        const int p = static_cast<int>(i) / MaxSpiele;
        const int k = static_cast<int>(i) % MaxSpiele;
        txtHeimTipp[i]->setZahl(spiel.getTipp(p, m, k, 0));
        txtAusTipp[i]->setZahl(spiel.getTipp(p, m, k, 1));
        const QColor farbe = qfarbe(spiel.getSpielFarbe(p, m, k));
        txtHeimTipp[i]->setzeFarben(farbe, Qt::black);
        txtAusTipp[i]->setzeFarben(farbe, Qt::black);
    }
}

// At most one box is being edited: editing ends when the focus moves to another box.
Eingabefeld* Spieltagsansicht::bearbeitetesFeld() const {
    for (const auto* feld : {&txtHeimErgebnis, &txtAusErgebnis})
        for (Eingabefeld* f : *feld)
            if (f->wirdBearbeitet()) return f;
    for (const auto* feld : {&txtHeimTipp, &txtAusTipp})
        for (Eingabefeld* f : *feld)
            if (f->wirdBearbeitet()) return f;
    return nullptr;
}

std::string Spieltagsansicht::wertVon(const Eingabefeld* feld) const {
    if (feld->wirdBearbeitet() && feld->text().isEmpty()) return std::to_string(m_wertBeiFokus[feld->art()]);
    return ascii(feld->text());
}

QString Spieltagsansicht::feldname(Eingabefeld::Art art, int index) const {
    const int k = index % MaxSpiele;
    const QString spiel = QStringLiteral("„%1 – %2“").arg(lblHeimTeam[k]->text(), lblAusTeam[k]->text());
    const bool heim = art == Eingabefeld::HeimErgebnis || art == Eingabefeld::HeimTipp;
    if (art == Eingabefeld::HeimErgebnis || art == Eingabefeld::AusErgebnis)
        return (heim ? QStringLiteral("das Heimergebnis von ") : QStringLiteral("das Gastergebnis von ")) +
               spiel;
    return QStringLiteral("den %1 von %2 zu %3")
        .arg(heim ? QStringLiteral("Heimtipp") : QStringLiteral("Gasttipp"),
             lblSpieler[index / MaxSpiele]->text(), spiel);
}

Spieltagseintraege Spieltagsansicht::eintraege() const {
    Spieltagseintraege e;
    for (std::size_t k = 0; k < MaxSpiele; ++k) {
        e.heimErgebnis[k] = wertVon(txtHeimErgebnis[k]);
        e.ausErgebnis[k] = wertVon(txtAusErgebnis[k]);
    }
    for (std::size_t i = 0; i < txtHeimTipp.size(); ++i) {
        e.heimTipp[i] = wertVon(txtHeimTipp[i]);
        e.ausTipp[i] = wertVon(txtAusTipp[i]);
    }
    return e;
}

void Spieltagsansicht::feld_GotFocus(Eingabefeld* feld) {
    m_wertBeiFokus[feld->art()] = zahlAusText(feld->text().toStdString());
    feld->clear();
    feld->setzeFarben(Rot, Qt::white);
}

void Spieltagsansicht::feld_LostFocus(Eingabefeld* feld) {
    if (feld->text().isEmpty()) feld->setText(QString::number(m_wertBeiFokus[feld->art()]));
    setzeNormaleFarben(feld);
}

}  // namespace kalimbo::ui
