#include "hauptmenue.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace kalimbo::ui {

namespace {

template <class Eltern>  // QMenuBar or QMenu
QMenu* menue(Eltern* eltern, const char* name, const QString& titel) {
    QMenu* m = eltern->addMenu(titel);
    m->setObjectName(QString::fromUtf8(name));
    return m;
}

QAction* eintrag(QMenu* m, const QString& name, const QString& titel, const QKeySequence& taste = {}) {
    QAction* a = m->addAction(titel);
    a->setObjectName(name);
    a->setShortcut(taste);
    return a;
}

QAction* haken(QMenu* m, const QString& name, const QString& titel) {
    QAction* a = eintrag(m, name, titel);
    a->setCheckable(true);
    return a;
}

}  // namespace

Hauptmenue baueHauptmenue(QMenuBar* leiste) {
    Hauptmenue h{};
    QMenu* datei = menue(leiste, "menDatei", QStringLiteral("&Datei"));
    datei->setToolTipsVisible(true);  // the recent files show their full path
    h.menNeuAusSpielplan =
        eintrag(datei, "menNeuAusSpielplan", QStringLiteral("Neu aus Spielplan…"), QKeySequence::New);
    h.menOeffnen = eintrag(datei, "menOeffnen", QStringLiteral("Öffnen"), QKeySequence::Open);
    h.menSpeichern = eintrag(datei, "menSpeichern", QStringLiteral("Speichern"), QKeySequence::Save);
    QMenu* importieren = menue(datei, "menImportieren", QStringLiteral("Importieren"));
    h.menTippdatei = eintrag(importieren, "menTippdatei", QStringLiteral("Tippdatei"));
    h.menImpTrainer = eintrag(importieren, "menImpTrainer", QStringLiteral("Trainerwechsel-Daten"));
    h.menImpErgebnisse = eintrag(importieren, "menImpErgebnisse", QStringLiteral("Ergebnisse…"));
    QMenu* exportieren = menue(datei, "menExportieren", QStringLiteral("Exportieren"));
    h.menHTML = eintrag(exportieren, "menHTML", QStringLiteral("HTML-Datei"));
    h.menHTML->setEnabled(false);  // there is no HTML export; the item is kept for familiarity
    h.menBericht = eintrag(exportieren, "menBericht",
                           QStringLiteral("Mannschafts-/Spielerinformationen als Textdatei [*.txt]"));
    h.menDrucken = eintrag(datei, "menDrucken", QStringLiteral("Drucken"), QKeySequence::Print);
    datei->addSeparator();
    for (int i = 0; i < 3; ++i)
        h.menRecent[i] =
            eintrag(datei, QStringLiteral("menRecent_%1").arg(i + 1), QStringLiteral("Recent_%1").arg(i + 1));
    datei->addSeparator();
    h.menBeenden = eintrag(datei, "menBeenden", QStringLiteral("Beenden"), QKeySequence::Quit);

    QMenu* bearbeiten = menue(leiste, "menBearbeiten", QStringLiteral("&Bearbeiten"));
    QMenu* sptgAW = menue(bearbeiten, "menSptgAW", QStringLiteral("Spieltage auswählen"));
    h.menSptgAlle = eintrag(sptgAW, "menSptgAlle", QStringLiteral("Alle"));
    h.menSptgKeinen = eintrag(sptgAW, "menSptgKeinen", QStringLiteral("Keine"));
    h.menSptgHinrunde = eintrag(sptgAW, "menSptgHinrunde", QStringLiteral("Hinrunde"));
    h.menSptgRueckrunde = eintrag(sptgAW, QStringLiteral("menSptgRückrunde"), QStringLiteral("Rückrunde"));
    h.menSptgAlleAbsolv = eintrag(sptgAW, "menSptgAlleAbsolv", QStringLiteral("Alle absolvierten"));
    h.menSptgAlleAbsolvRueck = eintrag(sptgAW, QStringLiteral("menSptgAlleAbsolvRück"),
                                       QStringLiteral("Alle absolvierten der Rückrunde"));
    h.menTrainerwechsel = menue(sptgAW, "menTrainerwechsel", QStringLiteral("Trainerwechsel"));
    for (int i = 0; i < 10; ++i) {
        h.menDieserTrainer[i] =
            eintrag(h.menTrainerwechsel, QStringLiteral("menDieserTrainer_%1").arg(i), QString());
        h.menDieserTrainer[i]->setVisible(i == 0);
    }
    h.menDieserTrainer[0]->setText(QStringLiteral("noch keine Trainerwechsel"));
    h.menDieserTrainer[0]->setEnabled(false);
    QMenu* letzten = menue(sptgAW, "menDieLetzten", QStringLiteral("die letzten"));
    const std::array<const char*, 5> zahlwoerter{"drei", "sechs", "zehn", "siebzehn", "vierundzwanzig"};
    for (std::size_t i = 0; i < zahlwoerter.size(); ++i)
        h.menSptgLetzten[i] =
            eintrag(letzten, QStringLiteral("menSptgLetzten_%1").arg(Hauptmenue::LetzteAnzahlen[i]),
                    QString::fromUtf8(zahlwoerter[i]));
    QMenu* modus = menue(bearbeiten, "menModus", QStringLiteral("Modus"));
    h.menReg321 = haken(modus, "menReg321", QStringLiteral("3-2-1-Regel"));
    h.menReg3 = haken(modus, "menReg3", QStringLiteral("3-Punkte-Regel"));
    h.menReg2 = haken(modus, "menReg2", QStringLiteral("2-Punkte-Regel"));
    h.menRegEigene = haken(modus, "menRegEigene", QStringLiteral("Eigene Regel erstellen/verwenden"));
    h.menSpielerAe =
        eintrag(bearbeiten, QStringLiteral("menSpielerAe"), QStringLiteral("Spielerdaten ändern"));
    h.menAuswerten = eintrag(bearbeiten, "menAuswerten", QStringLiteral("auswerten"), Qt::Key_F5);

    QMenu* ansicht = menue(leiste, "menAnsicht", QStringLiteral("&Ansicht"));
    h.menNormal = haken(ansicht, "menNormal", QStringLiteral("Normal"));
    h.menNormal->setChecked(true);
    h.menGrafik = eintrag(ansicht, "menGrafik", QStringLiteral("Grafik"));
    h.menSimulation = eintrag(ansicht, "menSimulation", QStringLiteral("Simulation"));
    h.menHaeufigkeiten = eintrag(ansicht, QStringLiteral("menHäufigkeiten"), QStringLiteral("Häufigkeiten"));

    QMenu* hilfe = menue(leiste, "menHilfe", QStringLiteral("&Hilfe"));
    h.menUeber = eintrag(hilfe, QStringLiteral("menÜber"), QStringLiteral("Über"));
    return h;
}

