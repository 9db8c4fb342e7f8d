// Every open window follows the game: after another game is opened or an evaluation, each shows the
// game as it now is, keeps the user's choices where they still fit, and is neither shown nor
// raised if it was closed. The editing windows keep unconfirmed edits, and close when the game is
// replaced.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "graph/punktegrafik.h"
#include "hauptfenster.h"
#include "reports/haeufigkeiten.h"
#include "simulation/abweichung.h"
#include "simulation/vorhersage.h"
#include "ui/bausteine/zeichenflaeche.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

namespace {

// Whether the grid of frmHäufigkeiten shows the counts of the game as it now is.
bool rasterZeigtDasSpiel(const Hauptfenster& h) {
    const Haeufigkeiten haeufigkeiten = zaehleHaeufigkeiten(h.spiel());
    for (int k = 0; k < AnzErgebnisklassen; ++k)
        if (h.label("lblErgebnis", k)->text() != QString::number(haeufigkeiten.anzahl(k))) return false;
    return true;
}

// The deviation report of `spieler` as the simulation's text box shows it.
QString bericht(const Spielstand& spiel, i16 spieler) {
    const std::string komma = QLocale().decimalPoint().toStdString();
    return QString::fromStdString(
               abweichungsbericht(spiel, spieler, vorhergesagteTabelle(spiel, spieler), komma))
        .replace("\r\n", "\n");
}

}  // namespace

class HauptFolgenTest : public QObject {
    Q_OBJECT

  private slots:
    // Another game (20 teams, Bernd not taking part) replaces the small one while every window is
    // open: each shows the new game only; Drucken keeps matchday 34, Simulation falls back to
    // player 0 from Bernd, Grafik keeps Anna's hidden marks; the closed Häufigkeiten stays closed.
    void offeneFensterZeigenDasNeueSpiel() {
        Hauptfenster h(kleinesSpiel());
        for (const char* menue : {"menHäufigkeiten", "menDrucken", "menSimulation", "menGrafik"})
            h.aktion(QString::fromUtf8(menue))->trigger();
        h.kind<QComboBox>("cmbSpieltag")->setCurrentIndex(33);
        h.kind<QComboBox>("cmbSpielerWahl")->textActivated(QStringLiteral("Bernd"));
        QCOMPARE(h.kind<QPlainTextEdit>("txtPunkteDiff")->toPlainText(), bericht(h.spiel(), Bernd));
        h.klick(h.label("lblAnsicht", Anna));
        h.kind("frmHäufigkeiten")->close();

        Dateiinhalt zwanzig = kleinesSpiel(20);
        zwanzig.Teilnehmer[Bernd] = 0;
        h.oeffne(h.speichere("zwanzig.tip", zwanzig));

        QCOMPARE(h.kind<QComboBox>("cmbSpieltag")->count(), 38);
        QCOMPARE(h.kind<QComboBox>("cmbSpieltag")->currentIndex(), 33);
        QCOMPARE(h.kind<QPlainTextEdit>("txtPunkteDiff")->toPlainText(), bericht(h.spiel(), Anna));
        grafik::Ansicht ansicht = grafik::ersteAnsicht(h.spiel());
        ansicht.LinieZeigen[Anna] = false;
        QCOMPARE(h.kind<Zeichenflaeche>("picHintergrund")->zeichnung().teile,
                 grafik::punktegrafik(h.spiel(), 37, ansicht).teile);
        QVERIFY(!h.kind("frmHäufigkeiten")->isVisible());
        h.aktion("menHäufigkeiten")->trigger();
        QVERIFY(rasterZeigtDasSpiel(h));
    }

    // A matchday the new game lacks falls back to the one shown, so no stale index reaches the sheet.
    void druckenFaelltAufDenGezeigtenSpieltagZurueck() {
        Hauptfenster h(kleinesSpiel(20));
        h.aktion("menDrucken")->trigger();
        h.kind<QComboBox>("cmbSpieltag")->setCurrentIndex(36);
        h.oeffneSpiel();
        QCOMPARE(h.kind<QComboBox>("cmbSpieltag")->count(), 34);
        QCOMPARE(h.kind<QComboBox>("cmbSpieltag")->currentIndex(), 1);
    }

    // A result typed and evaluated reaches the open windows at once.
    void auswertungErreichtDieOffenenFenster() {
        Hauptfenster h(kleinesSpiel());
        h.aktion("menHäufigkeiten")->trigger();
        h.aktion("menSimulation")->trigger();
        h.klick(h.label("lblHeimTeam", 0));
        QVERIFY(rasterZeigtDasSpiel(h));
        QCOMPARE(h.kind<QPlainTextEdit>("txtPunkteDiff")->toPlainText(), bericht(h.spiel(), 0));
    }

    // Spielerdaten and Eigene Regel keep what the user is typing through a change of the game, and
    // close, dropping it, when another game is opened.
    void bearbeitungsfensterBehaltenEingabenBisEinAnderesSpielKommt() {
        Hauptfenster h(kleinesSpiel());
        h.aktion("menSpielerAe")->trigger();
        h.aktion("menRegEigene")->trigger();
        h.kind<QLineEdit>("txtSpieler_0")->setText(QStringLiteral("Anke"));
        h.kind<QLineEdit>("txtNeuModus_0")->setText(QStringLiteral("9"));
        h.auswerten();
        h.aktion("menReg3")->trigger();
        QCOMPARE(h.kind<QLineEdit>("txtSpieler_0")->text(), QStringLiteral("Anke"));
        QCOMPARE(h.kind<QLineEdit>("txtNeuModus_0")->text(), QStringLiteral("9"));
        h.oeffneSpiel();
        QVERIFY(!h.kind("frmSpieler")->isVisible());
        QVERIFY(!h.kind("frmRegel")->isVisible());
        QCOMPARE(h.spiel().getSpielerName(Anna), std::string("Anna"));
    }
};

KALIMBO_UI_TEST_MAIN(HauptFolgenTest)
#include "haupt_folgen_test.moc"
