// The player settings window: colours from the palette by a counter shared by all slots, the
// data handed over on "OK" and drawn without an evaluation, names the game file cannot store.
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "hauptfenster.h"
#include "ui/bausteine/farben.h"
#include "ui/frmspieler.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class FrmSpielerTest : public QObject {
    Q_OBJECT

    static frmSpieler* oeffneFenster(const Hauptfenster& h) {
        h.aktion(QStringLiteral("menSpielerAe"))->trigger();
        return h.kind<frmSpieler>("frmSpieler");
    }
    static QColor farbeVon(const Hauptfenster& h, int slot) {
        return h.label("lblSpielerFarbe", slot)->palette().color(QPalette::Window);
    }
    static QColor palette(int i) { return qfarbe(frmSpieler::Palette[static_cast<std::size_t>(i)]); }
    static void ok(const Hauptfenster& h) { h.klick(h.kind("cmdOK")); }

  private slots:
    void fuelltSichAusDemSpiel() {
        Dateiinhalt d = kleinesSpiel();
        d.Spielerfarbe[Anna] = rgb(1, 2, 3);
        d.Spielerfarbe[Clara] = rgb(4, 5, 6);  // not taking part: the window keeps its own colour
        Hauptfenster h(d);
        frmSpieler* fenster = oeffneFenster(h);
        QVERIFY(fenster->isVisible());
        QCOMPARE(h.kind<QLineEdit>("txtSpieler_1")->text(), QStringLiteral("Bernd"));
        QVERIFY(h.kind<QCheckBox>("chkTeilnehmer_0")->isChecked());
        QVERIFY(!h.kind<QCheckBox>("chkTeilnehmer_2")->isChecked());
        QCOMPARE(farbeVon(h, Anna), QColor(1, 2, 3));
        QCOMPARE(farbeVon(h, Clara), palette(2));
    }

    void farbzaehlerLaeuftUeberAlleFelderUndBleibt() {
        Hauptfenster h(kleinesSpiel());
        oeffneFenster(h);
        h.klick(h.label("lblSpielerFarbe", 0));
        QCOMPARE(farbeVon(h, 0), palette(5));  // the counter starts at the sixth colour
        QCOMPARE(h.kind("shpAuswahl")->palette().color(QPalette::Window), palette(5));
        h.klick(h.label("lblSpielerFarbe", 1));
        QCOMPARE(farbeVon(h, 1), palette(6));
        // Closing and opening again does not reset the counter.
        h.kind("frmSpieler")->close();
        oeffneFenster(h);
        h.klick(h.label("lblSpielerFarbe", 3));
        QCOMPARE(farbeVon(h, 3), palette(7));
        // Sixteen clicks on one slot: around the palette and back to the first click's colour.
        h.klick(h.label("lblSpielerFarbe", 4));
        const QColor erste = farbeVon(h, 4);
        QCOMPARE(erste, palette(8));
        for (int i = 1; i < 16; ++i)
            h.klick(h.label("lblSpielerFarbe", 4));
        QCOMPARE(farbeVon(h, 4), palette(7));
        h.klick(h.label("lblSpielerFarbe", 4));
        QCOMPARE(farbeVon(h, 4), erste);
    }

    void okGibtDieDatenOhneAuswertungWeiter() {
        Hauptfenster h(kleinesSpiel());
        const QString punkte = h.label("lblGesamtPunkte", Bernd)->text();
        frmSpieler* fenster = oeffneFenster(h);
        h.kind<QLineEdit>("txtSpieler_0")->setText(QString());
        h.kind<QLineEdit>("txtSpieler_1")->setText(QStringLiteral("Bärbel"));
        h.kind<QCheckBox>("chkTeilnehmer_2")->setChecked(true);
        h.kind<QCheckBox>("chkTeilnehmer_3")->setChecked(false);
        h.klick(
            h.label("lblSpielerFarbe", 5));  // slot 5 does not take part; its colour goes over all the same
        ok(h);
        QVERIFY(!fenster->isVisible());
        QCOMPARE(h.spiel().getSpielerName(0), std::string());
        QCOMPARE(h.spiel().getSpielerName(1), std::string("Bärbel"));
        QCOMPARE(h.spiel().getTeilnehmer(2), 1);
        QCOMPARE(h.spiel().getTeilnehmer(3), 0);
        QCOMPARE(h.spiel().getSpielerFarbe(5), frmSpieler::Palette[5]);
        QCOMPARE(h.spiel().getSpielerFarbe(Anna), kleinesSpiel().Spielerfarbe[Anna]);
        // Drawn at once: Clara's column appears, Dieter's goes; the points wait for an evaluation.
        QCOMPARE(h.label("lblSpieler", 1)->text(), QStringLiteral("Bärbel"));
        QVERIFY(h.sichtbar(QStringLiteral("fraSpielerSäule_2")));
        QVERIFY(!h.sichtbar(QStringLiteral("fraSpielerSäule_3")));
        QCOMPARE(h.label("lblGesamtPunkte", Bernd)->text(), punkte);
        QCOMPARE(h.label("lblGesamtPunkte", Clara)->text(), QStringLiteral("0"));
        QVERIFY(h.fenster->isWindowModified());
    }

    void nichtSpeicherbarerNameWirdAbgelehnt() {
        Hauptfenster h(kleinesSpiel());
        frmSpieler* fenster = oeffneFenster(h);
        h.kind<QLineEdit>("txtSpieler_0")->setText(QStringLiteral("Anna"));
        h.kind<QLineEdit>("txtSpieler_1")->setText(QStringLiteral("Łukasz"));
        h.kind<QCheckBox>("chkTeilnehmer_2")->setChecked(true);
        ok(h);
        const QStringList meldungen = h.meldungen();
        QCOMPARE(meldungen.size(), 1);
        QVERIFY2(
            meldungen[0].contains(QStringLiteral("„Łukasz“")) && meldungen[0].contains(QStringLiteral("Ł")),
            qPrintable(meldungen[0]));
        QVERIFY(fenster->isVisible());
        QCOMPARE(h.spiel().getSpielerName(1), std::string("Bernd"));
        QCOMPARE(h.spiel().getTeilnehmer(2), 0);
        QVERIFY(!h.fenster->isWindowModified());
    }
};

KALIMBO_UI_TEST_MAIN(FrmSpielerTest)
#include "frmspieler_test.moc"
