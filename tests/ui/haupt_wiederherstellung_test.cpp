// The recovery copy of unsaved changes: kept while the game has unsaved changes and when the window
// quits, offered at the next start while its window is gone, never while it runs; removed by
// saving, by "Nein" or by closing an unchanged game; a damaged one reported and moved aside.
#include <QDir>
#include <QGroupBox>
#include <QProcess>
#include <QThread>
#include <iostream>

#include "hauptfenster.h"
#include "testdaten.h"
#include "ui/haupt/wiederherstellung.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;
using Antwort = Dialoge::Antwort;

namespace {

QStringList kopien(const QString& unterordner = {}) {
    return QDir(Wiederherstellung::standardOrdner() + unterordner).entryList({"kopie-*.tip"}, QDir::Files);
}

// Waits, handling events, until a recovery copy is there (or a few seconds have passed).
bool warteAufKopie() {
    for (int i = 0; i < 100 && kopien().isEmpty(); ++i)
        QTest::qWait(50);
    return !kopien().isEmpty();
}

// The child process: opens the game, counts a goal, and once the copy is written says so and
// waits to be killed.
int kind(const char* spiel) {
    TestDialoge dialoge;
    frmVela_Haupt fenster(dialoge, spiel);
    fenster.starte();
    QTest::mouseClick(fenster.findChild<QLabel*>(QStringLiteral("lblHeimTeam_4")), Qt::LeftButton);
    if (!warteAufKopie()) return 1;
    std::cout << "bereit" << std::endl;
    for (;;)
        QThread::sleep(1);
}

}  // namespace

class HauptWiederherstellungTest : public QObject {
    Q_OBJECT

