// Importing into the game from the main window: merging the results and tips of another game file
// ("Tippdatei") and loading coach periods ("Trainerwechsel-Daten").
#include "hauptfenster.h"
#include "state/spieldatei.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptImportTest : public QObject {
    Q_OBJECT

    static void importiere(Hauptfenster& h, const char* eintrag, const QString& pfad) {
        h.dialoge.antworten << pfad;
        h.aktion(eintrag)->trigger();
    }
    // Another file of the same league: other names, a result and tips where this game has none.
    static Dateiinhalt andereDatei() {
        Dateiinhalt d = kleinesSpiel();
        d.Spielername[Anna] = "Anne";
        d.LigaInfo[0] = "Andere Liga";
        d.ErgebnisDatei[2][0] = {{2, 1}};     // matchday 2 has no results here: taken
        d.ErgebnisDatei[1][0] = {{5, 5}};     // 1:0 here: kept
        d.TippDatei[Anna][1][5] = {{3, 1}};   // Anna's 0:0: taken
        d.TippDatei[Bernd][1][0] = {{0, 4}};  // Bernd's 1:0: kept
        d.SptgAuswerten[2] = 1;
        return d;
    }

    // A coach-change file: the ten records from the first byte, as a game file ends with them.
    static QString trainerdatei(Hauptfenster& h, const Feld<Trainerdaten, 10>& trainer) {
        Dateiinhalt mit, ohne;
        mit.Trainerwechsel = trainer;
        const std::string alles = kodiereSpieldatei(mit);
        const std::size_t laenge = alles.size() - (kodiereSpieldatei(ohne).size() - 10 * 8);
        return h.schreibe("trainer.dat", QByteArray::fromStdString(alles.substr(alles.size() - laenge)));
    }

  private slots:
    void tippdateiFuelltNurLeeres() {
        Hauptfenster h(kleinesSpiel());
        h.feld("txtHeimTipp", Dieter * 10 + 6)->setText("7");  // typed, not yet taken: kept too
        const QString andere = h.speichere("andere.tip", andereDatei());
        importiere(h, "menTippdatei", andere);
        QCOMPARE(h.meldungen(), QStringList());
        QVERIFY(h.dialoge.speicherfragen.isEmpty());  // a merge keeps what is typed, asking nothing
        QCOMPARE(h.spiel().getErgebnis(2, 0, 0), 2);
        QCOMPARE(h.spiel().getErgebnis(2, 0, 1), 1);
        QCOMPARE(h.spiel().getErgebnis(1, 0, 0), 1);
        QCOMPARE(h.spiel().getTipp(Anna, 1, 5, 0), 3);
        QCOMPARE(h.spiel().getTipp(Bernd, 1, 0, 1), 0);
        QCOMPARE(h.spiel().getTipp(Dieter, 1, 6, 0), 7);
        QCOMPARE(h.spiel().getSpielerName(Anna), std::string("Anne"));
        QCOMPARE(h.spiel().getLigaInfo(), std::string("Andere Liga"));
        // Then as after opening, listed first and shown evaluated on its last selected matchday;
        // the game's file stays the one in the title, which a save proposes.
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("spiel.tip[*] - Kalimbo"));
        QCOMPARE(QString::fromStdString(h.spiel().Dateipfad), h.ordner.filePath("spiel.tip"));
        QCOMPARE(h.aktion("menRecent_1")->text(), QStringLiteral("andere.tip"));
        QCOMPARE(h.spiel().getAktSpieltag(), 2);
        QCOMPARE(h.label("lblSpieler", Anna)->text(), QStringLiteral("Anne"));
        QVERIFY(h.fenster->isWindowModified());
    }

    void trainerwechselDaten() {
        Dateiinhalt ohne = kleinesSpiel();
        ohne.Trainerwechsel = {};
        Hauptfenster h(ohne);
        Feld<Trainerdaten, 10> trainer;
        trainer[0] = {0, "Vorgänger", 0, 4};
        trainer[1] = {1, "Neuer Trainer", 0, 99};
        trainer[5] = {0, "Weg", 2, 3};
        trainer[6] = {1, "Interim", 1, 1};
        importiere(h, "menImpTrainer", trainerdatei(h, trainer));
        QCOMPARE(h.meldungen(), QStringList());
        QVERIFY(h.spiel().Trainerwechsel == trainer);
        QCOMPARE(h.aktion("menDieserTrainer_6")->text(), QStringLiteral("Interim"));  // the menu follows
        // Neither the game's file nor the recent list changes.
        QCOMPARE(h.spiel().Dateititel, std::string("spiel.tip"));
        QCOMPARE(h.aktion("menRecent_1")->text(), QStringLiteral("spiel.tip"));
        QVERIFY(!h.aktion("menRecent_2")->isVisible());
    }

    // A damaged tip file or a coach-change file of one record in ten: a message naming the file,
    // and the game, its file and the recent list as they were.
    void beschaedigteDateienAendernNichts() {
        Hauptfenster h(kleinesSpiel());
        importiere(h, "menTippdatei", h.schreibe("kaputt.tip", QByteArray(300, '\x7f')));
        importiere(h, "menImpTrainer",
                   h.schreibe("kurz.tip", QByteArray("\x01\x00\x02\x00"
                                                     "AB"
                                                     "\x00\x00\x05\x00",
                                                     10)));
        const QStringList meldungen = h.meldungen();
        QCOMPARE(meldungen.size(), 2);
        QVERIFY2(meldungen[0].contains("kaputt.tip") && meldungen[1].contains("kurz.tip"),
                 qPrintable(meldungen.join('|')));
        QCOMPARE(h.spiel().getSpielerName(Anna), std::string("Anna"));
        QCOMPARE(h.aktion("menDieserTrainer_0")->text(), QStringLiteral("Trainer Alt"));
        QCOMPARE(h.spiel().Trainerwechsel[1].Name, std::string("Trainer Neu"));
        QCOMPARE(h.spiel().Dateititel, std::string("spiel.tip"));
        QCOMPARE(h.aktion("menRecent_1")->text(), QStringLiteral("spiel.tip"));
        QVERIFY(!h.fenster->isWindowModified());
    }
};

KALIMBO_UI_TEST_MAIN(HauptImportTest)
#include "haupt_import_test.moc"
