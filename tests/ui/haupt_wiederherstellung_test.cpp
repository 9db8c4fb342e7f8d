// The recovery copy of unsaved changes: kept while the game has unsaved changes, offered at the
// next start after the program was killed, removed by saving or by closing an unchanged game.
#include <QGroupBox>
#include <QProcess>
#include <QThread>
#include <iostream>

#include "hauptfenster.h"
#include "ui/haupt/wiederherstellung.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

namespace {

// Waits, handling events, until the recovery copy is there (or a few seconds have passed).
bool warteAufKopie() {
    for (int i = 0; i < 100 && !Wiederherstellung().vorhandene(); ++i)
        QTest::qWait(50);
    return Wiederherstellung().vorhandene().has_value();
}

// The child process: opens the game, counts a goal, and once the copy is written says so and
// waits to be killed.
int kind(const QString& spiel) {
    TestDialoge dialoge;
    frmVela_Haupt fenster(dialoge, spiel);
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
    void nachEinemKillWirdAngeboten() {
        QTemporaryDir ordner;
        const QString spiel = ordner.filePath("spiel.tip");
        speichereSpieldatei(QFile::encodeName(spiel).toStdString(), kleinesSpiel());
        QProcess prozess;
        prozess.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--kind"), spiel});
        QVERIFY(prozess.waitForReadyRead(20000));
        QCOMPARE(prozess.readAllStandardOutput().trimmed(), QByteArray("bereit"));
        prozess.kill();
        QVERIFY(prozess.waitForFinished());

        Hauptfenster h(Hauptfenster::Wiederherstellen{true});
        QCOMPARE(h.dialoge.fragen.size(), 1);
        QVERIFY2(QRegularExpression(QStringLiteral("^Ungespeicherte Änderungen vom .+ wiederherstellen\\?$"))
                     .match(h.dialoge.fragen[0])
                     .hasMatch(),
                 qPrintable(h.dialoge.fragen[0]));
        QCOMPARE(h.spiel().getErgebnis(1, 4, 0), 2);  // Jena - Kiel 1:2 with the goal counted
        QCOMPARE(h.feld("txtHeimErgebnis", 4)->text(), QStringLiteral("2"));
        QCOMPARE(QString::fromStdString(h.spiel().Dateipfad), spiel);  // proposed for saving
        QVERIFY(h.fenster->isWindowModified());
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("spiel.tip[*] - Kalimbo"));
        QVERIFY(
            h.kind<QGroupBox>("fraBlitztabelle")->title().startsWith(QStringLiteral("Blitztabelle [---, ")));
    }

    void neinVerwirftDieKopie() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.klick(h.label("lblHeimTeam", 0));
        QVERIFY(warteAufKopie());
        h.neuStarten();  // answered "Nein"
        QCOMPARE(h.dialoge.fragen.size(), 1);
        QVERIFY(!Wiederherstellung().vorhandene());
        QCOMPARE(h.spiel().getErgebnis(1, 0, 0), 0);  // an empty game: nothing was restored
    }

    void speichernEntferntDieKopie() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.klick(h.label("lblHeimTeam", 0));
        QVERIFY(warteAufKopie());
        h.dialoge.antworten << h.ordner.filePath("gesichert.tip");
        h.aktion("menSpeichern")->trigger();
        QTest::qWait(400);  // and nothing writes it again
        QVERIFY(!Wiederherstellung().vorhandene());
    }

    void schliessenMitAenderungenBehaeltSieSonstNicht() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.feld("txtHeimTipp", Anna * 10 + 3)->setText("4");  // typed, not yet taken: in the copy too
        h.aktion("menReg2")->trigger();
        h.fenster->close();  // at once, before the copy's moment has come
        const auto kopie = Wiederherstellung().vorhandene();
        QVERIFY(kopie.has_value());
        QCOMPARE(kopie->inhalt.Modus, 0);
        QCOMPARE(kopie->inhalt.TippDatei[Anna][1][3][0], 4);
        QCOMPARE(kopie->pfad, h.ordner.filePath("spiel.tip"));

        h.neuStarten();
        h.dialoge.fragen.clear();
        h.oeffneSpiel();
        h.fenster->close();  // unchanged
        QVERIFY(!Wiederherstellung().vorhandene());
    }
};

int main(int argc, char** argv) {
    if (argc == 3 && QByteArray(argv[1]) == "--kind") {
        QApplication app(argc, argv);
        return kind(QString::fromLocal8Bit(argv[2]));
    }
    HauptWiederherstellungTest test;
    return fuehreAus(test, argc, argv);
}

#include "haupt_wiederherstellung_test.moc"
