// The program's own command line: help, version and wrong calls, read before any window exists,
// checked as the real program answers them.
#include <QProcess>
#include <QtTest>

#include "app/programmaufruf.h"

using namespace kalimbo::app;

class ProgrammaufrufTest : public QObject {
    Q_OBJECT

    struct Antwort {
        int code;
        QString aus, fehler;
    };
    static Antwort starte(const QStringList& argumente) {
        QProcess p;
        p.start(QStringLiteral(KALIMBO_PROGRAMM), argumente);
        p.waitForFinished(20000);
        return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }

  private slots:
    void lesen_data() {
        QTest::addColumn<QStringList>("argumente");
        QTest::addColumn<int>("art");
        QTest::addColumn<QString>("spiel");
        QTest::newRow("nichts") << QStringList{} << int(Programmaufruf::Fenster) << "";
        QTest::newRow("Spiel") << QStringList{"a.tip"} << int(Programmaufruf::Fenster) << "a.tip";
        QTest::newRow("Hilfe") << QStringList{"a.tip", "--help"} << int(Programmaufruf::Hilfe) << "";
        QTest::newRow("kurz") << QStringList{"-h"} << int(Programmaufruf::Hilfe) << "";
        QTest::newRow("Version") << QStringList{"--version"} << int(Programmaufruf::Version) << "";
        QTest::newRow("PDF") << QStringList{"--pdf", "x.pdf", "a.tip"} << int(Programmaufruf::Pdf) << "";
        QTest::newRow("unbekannt") << QStringList{"--bunt"} << int(Programmaufruf::Falsch) << "";
        QTest::newRow("zwei Spiele") << QStringList{"a.tip", "b.tip"} << int(Programmaufruf::Falsch) << "";
    }
    void lesen() {
        QFETCH(QStringList, argumente);
        std::vector<QByteArray> texte{"kalimbo"};
        for (const QString& a : argumente)
            texte.push_back(a.toUtf8());
        std::vector<char*> argv;
        for (QByteArray& t : texte)
            argv.push_back(t.data());
        const Programmaufruf aufruf = leseProgrammaufruf(static_cast<int>(argv.size()), argv.data());
        QTEST(int(aufruf.art), "art");
        QTEST(QString::fromStdString(aufruf.spiel), "spiel");
    }

    void dasProgrammAntwortetOhneFenster() {
        const Antwort hilfe = starte({"--help"});
        QCOMPARE(hilfe.code, 0);
        QVERIFY(hilfe.aus.startsWith(QStringLiteral("Aufruf: kalimbo [SPIEL.tip]")));
        QVERIFY(hilfe.aus.contains(QStringLiteral("--version")));
        const Antwort version = starte({"--version"});
        QCOMPARE(version.code, 0);
        QCOMPARE(version.aus, QStringLiteral("Kalimbo Version: zorb 5.0.1 [04.08.2006]\n"));
        const Antwort falsch = starte({"--bunt"});
        QCOMPARE(falsch.code, 2);
        QVERIFY(falsch.fehler.startsWith(QStringLiteral("Unbekannte Option --bunt.\nAufruf: kalimbo")));
        QCOMPARE(falsch.aus, QString());
    }
};

QTEST_GUILESS_MAIN(ProgrammaufrufTest)
#include "programmaufruf_test.moc"
