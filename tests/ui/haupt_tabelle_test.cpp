// The running league table of the main window ("Blitztabelle"): every cell and the order after an
// evaluation, its caption, and the colours and hints of the positions.
#include <QGroupBox>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptTabelleTest : public QObject {
    Q_OBJECT

    static QString zeile(const Hauptfenster& h, int z) {
        QStringList zellen;
        for (const char* spalte : {"lblTabellenplatz", "lblTabName", "lblTabPunkte", "lblTabTore",
                                   "lblTabDifferenz", "lblTabSiege", "lblTabUn", "lblTabNiederlagen"})
            zellen << h.label(spalte, z)->text();
        return zellen.join('|');
    }
    static QString titel(const Hauptfenster& h) { return h.kind<QGroupBox>("fraBlitztabelle")->title(); }

  private slots:
    // Matchday 0 alone: nine wins; the order needs points, then difference, then goals, then the
    // team index.
    void jedeZelleNachDerAuswertung() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.klick(h.label("lblAuswahl", 1));  // only matchday 0 counts
        h.auswerten();
        const QStringList erwartet{
            "1|Essen|3|3:0|3|1|0|0",    "2|Ingolstadt|3|4:2|2|1|0|0",  "3|Dresden|3|3:1|2|1|0|0",
            "4|Hamburg|3|2:0|2|1|0|0",  "5|Offenbach|3|2:0|2|1|0|0",   "6|Aachen|3|2:1|1|1|0|0",
            "7|Rostock|3|2:1|1|1|0|0",  "8|Kiel|3|1:0|1|1|0|0",        "9|Nürnberg|3|1:0|1|1|0|0",
            "10|Bochum|0|1:2|-1|0|0|1", "11|Querfurt|0|1:2|-1|0|0|1",  "12|Leipzig|0|0:1|-1|0|0|1",
            "13|Mainz|0|0:1|-1|0|0|1",  "14|Jena|0|2:4|-2|0|0|1",      "15|Cottbus|0|1:3|-2|0|0|1",
            "16|Gießen|0|0:2|-2|0|0|1", "17|Paderborn|0|0:2|-2|0|0|1", "18|Fürth|0|0:3|-3|0|0|1"};
        for (int z = 0; z < 18; ++z)
            QCOMPARE(zeile(h, z), erwartet[z]);
        QVERIFY(!h.sichtbar("lblTabName_18") && !h.sichtbar("lblTabPunkte_19"));
    }

    void unentschiedenZaehltFuerBeide() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.auswerten();  // matchdays 0 and 1: Bochum won 1:0 against Cottbus, Dresden drew 2:2 with Essen
        QStringList zeilen;
        for (int z = 0; z < 18; ++z)
            zeilen << zeile(h, z);
        QVERIFY(zeilen.contains(QRegularExpression(R"(^\d+\|Essen\|4\|5:2\|3\|1\|1\|0$)")));
        QVERIFY(zeilen.contains(QRegularExpression(R"(^\d+\|Dresden\|4\|5:3\|2\|1\|1\|0$)")));
    }

    void ueberschriftNenntAnlassUndUhrzeit() {
        Hauptfenster h;
        h.oeffneSpiel();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        h.auswerten();
        QLocale::setDefault(QLocale::c());
        const QRegularExpressionMatch treffer =
            QRegularExpression(R"(^Blitztabelle \[---, (.+)\]$)").match(titel(h));
        QVERIFY2(treffer.hasMatch(), qPrintable(titel(h)));
        // The time of day in the user's format: 12-hour clock in the United States.
        QVERIFY2(treffer.captured(1).contains(QRegularExpression("[AP]M")), qPrintable(titel(h)));

        h.klick(h.label("lblAusTeam", 3));  // Hamburg - Ingolstadt on matchday 1
        QVERIFY2(titel(h).startsWith(QStringLiteral("Blitztabelle [Tor fürIngolstadt, ")),
                 qPrintable(titel(h)));
        h.aktion("menAuswerten")->trigger();
        QVERIFY2(titel(h).startsWith(QStringLiteral("Blitztabelle [---, ")), qPrintable(titel(h)));
    }

    void positionenHabenFarbeUndHinweis_data() {
        QTest::addColumn<int>("zeile");
        QTest::addColumn<QColor>("farbe");
        QTest::addColumn<QString>("hinweis");
        QTest::newRow("Meister") << 0 << QColor(255, 0, 0) << "Meister";
        QTest::newRow("CL") << 1 << QColor(245, 183, 35) << "Champions-League-Platz";
        QTest::newRow("CL-Quali") << 2 << QColor(255, 204, 51) << "Champions-League-Qualifikation";
        QTest::newRow("UEFA") << 3 << QColor(255, 255, 0) << "UEFA-Pokal-Platz";
        QTest::newRow("Mittelmaß") << 4 << QColor(255, 255, 192) << "Mittelmaß";
        QTest::newRow("Abstieg") << 17 << QColor(255, 255, 255) << "Abstiegsplatz";
    }
    void positionenHabenFarbeUndHinweis() {
        QFETCH(int, zeile);
        Hauptfenster h;
        h.oeffneSpiel();
        QTEST(h.label("lblTabellenplatz", zeile)->palette().color(QPalette::Window), "farbe");
        QTEST(h.label("lblTabellenplatz", zeile)->toolTip(), "hinweis");
    }

    // A colour without a hint keeps the hint the position had, even from the game before.
    void fremdeFarbeBehaeltDenHinweis() {
        Hauptfenster h;
        h.oeffneSpiel();
        Dateiinhalt d = kleinesSpiel();
        d.TabFarbe[0] = rgb(0, 0, 255);
        h.oeffne(h.speichere("blau.tip", d));
        QCOMPARE(h.label("lblTabellenplatz", 0)->toolTip(), QStringLiteral("Meister"));
        QCOMPARE(h.label("lblTabellenplatz", 0)->palette().color(QPalette::Window), QColor(0, 0, 255));
    }
};

KALIMBO_UI_TEST_MAIN(HauptTabelleTest)
#include "haupt_tabelle_test.moc"
