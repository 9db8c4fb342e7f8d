// Season data from the main window: a new game from a fixture list, results from a result file
// with the pairing of team names and the summary. The files are those of the core's tests.
#include "hauptfenster.h"

using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptQuellenTest : public QObject {
    Q_OBJECT

    static QString datei(const char* name) { return QStringLiteral(KALIMBO_TEST_DATA "/quellen/") + name; }
    static void waehle(Hauptfenster& h, const QString& eintrag, const QString& pfad) {
        h.dialoge.antworten << pfad;
        h.aktion(eintrag)->trigger();
    }
    // The season 2021/22 without results; saved as saison.tip, matchday `auswahl` selected first.
    static void neueSaison(Hauptfenster& h, bool speichern = true, int auswahl = -1) {
        waehle(h, "menNeuAusSpielplan", datei("spielplan-2021-22.json"));
        if (auswahl >= 0) h.klick(h.label("lblAuswahl", auswahl));
        if (speichern) waehle(h, "menSpeichern", h.ordner.filePath("saison.tip"));
    }

  private slots:
    // The new game is unsaved, even after a saved one, and shown as after opening. Its changes are
    // asked about before the next file dialog.
    void neuAusSpielplan() {
        Hauptfenster h;
        h.oeffneSpiel();
        neueSaison(h, false);
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("Neues Tippspiel[*] - Kalimbo"));
        QVERIFY(h.fenster->isWindowModified());
        QCOMPARE(h.label("lblHeimTeam", 0)->text(), QStringLiteral("Borussia Mönchengladbach"));
        h.dialoge.speicherantworten << Dialoge::Antwort::Abbrechen;
        h.aktion("menNeuAusSpielplan")->trigger();
        QCOMPARE(h.dialoge.speicherfragen, QStringList{"Neues Tippspiel"});
        QCOMPARE(h.dialoge.titel.size(), 2);  // those of opening and making the game only
    }

    // Each with a message naming the file and the reason; no pairing is asked for.
    void abgelehntAendertNichts() {
        Hauptfenster h;
        neueSaison(h);
        const auto vorher = h.spiel();
        for (const auto& [eintrag, pfad, grund] :
             {std::tuple{"menNeuAusSpielplan", datei("fd-bom.csv"), "keinen Spielplan"},
              {"menImpErgebnisse", KALIMBO_SHARED_DATA "/quellen/openfootball-2024-25-en.1.json",
               "anderen Liga"},
              {"menImpErgebnisse", datei("kaputt/doppelt.csv"), "steht schon in Zeile 2"}}) {
            waehle(h, eintrag, pfad);
            const QStringList m = h.meldungen();
            QVERIFY2(m.size() == 1 && m[0].contains(grund) && m[0].contains(pfad.section('/', -1)),
                     qPrintable(m.join('|')));
        }
        QVERIFY(static_cast<const kalimbo::Dateiinhalt&>(h.spiel()) == vorher &&
                h.spiel().Ergebnis == vorher.Ergebnis);
        QVERIFY(!h.fenster->isWindowModified() && h.dialoge.zuordnungen.isEmpty());
    }

    // Open names are paired in the dialog, set to the best guess; Abbrechen takes nothing. The pairs
    // are remembered for the game's file, not for a game without one, and used again without asking.
    void zuordnungWirdFuerDieSpieldateiGemerkt() {
        Hauptfenster h;
        neueSaison(h, false);
        const QStringList paare{"Borussia=Borussia Mönchengladbach", "FC Koln=1. FC Union Berlin"};
        h.dialoge.zuordnungsantworten << paare << std::nullopt << paare;
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        QCOMPARE(h.dialoge.zuordnungen[0],
                 QStringList({"Borussia=Borussia Dortmund", "Köln=1. FC Köln", "FC Koln=1. FC Köln"}));
        QCOMPARE(h.spiel().getErgebnis(21, 2, 0), 1);  // Borussia Mönchengladbach - FC Augsburg
        const auto vorher = h.spiel().Ergebnis;
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        QVERIFY(h.spiel().Ergebnis == vorher && h.dialoge.berichte.size() == 1);  // asked again, cancelled
        waehle(h, "menSpeichern", h.ordner.filePath("saison.tip"));
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        waehle(h, "menImpErgebnisse", datei("unklar.csv"));
        QVERIFY(h.dialoge.zuordnungen.size() == 3 &&
                h.dialoge.berichte.last().contains("3 schon eingetragen"));
        QVERIFY(!h.fenster->isWindowModified());  // the same file again changes nothing
    }

    // A result typed and not yet taken counts as the game's: 7:0, where the file has 3:4. It is kept,
    // then replaced when the summary is answered so. The view shows the results at once; the figures
    // wait for the next evaluation.
    void abweichendeBehaltenOderErsetzen() {
        Hauptfenster h;
        neueSaison(h, true, 3);
        h.zeigeSpieltag(3);
        h.feld("txtHeimErgebnis", 0)->setText("7");
        h.dialoge.ersetzen << false << true;
        waehle(h, "menImpErgebnisse", datei("fd-bom.csv"));
        QCOMPARE(h.feld("txtHeimErgebnis", 0)->text() + h.feld("txtAusErgebnis", 3)->text(), "72");
        QCOMPARE(h.label("lblTabPunkte", 1)->text(), "0");
        QVERIFY(h.fenster->isWindowModified());
        waehle(h, "menImpErgebnisse", datei("fd-bom.csv"));
        QCOMPARE(h.feld("txtHeimErgebnis", 0)->text(), "3");
        const QStringList& b = h.dialoge.berichte;
        QVERIFY2(b.size() == 3 && b[0].contains("8 übernommen") && b[0].endsWith("\n[ersetzen]"),
                 qPrintable(b[0]));
        QVERIFY(b[2].contains("1 abweichend, ersetzt") && !b[2].endsWith("[ersetzen]"));
    }
};

KALIMBO_UI_TEST_MAIN(HauptQuellenTest)
#include "haupt_quellen_test.moc"
