// The menus "Modus" and "Spieltage auswählen", the coach menu, and what does and does not
// evaluate: rule, selection and current-matchday changes count only from the next evaluation.
#include <QLineEdit>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptMenueTest : public QObject {
    Q_OBJECT

    // The selected matchdays as "0-16, 20" (0-based), from the strips the user sees, after
    // checking that they agree with the game.
    static QString auswahl(const Hauptfenster& h) {
        QStringList teile;
        for (int tag = 0; tag <= h.spiel().getAnzSpieltage(); ++tag) {
            const bool gewaehlt = h.label("lblAuswahl", tag)->autoFillBackground();
            if (gewaehlt != (h.spiel().getSptgAuswerten(tag) == 1))
                return QStringLiteral("Streifen %1?").arg(tag);
            if (!gewaehlt) continue;
            int ende = tag;
            while (ende < h.spiel().getAnzSpieltage() && h.spiel().getSptgAuswerten(ende + 1) == 1)
                ++ende;
            teile << (ende > tag ? QStringLiteral("%1-%2").arg(tag).arg(ende) : QString::number(tag));
            tag = ende;
        }
        return teile.join(", ");
    }
    static void setzeAktuellenSpieltag(const Hauptfenster& h, const QString& tag) {
        h.kind<QLineEdit>("txtAktSpieltag")->setText(tag);
        h.klick(h.kind("cmdSonntag"));
    }
    static QStringList gesamtpunkte(const Hauptfenster& h) {
        return {h.label("lblGesamtPunkte", Anna)->text(), h.label("lblGesamtPunkte", Bernd)->text(),
                h.label("lblGesamtPunkte", Dieter)->text()};
    }

  private slots:
    void menuebaum_data() {
        QTest::addColumn<QString>("eintrag");
        QTest::addColumn<QString>("text");
        const QStringList baum{"menOeffnen=Öffnen",
                               "menSpeichern=Speichern",
                               "menTippdatei=Tippdatei",
                               "menImpTrainer=Trainerwechsel-Daten",
                               "menHTML=HTML-Datei",
                               "menBericht=Mannschafts-/Spielerinformationen als Textdatei [*.txt]",
                               "menDrucken=Drucken",
                               "menBeenden=Beenden",
                               "menSptgAlle=Alle",
                               "menSptgKeinen=Keine",
                               "menSptgHinrunde=Hinrunde",
                               "menSptgRückrunde=Rückrunde",
                               "menSptgAlleAbsolv=Alle absolvierten",
                               "menSptgAlleAbsolvRück=Alle absolvierten der Rückrunde",
                               "menDieserTrainer_0=noch keine Trainerwechsel",
                               "menSptgLetzten_3=drei",
                               "menSptgLetzten_6=sechs",
                               "menSptgLetzten_10=zehn",
                               "menSptgLetzten_17=siebzehn",
                               "menSptgLetzten_24=vierundzwanzig",
                               "menReg321=3-2-1-Regel",
                               "menReg3=3-Punkte-Regel",
                               "menReg2=2-Punkte-Regel",
                               "menRegEigene=Eigene Regel erstellen/verwenden",
                               "menSpielerAe=Spielerdaten ändern",
                               "menAuswerten=auswerten",
                               "menNormal=Normal",
                               "menGrafik=Grafik",
                               "menSimulation=Simulation",
                               "menHäufigkeiten=Häufigkeiten",
                               "menÜber=Über"};
        for (const QString& e : baum)
            QTest::newRow(qPrintable(e)) << e.section('=', 0, 0) << e.section('=', 1);
    }
    void menuebaum() {
        QFETCH(QString, eintrag);
        Hauptfenster h;
        QTEST(h.aktion(eintrag)->text(), "text");
    }

    void menuesImUrsprungszustand() {
        Hauptfenster h;
        QVERIFY(h.aktion("menNormal")->isChecked());
        QVERIFY(h.aktion("menDieserTrainer_0")->isVisible() && !h.aktion("menDieserTrainer_0")->isEnabled());
        for (int i = 1; i < 10; ++i)
            QVERIFY(!h.aktion(Hauptfenster::indexName("menDieserTrainer", i))->isVisible());
        for (int i = 1; i <= 3; ++i)
            QVERIFY(!h.aktion(Hauptfenster::indexName("menRecent", i))->isVisible());
        QCOMPARE(h.aktion("menAuswerten")->shortcut(), QKeySequence(Qt::Key_F5));
        QCOMPARE(h.aktion("menOeffnen")->shortcut(), QKeySequence(QKeySequence::Open));
        QCOMPARE(h.aktion("menSpeichern")->shortcut(), QKeySequence(QKeySequence::Save));
    }

    void regeln_data() {
        QTest::addColumn<QString>("eintrag");
        QTest::addColumn<int>("modus");
        QTest::addColumn<int>("punkteBernd");
        QTest::newRow("2-Punkte") << "menReg2" << 0 << 10;
        QTest::newRow("3-Punkte") << "menReg3" << 1 << 14;
        QTest::newRow("3-2-1") << "menReg321" << 2 << 16;
        QTest::newRow("eigene") << "menRegEigene" << 3 << 16;  // keeps the points in force (3-2-1)
    }
    void regeln() {
        QFETCH(QString, eintrag);
        QFETCH(int, modus);
        Hauptfenster h;
        Dateiinhalt d = kleinesSpiel();
        d.Modus = modus == 0 ? 1 : 0;  // start from another rule
        h.oeffneSpiel(d);
        h.auswerten();
        const QStringList vorher = gesamtpunkte(h);
        h.aktion(eintrag)->trigger();
        QCOMPARE(h.spiel().Modus, modus);
        for (const char* name : {"menReg2", "menReg3", "menReg321", "menRegEigene"})
            QCOMPARE(h.aktion(name)->isChecked(), name == eintrag);
        // Nothing is evaluated until asked for, also not by showing another matchday.
        h.zeigeSpieltag(0);
        QCOMPARE(gesamtpunkte(h), vorher);
        h.auswerten();
        QTEST(h.label("lblGesamtPunkte", Bernd)->text().toInt(), "punkteBernd");
    }

    void spieltagsauswahl_data() {
        QTest::addColumn<QString>("eintrag");
        QTest::addColumn<QString>("auswahl");
        // Current matchday 25 (index 25), 18 teams: the first half is 0..16.
        QTest::newRow("Alle") << "menSptgAlle"
                              << "0-33";
        QTest::newRow("Keine") << "menSptgKeinen"
                               << "";
        QTest::newRow("Hinrunde") << "menSptgHinrunde"
                                  << "0-16";
        QTest::newRow("Rückrunde") << QStringLiteral("menSptgRückrunde") << "17-33";
        QTest::newRow("Alle absolvierten") << "menSptgAlleAbsolv"
                                           << "0-25";
        QTest::newRow("absolvierte Rückrunde") << QStringLiteral("menSptgAlleAbsolvRück") << "17-25";
        QTest::newRow("drei") << "menSptgLetzten_3"
                              << "23-25";
        QTest::newRow("sechs") << "menSptgLetzten_6"
                               << "20-25";
        QTest::newRow("zehn") << "menSptgLetzten_10"
                              << "16-25";
        QTest::newRow("siebzehn") << "menSptgLetzten_17"
                                  << "9-25";
        QTest::newRow("vierundzwanzig") << "menSptgLetzten_24"
                                        << "2-25";
        QTest::newRow("Trainer Alt") << "menDieserTrainer_0"
                                     << "0-16";
        QTest::newRow("Trainer Neu bis heute") << "menDieserTrainer_1"
                                               << "17-25";
    }
    void spieltagsauswahl() {
        QFETCH(QString, eintrag);
        Hauptfenster h;
        h.oeffneSpiel();
        h.auswerten();
        setzeAktuellenSpieltag(h, "25");
        const QStringList vorher = gesamtpunkte(h);
        h.aktion(eintrag)->trigger();
        QTEST(auswahl(h), "auswahl");
        QCOMPARE(gesamtpunkte(h), vorher);
    }

    void streifenKlickSchaltetUm() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.klick(h.label("lblAuswahl", 30));
        QCOMPARE(auswahl(h), QStringLiteral("0-1, 30"));
        h.klick(h.label("lblAuswahl", 30));
        QCOMPARE(auswahl(h), QStringLiteral("0-1"));
    }

    void zuWenigeAbsolvierteSpieltageWerdenAbgelehnt() {
        Hauptfenster h;
        h.oeffneSpiel();  // current matchday index 1: two matchdays completed
        h.aktion("menSptgLetzten_3")->trigger();
        QCOMPARE(h.meldungen(), QStringList{"Es wurden noch keine 3 Spieltage absolviert."});
        QCOMPARE(auswahl(h), QStringLiteral("0-1"));
        setzeAktuellenSpieltag(h, "2");
        h.aktion("menSptgLetzten_3")->trigger();
        QCOMPARE(auswahl(h), QStringLiteral("0-2"));
    }

    void trainermenueNachDemOeffnen() {
        Hauptfenster h;
        h.oeffneSpiel();
        QCOMPARE(h.aktion("menDieserTrainer_0")->text(), QStringLiteral("Trainer Alt"));
        QCOMPARE(h.aktion("menDieserTrainer_1")->text(), QStringLiteral("Trainer Neu"));
        QVERIFY(h.aktion("menDieserTrainer_0")->isVisible() && h.aktion("menDieserTrainer_0")->isEnabled());
        QVERIFY(h.aktion("menDieserTrainer_1")->isVisible() && h.aktion("menDieserTrainer_1")->isEnabled());
        for (int i = 2; i < 10; ++i)
            QVERIFY(!h.aktion(Hauptfenster::indexName("menDieserTrainer", i))->isVisible());

        // Record 0 inactive: its item stays, disabled.
        Dateiinhalt d = kleinesSpiel();
        d.Trainerwechsel[0].Aktiv = 0;
        h.oeffne(h.speichere("ohne.tip", d));
        QVERIFY(h.aktion("menDieserTrainer_0")->isVisible() && !h.aktion("menDieserTrainer_0")->isEnabled());
    }

    // Each window is made on first use and kept: opened again, it is the same window.
    void fensterAusDemMenue_data() {
        QTest::addColumn<QString>("eintrag");
        QTest::addColumn<QString>("fenster");
        QTest::newRow("Spielerdaten") << QStringLiteral("menSpielerAe") << "frmSpieler";
        QTest::newRow("eigene Regel") << "menRegEigene"
                                      << "frmRegel";
        QTest::newRow("Häufigkeiten")
            << QStringLiteral("menHäufigkeiten") << QStringLiteral("frmHäufigkeiten");
        QTest::newRow("Drucken") << "menDrucken"
                                 << "frmDrucken";
        QTest::newRow("Simulation") << "menSimulation"
                                    << "frmSimulation";
        QTest::newRow("Grafik") << "menGrafik"
                                << "frmGrafik";
        QTest::newRow("Über") << QStringLiteral("menÜber") << QStringLiteral("frmÜber");
    }
    void fensterAusDemMenue() {
        QFETCH(QString, eintrag);
        QFETCH(QString, fenster);
        Hauptfenster h;
        h.oeffneSpiel();
        h.aktion(eintrag)->trigger();
        QWidget* erstes = h.kind(fenster);
        QVERIFY(erstes->isVisible());
        erstes->close();
        h.aktion(eintrag)->trigger();
        QCOMPARE(h.fenster->findChildren<QWidget*>(fenster).size(), 1);
        QVERIFY(h.kind(fenster)->isVisible());
    }

    void uebernehmenWertetNichtAus() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.auswerten();
        const QStringList vorher = gesamtpunkte(h);
        h.feld("txtHeimTipp", Anna * 10 + 4)->setText("1");  // a full hit on matchday 1, once evaluated
        h.feld("txtAusTipp", Anna * 10 + 4)->setText("2");
        h.kind<QLineEdit>("txtSonntag_0")->setText("3");
        setzeAktuellenSpieltag(h, "1");
        QCOMPARE(h.spiel().getAktSpieltagGlobal(), 1);
        QCOMPARE(h.spiel().SonntagSpiele[0], 3);
        QCOMPARE(gesamtpunkte(h), vorher);
        QCOMPARE(h.spiel().getTipp(Anna, 1, 4, 0), 1);  // taken into the game, not lost
    }
};

KALIMBO_UI_TEST_MAIN(HauptMenueTest)
#include "haupt_menue_test.moc"