  private slots:
    // A running window's copy is not offered to a second one; once it is killed, it is.
    void nurDieKopieEinesBeendetenFenstersWirdAngeboten() {
        QTemporaryDir ordner;
        const QString spiel = ordner.filePath("spiel.tip");
        speichereSpieldatei(QFile::encodeName(spiel).toStdString(), kleinesSpiel());
        QProcess prozess;
        prozess.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--kind"), spiel});
        QVERIFY(prozess.waitForReadyRead(20000));
        QCOMPARE(prozess.readAllStandardOutput().trimmed(), QByteArray("bereit"));
        {
            TestDialoge dialoge;
            frmVela_Haupt zweites(dialoge);
            zweites.starte();
            QVERIFY(dialoge.fragen.isEmpty());
        }
        prozess.kill();
        QVERIFY(prozess.waitForFinished());

        Hauptfenster h(Hauptfenster::Wiederherstellen{Antwort::Ja});
        QCOMPARE(h.dialoge.fragen.size(), 1);
        QVERIFY2(QRegularExpression(QStringLiteral("^Ungespeicherte Änderungen vom \\d\\d\\.\\d\\d\\.\\d{4}, "
                                                   "\\d\\d:\\d\\d wiederherstellen\\?$"))
                     .match(h.dialoge.fragen[0])
                     .hasMatch(),
                 qPrintable(h.dialoge.fragen[0]));
        QCOMPARE(h.spiel().getErgebnis(1, 4, 0), 2);  // Jena - Kiel 1:2 with the goal counted
        QCOMPARE(h.feld("txtHeimErgebnis", 4)->text(), QStringLiteral("2"));
        QCOMPARE(QString::fromStdString(h.spiel().Dateipfad), spiel);  // proposed for saving
        QVERIFY(h.fenster->isWindowModified());
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("spiel.tip[*] - Kalimbo"));
    }

    // Quitting keeps the copy; Escape ("later") leaves it for the next start, "Nein" removes it.
    void beendenBehaeltDieKopieBisJaOderNein() {
        Hauptfenster h(kleinesSpiel());
        h.feld("txtHeimTipp", Anna * 10 + 3)->setText("4");  // typed, not yet taken: in the copy too
        h.aktion("menReg2")->trigger();
        h.fenster->close();  // at once, before the copy's moment has come
        QCOMPARE(kopien().size(), 1);
        for (const Antwort antwort : {Antwort::Abbrechen, Antwort::Nein, Antwort::Nein}) {
            h.dialoge.jaNein = {antwort};
            h.neuStarten();
            QCOMPARE(h.spiel().Modus, 2);  // not restored
        }
        QCOMPARE(h.dialoge.fragen.size(), 2);  // the third start found nothing
        QVERIFY(kopien().isEmpty());
    }

    void speichernOderUnveraendertSchliessenEntferntSie() {
        Hauptfenster h(kleinesSpiel());
        h.klick(h.label("lblHeimTeam", 0));
        QVERIFY(warteAufKopie());
        h.dialoge.antworten << h.ordner.filePath("gesichert.tip");
        h.aktion("menSpeichern")->trigger();
        QTest::qWait(400);  // and nothing writes it again
        QVERIFY(kopien().isEmpty());
        h.klick(h.label("lblHeimTeam", 0));
        QVERIFY(warteAufKopie());
        h.oeffneSpiel();  // the changes dropped ("Verwerfen"): the copy goes with them
        h.fenster->close();
        QVERIFY(kopien().isEmpty());
    }

    // With a copy pending and a game named at start, the question comes first: "Ja" takes the
    // copy, anything else opens the game named.
    void kopieVorDemStartargument_data() {
        QTest::addColumn<int>("antwort");
        QTest::addColumn<int>("modus");
        QTest::addColumn<QString>("zuletzt");  // the game named is not even read when the copy is taken
        QTest::newRow("ja") << int(Antwort::Ja) << 0 << "spiel.tip";
        QTest::newRow("nein") << int(Antwort::Nein) << 2 << "anderes.tip";
    }
    void kopieVorDemStartargument() {
        QFETCH(int, antwort);
        Hauptfenster h(kleinesSpiel());
        h.aktion("menReg2")->trigger();
        h.fenster->close();
        h.fenster.reset();
        h.dialoge.jaNein = {Antwort(antwort)};
        const QString anderes = h.speichere("anderes.tip", kleinesSpiel(20));
        h.fenster = std::make_unique<frmVela_Haupt>(h.dialoge, QFile::encodeName(anderes).toStdString());
        h.fenster->starte();
        QCOMPARE(h.dialoge.fragen.size(), 1);
        QTEST(int(h.spiel().Modus), "modus");
        QTEST(h.aktion("menRecent_1")->text(), "zuletzt");
        QCOMPARE(h.spiel().AnzTeams, antwort == int(Antwort::Ja) ? 17 : 19);
    }

    // A copy that cannot be read is reported, naming where it now lies, and not offered again.
    void beschaedigteKopieWirdBeiseiteGelegt_data() {
        QTest::addColumn<QString>("datei");
        QTest::newRow("spiel") << "tip";
        QTest::newRow("angaben") << "ini";
    }
    void beschaedigteKopieWirdBeiseiteGelegt() {
        QFETCH(QString, datei);
        Hauptfenster h(kleinesSpiel());
        h.aktion("menReg2")->trigger();
        h.fenster->close();
        const QString kopie = Wiederherstellung::standardOrdner() + "/" + kopien()[0];
        kalimbo::test::schreibeBytes(QFile::encodeName(kopie.chopped(3) + datei).toStdString(),
                                     "[Allgemein\nzeit=morgen\n");
        h.neuStarten();
        QVERIFY(h.dialoge.fragen.isEmpty());
        const QStringList meldungen = h.meldungen();
        QCOMPARE(meldungen.size(), 1);
        QCOMPARE(kopien("/beschaedigt").size(), 1);
        QVERIFY2(meldungen[0].contains("beschaedigt/" + kopien("/beschaedigt")[0]), qPrintable(meldungen[0]));
        QVERIFY(kopien().isEmpty());
    }
};

int main(int argc, char** argv) {
    if (argc == 3 && QByteArray(argv[1]) == "--kind") {
        QApplication app(argc, argv);
        return kind(argv[2]);
    }
    HauptWiederherstellungTest test;
    return fuehreAus(test, argc, argv);
}

#include "haupt_wiederherstellung_test.moc"
