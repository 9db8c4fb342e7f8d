// Opening and saving games from the main window: the recent-files list and its settings, the
// file a save proposes, refused files, the window title, and what opening shows at once.
#include <sys/stat.h>
#include <unistd.h>
#include <QDir>
#include <QGroupBox>
#include <QPushButton>
#include <QSettings>

#include "hauptfenster.h"
#include "state/spieldatei.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptDateienTest : public QObject {
    Q_OBJECT

    static QStringList zuletztSchluessel() {
        QSettings s(QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo"));
        s.beginGroup(QStringLiteral("Letzten Dateien"));
        QStringList werte;
        for (const char* k : {"Datei1", "Datei2", "Datei3", "Datei1b", "Datei2b", "Datei3b"})
            werte << (s.contains(k) ? s.value(k).toString() : QStringLiteral("<fehlt>"));
        return werte;
    }
    static QStringList zuletztMenue(const Hauptfenster& h) {
        return {h.aktion("menRecent_1")->text(), h.aktion("menRecent_2")->text(),
                h.aktion("menRecent_3")->text()};
    }

  private slots:
    void zuletztGeoeffneteDateien() {
        Hauptfenster h;
        QStringList pfade;
        for (const char* name : {"A.tip", "B.tip", "C.tip"})
            pfade << h.speichere(name, kleinesSpiel());
        for (const QString& p : pfade)
            h.oeffne(p);
        QCOMPARE(zuletztMenue(h), (QStringList{"C.tip", "B.tip", "A.tip"}));
        QTRY_COMPARE(zuletztSchluessel(),
                     (QStringList{pfade[2], pfade[1], pfade[0], "C.tip", "B.tip", "A.tip"}));
        h.oeffne(pfade[1]);
        QCOMPARE(zuletztMenue(h), (QStringList{"B.tip", "C.tip", "A.tip"}));
        h.oeffne(pfade[0]);
        QCOMPARE(zuletztMenue(h), (QStringList{"A.tip", "B.tip", "C.tip"}));

        // Reopening the newest file moves nothing but still writes every key.
        QSettings(QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo"))
            .remove(QStringLiteral("Letzten Dateien/Datei3b"));
        h.oeffne(pfade[0]);
        QTRY_COMPARE(zuletztSchluessel(),
                     (QStringList{pfade[0], pfade[1], pfade[2], "A.tip", "B.tip", "C.tip"}));

        // A recent file becomes the game's file, in the title and proposed by a save.
        h.aktion("menRecent_3")->trigger();
        QCOMPARE(zuletztMenue(h), (QStringList{"C.tip", "A.tip", "B.tip"}));
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("C.tip[*] - Kalimbo"));
        h.aktion("menSpeichern")->trigger();  // cancelled
        QCOMPARE(h.dialoge.vorschlaege, QStringList{pfade[2]});

        h.neuStarten();  // the list survives
        QCOMPARE(zuletztMenue(h), (QStringList{"C.tip", "A.tip", "B.tip"}));
        QCOMPARE(h.aktion("menRecent_1")->toolTip(), pfade[2]);
    }

    // Something typed counts as a change: before another game is opened the user is asked, before
    // any file dialog. Abbrechen keeps everything; Speichern saves first, then opens.
    void aenderungenWerdenVorDemOeffnenErfragt_data() {
        QTest::addColumn<int>("antwort");
        QTest::addColumn<QStringList>("dateien");  // chosen in the file dialogs, in order
        QTest::addColumn<int>("teams");            // of the game shown afterwards
        QTest::addColumn<int>("gespeichert");      // the home goals of the typed result in spiel.tip
        QTest::newRow("abbrechen") << int(Dialoge::Antwort::Abbrechen) << QStringList{} << 18 << 1;
        QTest::newRow("verwerfen") << int(Dialoge::Antwort::Nein) << QStringList{"andere.tip"} << 20 << 1;
        QTest::newRow("speichern") << int(Dialoge::Antwort::Ja) << QStringList{"spiel.tip", "andere.tip"}
                                   << 20 << 17;
    }
    void aenderungenWerdenVorDemOeffnenErfragt() {
        QFETCH(int, antwort);
        QFETCH(QStringList, dateien);
        Hauptfenster h(kleinesSpiel());
        h.speichere("andere.tip", kleinesSpiel(20));
        QTest::keyClick(h.feld("txtHeimErgebnis", 0), Qt::Key_7);  // 1:0 becomes 17:0
        h.dialoge.speicherantworten = {Dialoge::Antwort(antwort)};
        h.dialoge.titel.clear();
        for (const QString& datei : dateien)
            h.dialoge.antworten << h.ordner.filePath(datei);
        h.aktion("menOeffnen")->trigger();
        QCOMPARE(h.dialoge.speicherfragen, QStringList{"spiel.tip"});
        QCOMPARE(h.dialoge.titel.size(), dateien.size());
        QTEST(h.spiel().getAnzTeams() + 1, "teams");
        QTEST(int(ladeSpieldatei(QFile::encodeName(h.ordner.filePath("spiel.tip")).toStdString())
                      .ErgebnisDatei[1][0][0]),
              "gespeichert");
        h.dialoge.speicherantworten = {Dialoge::Antwort::Abbrechen};
        h.aktion("menRecent_1")->trigger();  // asked again only while there are changes
        QCOMPARE(h.dialoge.speicherfragen.size(), antwort == int(Dialoge::Antwort::Abbrechen) ? 2 : 1);
    }

    void kaufmannsUndImDateinamen() {
        Hauptfenster h;
        h.oeffne(h.speichere("Müller & Co.tip", kleinesSpiel()));
        QAction* eintrag = h.aktion("menRecent_1");
        QCOMPARE(eintrag->text(), QStringLiteral("Müller && Co.tip"));  // shown as one "&", no mnemonic
        QTRY_COMPARE(zuletztSchluessel()[3], QStringLiteral("Müller & Co.tip"));
    }

    void titelZeigtUngespeicherteAenderungen() {
        Hauptfenster h;
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("Kalimbo[*]"));
        h.oeffneSpiel();
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("spiel.tip[*] - Kalimbo"));
        QVERIFY(!h.fenster->isWindowModified());
        h.aktion("menReg2")->trigger();
        QVERIFY(h.fenster->isWindowModified());
        h.feld("txtHeimTipp", Anna * 10 + 6)->setText("6");  // typed, not yet taken: saved all the same
        const QString neu = h.ordner.filePath("neu.tip");
        h.dialoge.antworten << neu;
        h.aktion("menSpeichern")->trigger();
        QCOMPARE(h.dialoge.vorschlaege, QStringList{h.ordner.filePath("spiel.tip")});
        QCOMPARE(ladeSpieldatei(QFile::encodeName(neu).toStdString()).TippDatei[Anna][1][6][0], 6);
        QVERIFY(!h.fenster->isWindowModified());
        QCOMPARE(h.fenster->windowTitle(), QStringLiteral("neu.tip[*] - Kalimbo"));
        QCOMPARE(h.aktion("menRecent_1")->text(), QStringLiteral("neu.tip"));
        h.klick(h.label("lblAuswahl", 5));
        QVERIFY(h.fenster->isWindowModified());
        h.oeffneSpiel();
        QVERIFY(!h.fenster->isWindowModified());
        h.klick(h.label("lblHeimTeam", 0));
        QVERIFY(h.fenster->isWindowModified());
        h.oeffneSpiel();
        QFocusEvent hinein(QEvent::FocusIn, Qt::MouseFocusReason);
        QApplication::sendEvent(h.feld("txtHeimTipp", 0), &hinein);
        QVERIFY(!h.fenster->isWindowModified());  // entering a box changes nothing
        QTest::keyClick(h.feld("txtHeimTipp", 0), Qt::Key_4);
        QVERIFY(h.fenster->isWindowModified());
    }

    void beschaedigteOderFehlendeDateiLaesstDasSpielStehen() {
        Hauptfenster h(kleinesSpiel());
        h.oeffne(h.schreibe("kaputt.tip", QByteArray(5000, 'x')));
        const QStringList meldungen = h.meldungen();
        QCOMPARE(meldungen.size(), 1);
        QVERIFY2(
            meldungen[0].contains(QStringLiteral("kaputt.tip“ ist beschädigt oder keine Tippspiel-Datei")),
            qPrintable(meldungen[0]));
        QCOMPARE(h.spiel().Dateititel, std::string("spiel.tip"));
        QCOMPARE(h.spiel().getTeamName(0), std::string("Aachen"));
        QCOMPARE(h.aktion("menRecent_1")->text(), QStringLiteral("spiel.tip"));

        const QString weg = h.speichere("weg.tip", kleinesSpiel(20));
        h.oeffne(weg);
        h.oeffneSpiel();
        QFile::remove(weg);
        h.aktion("menRecent_2")->trigger();
        QVERIFY(h.meldungen().join("").contains(QStringLiteral("konnte nicht geöffnet werden")));
        QCOMPARE(h.spiel().getAnzTeams(), 17);
    }

    // Only regular files are opened, and at once: a named pipe is refused without waiting for
    // data. A file name that is not UTF-8 opens from the command line, relative to the folder the
    // program starts in, and is saved to again.
    void sonderdateienUndNamenAusBytes() {
        Hauptfenster h;
        const QString fifo = h.ordner.filePath("f.tip");
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        h.oeffne(fifo);
        QVERIFY(h.meldungen().join("").contains(QStringLiteral("keine gewöhnliche Datei")));
        const std::string name = QFile::encodeName(h.ordner.path()).toStdString() + "/sp\xe4l.tip";
        speichereSpieldatei(name, kleinesSpiel(20));
        const QString vorher = QDir::currentPath();
        QDir::setCurrent(h.ordner.path());
        h.fenster = std::make_unique<frmVela_Haupt>(h.dialoge, "./sp\xe4l.tip");
        h.fenster->starte();
        QDir::setCurrent(vorher);
        QCOMPARE(h.spiel().Dateipfad, name);
        QCOMPARE(h.spiel().getAnzTeams(), 19);
        h.aktion("menReg2")->trigger();
        h.dialoge.antworten << QFile::decodeName(QByteArray::fromStdString(name));  // the proposal
        h.aktion("menSpeichern")->trigger();
        QCOMPARE(ladeSpieldatei(name).Modus, 0);
    }

    void speichernAnEinenUnbeschreibbarenOrtLaesstDieAlteDatei() {
        Hauptfenster h;
        const QString nurLesen = h.ordner.filePath("nurlesen");
        QVERIFY(QDir().mkdir(nurLesen));
        const QString ziel = nurLesen + "/alt.tip";
        speichereSpieldatei(QFile::encodeName(ziel).toStdString(), kleinesSpiel(20));
        const QByteArray vorher = Hauptfenster::inhalt(ziel);
        h.oeffneSpiel();
        QFile::setPermissions(nurLesen, QFile::ReadOwner | QFile::ExeOwner);
        h.dialoge.antworten << ziel;
        // Root may write anywhere, so as root (as in CI) the save runs under an unprivileged user.
        const bool root = geteuid() == 0;
        if (root && seteuid(65534) != 0) QSKIP("cannot drop privileges");
        h.aktion("menSpeichern")->trigger();
        if (root) QVERIFY(seteuid(0) == 0);
        QFile::setPermissions(nurLesen, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QStringList meldungen = h.meldungen();
        QCOMPARE(meldungen.size(), 1);
        QVERIFY(meldungen[0].contains(QStringLiteral("alt.tip“ konnte nicht gespeichert werden")));
        QCOMPARE(Hauptfenster::inhalt(ziel), vorher);
        QCOMPARE(h.spiel().Dateititel, std::string("spiel.tip"));
        QCOMPARE(h.aktion("menRecent_1")->text(), QStringLiteral("spiel.tip"));
    }
};

KALIMBO_UI_TEST_MAIN(HauptDateienTest)
#include "haupt_dateien_test.moc"
