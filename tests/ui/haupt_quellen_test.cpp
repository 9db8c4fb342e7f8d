// Season data from the main window: a new game from a fixture list, results from a result file
// with the pairing of team names and the summary. The files are those of the core's tests.
#include <QFileInfo>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptQuellenTest : public QObject {
    Q_OBJECT

    static QString datei(const char* name) { return QStringLiteral(KALIMBO_TEST_DATA "/quellen/") + name; }
    static void waehle(Hauptfenster& h, const QString& eintrag, const QString& pfad) {
        h.dialoge.antworten << pfad;
        h.aktion(eintrag)->trigger();
    }
    // The season 2021/22 without results, saved as saison.tip unless `speichern` is false.
    static void neueSaison(Hauptfenster& h, bool speichern = true) {
        waehle(h, "menNeuAusSpielplan", datei("spielplan-2021-22.json"));
        if (speichern) waehle(h, "menSpeichern", h.ordner.filePath("saison.tip"));
    }

  private slots:
    // Unsaved changes are asked about before the file dialog; the new game is unsaved and shown
    // evaluated, as after opening.
    void neuAusSpielplan() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.aktion("menReg2")->trigger();
        h.dialoge.speicherantworten << Dialoge::Antwort::Abbrechen;
        h.aktion("menNeuAusSpielplan")->trigger();
        QCOMPARE(h.dialoge.speicherfragen, QStringList{"spiel.tip"});
        QCOMPARE(h.dialoge.titel.size(), 1);  // the file dialog of opening spiel.tip only
        neueSaison(h, false);
        QCOMPARE(h.spiel().getLigaInfo(), std::string("Bundesliga 2021/22"));
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("Neues Tippspiel[*] - Kalimbo"));
        QVERIFY(h.fenster->isWindowModified());
        QCOMPARE(h.label("lblHeimTeam", 0)->text(), QStringLiteral("Borussia Mönchengladbach"));
        QCOMPARE(h.label("lblTabName", 1)->text(), QStringLiteral("FC Bayern München"));
        waehle(h, "menSpeichern", h.ordner.filePath("saison.tip"));
        QCOMPARE(h.dialoge.vorschlaege, QStringList{QString()});
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("saison.tip[*] - Kalimbo"));
    }

    void abgelehntAendertNichts_data() {
        QTest::addColumn<QString>("eintrag");
        QTest::addColumn<QString>("pfad");
        QTest::addColumn<QString>("grund");
        const QString neu = "menNeuAusSpielplan", ergebnisse = "menImpErgebnisse";
        QTest::newRow("ohne Spieltage") << neu << datei("fd-bom.csv") << "keinen Spielplan";
        QTest::newRow("2 Mannschaften") << neu << datei("von-hand.csv") << "2 Mannschaften";
        QTest::newRow("abgeschnitten") << neu << datei("kaputt/abgeschnitten.json") << "unvollständig";
        QTest::newRow("andere Liga") << ergebnisse
                                     << KALIMBO_SHARED_DATA "/quellen/openfootball-2024-25-en.1.json"
                                     << "anderen Liga";
        QTest::newRow("doppelt") << ergebnisse << datei("kaputt/doppelt.csv") << "steht schon in Zeile 2";
    }
    void abgelehntAendertNichts() {
        QFETCH(QString, eintrag);
        QFETCH(QString, pfad);
        QFETCH(QString, grund);
        Hauptfenster h;
        neueSaison(h);
        const Spielstand vorher = h.spiel();
        waehle(h, eintrag, pfad);
        const QStringList m = h.meldungen();
        QVERIFY2(m.size() == 1 && m[0].contains(grund) && m[0].contains(QFileInfo(pfad).fileName()),
                 qPrintable(m.join('|')));
        QVERIFY(static_cast<const Dateiinhalt&>(h.spiel()) == vorher &&
                h.spiel().Ergebnis == vorher.Ergebnis);
        QVERIFY(!h.fenster->isWindowModified());
        QVERIFY(h.dialoge.zuordnungen.isEmpty() && h.dialoge.berichte.isEmpty());
    }

    // Open names are paired in the dialog, set to the best guess. Abbrechen takes nothing. The pairs
    // are remembered for the game's file, not for a game without one, and used again without asking.
    void zuordnungWirdFuerDieSpieldateiGemerkt() {
        Hauptfenster h;
        neueSaison(h, false);
        const QStringList paare{"Borussia=Borussia Mönchengladbach", "FC Koln=1. FC Union Berlin"};
        h.dialoge.zuordnungsantworten << paare << std::nullopt << paare;
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        const QStringList vorschlaege{"Borussia=Borussia Dortmund", "Köln=1. FC Köln", "FC Koln=1. FC Köln"};
        QCOMPARE(h.dialoge.zuordnungen, QList<QStringList>{vorschlaege});
        const Ergebnisse vorher = h.spiel().Ergebnis;
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        QVERIFY(h.spiel().Ergebnis == vorher);
        waehle(h, "menSpeichern", h.ordner.filePath("saison.tip"));
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        h.neuStarten();
        h.oeffne(h.ordner.filePath("saison.tip"));
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        QCOMPARE(h.dialoge.zuordnungen.size(), 3);
        QCOMPARE(h.dialoge.berichte.size(), 3);
        QVERIFY2(h.dialoge.berichte[0].contains("3 übernommen"), qPrintable(h.dialoge.berichte[0]));
        QVERIFY(h.dialoge.berichte[2].contains("3 schon eingetragen"));
        QVERIFY(!h.fenster->isWindowModified());  // the same file again changes nothing
    }

    void abweichendeBehaltenOderErsetzen_data() {
        QTest::addColumn<bool>("ersetzen");
        QTest::newRow("behalten") << false;
        QTest::newRow("ersetzen") << true;
    }
    // A result typed and not yet taken counts as the game's: 7:0, where the file has 3:4. The view
    // shows the results at once; the figures wait for the next evaluation.
    void abweichendeBehaltenOderErsetzen() {
        QFETCH(bool, ersetzen);
        Hauptfenster h;
        neueSaison(h);
        h.zeigeSpieltag(3);
        h.feld("txtHeimErgebnis", 0)->setText("7");
        h.dialoge.ersetzen << ersetzen;
        waehle(h, "menImpErgebnisse", datei("fd-bom.csv"));
        const QStringList& b = h.dialoge.berichte;
        QCOMPARE(b.size(), ersetzen ? 2 : 1);
        QVERIFY2(b[0].contains("8 übernommen") && b[0].endsWith("\n[ersetzen]"), qPrintable(b[0]));
        QVERIFY(!ersetzen || (b[1].contains("1 abweichend, ersetzt") && !b[1].endsWith("[ersetzen]")));
        QCOMPARE(h.feld("txtHeimErgebnis", 0)->text(), ersetzen ? "3" : "7");
        QCOMPARE(h.feld("txtAusErgebnis", 3)->text(), "2");
        QCOMPARE(h.label("lblTabPunkte", 1)->text(), "0");
        QVERIFY(h.fenster->isWindowModified());
    }
};

KALIMBO_UI_TEST_MAIN(HauptQuellenTest)
#include "haupt_quellen_test.moc"
