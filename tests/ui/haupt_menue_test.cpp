// The menus "Modus" and "Spieltage auswählen", the coach menu, the windows the menus open, and what
// does and does not evaluate: rule, selection and current-matchday changes count only from the next
// evaluation.
#include <QLineEdit>
#include <QPushButton>

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
    // Menu items and what they lead to, from "name=expected" lines.
    static void zeilen(std::initializer_list<const char*> eintraege) {
        QTest::addColumn<QString>("eintrag");
        QTest::addColumn<QString>("erwartet");
        for (const char* e : eintraege)
            QTest::newRow(e) << QString::fromUtf8(e).section('=', 0, 0)
                             << QString::fromUtf8(e).section('=', 1);
    }

  private slots:
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
        Dateiinhalt d = kleinesSpiel();
        d.Modus = modus == 0 ? 1 : 0;  // start from another rule
        Hauptfenster h(d);
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

    // Current matchday index 25, 18 teams: the first half is 0..16.
    void spieltagsauswahl_data() {
        zeilen({"menSptgAlle=0-33", "menSptgKeinen=", "menSptgHinrunde=0-16", "menSptgRückrunde=17-33",
                "menSptgAlleAbsolv=0-25", "menSptgAlleAbsolvRück=17-25", "menSptgLetzten_3=23-25",
                "menSptgLetzten_6=20-25", "menSptgLetzten_10=16-25", "menSptgLetzten_17=9-25",
                "menSptgLetzten_24=2-25", "menDieserTrainer_0=0-16", "menDieserTrainer_1=17-25"});
    }
    void spieltagsauswahl() {
        QFETCH(QString, eintrag);
        Hauptfenster h(kleinesSpiel());
        setzeAktuellenSpieltag(h, "25");
        const QStringList vorher = gesamtpunkte(h);
        h.aktion(eintrag)->trigger();
        QTEST(auswahl(h), "erwartet");
        QCOMPARE(gesamtpunkte(h), vorher);
    }

    void zuWenigeSpieltageAbgelehntStreifenSchalten() {
        Hauptfenster h(kleinesSpiel());  // current matchday index 1: two matchdays completed
        h.aktion("menSptgLetzten_3")->trigger();
        QCOMPARE(h.meldungen(), QStringList{"Es wurden noch keine 3 Spieltage absolviert."});
        QCOMPARE(auswahl(h), QStringLiteral("0-1"));
        setzeAktuellenSpieltag(h, "2");
        h.aktion("menSptgLetzten_3")->trigger();
        QCOMPARE(auswahl(h), QStringLiteral("0-2"));
        h.klick(h.label("lblAuswahl", 30));  // a strip switches its own matchday
        QCOMPARE(auswahl(h), QStringLiteral("0-2, 30"));
    }

    // One item per active coach period; item 0 stays, disabled, while its period is inactive.
    void trainermenue() {
        Hauptfenster h;
        const auto gezeigt = [&h] {
            QStringList e;
            for (int i = 0; i < 10; ++i)
                if (QAction* a = h.aktion(Hauptfenster::indexName("menDieserTrainer", i)); a->isVisible())
                    e << a->text() + (a->isEnabled() ? "" : " (aus)");
            return e;
        };
        QCOMPARE(gezeigt(), QStringList{"noch keine Trainerwechsel (aus)"});
        h.oeffneSpiel();
        QCOMPARE(gezeigt(), (QStringList{"Trainer Alt", "Trainer Neu"}));
        Dateiinhalt d = kleinesSpiel();
        d.Trainerwechsel[0].Aktiv = 0;
        h.oeffne(h.speichere("ohne.tip", d));
        QCOMPARE(gezeigt(), (QStringList{"Trainer Alt (aus)", "Trainer Neu"}));
    }

    // Each window is made on first use and kept: closed and opened again, it is the same window.
    void fensterAusDemMenue_data() {
        zeilen({"menSpielerAe=frmSpieler", "menRegEigene=frmRegel", "menHäufigkeiten=frmHäufigkeiten",
                "menDrucken=frmDrucken", "menSimulation=frmSimulation", "menGrafik=frmGrafik",
                "menÜber=frmÜber"});
    }
    void fensterAusDemMenue() {
        QFETCH(QString, eintrag);
        QFETCH(QString, erwartet);
        Hauptfenster h(kleinesSpiel());
        h.aktion(eintrag)->trigger();
        QWidget* erstes = h.kind(erwartet);
        QVERIFY(erstes->isVisible());
        if (eintrag == QStringLiteral("menÜber"))
            h.klick(erstes->findChild<QPushButton*>("cmdOK"));
        else
            erstes->close();
        QVERIFY(!erstes->isVisible());
        h.aktion(eintrag)->trigger();
        QCOMPARE(h.fenster->findChildren<QWidget*>(erwartet).size(), 1);
        QVERIFY(h.kind(erwartet)->isVisible());
    }

    void uebernehmenWertetNichtAus() {
        Hauptfenster h(kleinesSpiel());
        const QStringList vorher = gesamtpunkte(h);
        h.feld("txtHeimTipp", Anna * 10 + 4)->setText("1");  // a full hit on matchday 1, once evaluated
        h.feld("txtAusTipp", Anna * 10 + 4)->setText("2");
        h.kind<QLineEdit>("txtSonntag_0")->setText("3");
        setzeAktuellenSpieltag(h, "1");
        QCOMPARE(h.spiel().SonntagSpiele[0], 3);
        QCOMPARE(gesamtpunkte(h), vorher);
        QCOMPARE(h.spiel().getTipp(Anna, 1, 4, 0), 1);  // taken into the game, not lost
    }
};

KALIMBO_UI_TEST_MAIN(HauptMenueTest)
#include "haupt_menue_test.moc"