void zeigeRegelhaken(const Hauptmenue& menue, i16 modus) {
    const std::array<QAction*, 4> haken{menue.menReg2, menue.menReg3, menue.menReg321, menue.menRegEigene};
    for (std::size_t i = 0; i < haken.size(); ++i)
        haken[i]->setChecked(static_cast<int>(i) == modus);
}

void zeigeTrainermenue(const Hauptmenue& menue, const Spielstand& spiel) {
    for (int i = 0; i < 10; ++i) {
        const Trainerdaten& t = spiel.Trainerwechsel[i];
        QAction* eintrag = menue.menDieserTrainer[static_cast<std::size_t>(i)];
        eintrag->setVisible(i == 0 || t.Aktiv != 0);
        eintrag->setEnabled(t.Aktiv != 0);
        eintrag->setText(i == 0 && t.Aktiv == 0 && t.Name.empty()
                             ? QStringLiteral("noch keine Trainerwechsel")
                             : QString::fromStdString(t.Name));
    }
}

void zeigeZuletzt(const Hauptmenue& menue, const ZuletztListe& liste) {
    for (std::size_t i = 0; i < menue.menRecent.size(); ++i) {
        const ZuletztListe::Eintrag& e = liste.eintraege[i];
        QAction* eintrag = menue.menRecent[i];
        eintrag->setText(QString(e.titel).replace(QLatin1Char('&'), QStringLiteral("&&")));
        eintrag->setToolTip(e.pfad);
        eintrag->setVisible(!e.pfad.isEmpty());
    }
}

}  // namespace kalimbo::ui
