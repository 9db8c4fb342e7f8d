#include "ui/frmdrucken.h"

#include <QComboBox>
#include <QImage>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "fenstertest.h"
#include "graph/textbreite.h"
#include "hauptfenster.h"
#include "kurzesspiel.h"
#include "reports/bogenhtml.h"
#include "scoring/auswertung.h"
#include "state/spieldatei.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/maler.h"

using namespace kalimbo;
using namespace kalimbo::ui;

namespace {

// "1 hoch": the number of pages and whether the first stands upright or lies ("quer").
QString seiten(const QByteArray& pdf) {
    const QString text = QString::fromLatin1(pdf);
    const auto m = QRegularExpression("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]").match(text);
    return QStringLiteral("%1 %2")
        .arg(text.count(QRegularExpression("/Type\\s*/Page(?!s)")))
        .arg(m.captured(1).toDouble() > m.captured(2).toDouble() ? "quer" : "hoch");
}

}  // namespace

class FrmDruckenTest : public ui::test::FensterTest<frmDrucken> {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> ordner;
    Spielstand spiel;

    void klick(const char* knopf) { QTest::mouseClick(kind<QPushButton>(knopf), Qt::LeftButton); }
    QString pfad(const QString& name) const { return ordner->filePath(name); }
    // Saves with the button `knopf` into `name` of the temporary folder and returns the bytes.
    QByteArray speichere(const char* knopf, const QString& name) {
        dialoge->antworten << pfad(name);
        klick(knopf);
        return ui::test::Hauptfenster::inhalt(pfad(name));
    }

  private slots:
    void init() {
        ordner = std::make_unique<QTemporaryDir>();
        erzeugeFenster();
        spiel = kalimbo::test::kurzesSpiel();
        werteAus(spiel, false);
        spiel.AktSpieltag = 1;
        spiel.Dateipfad = pfad("klein.tip").toStdString();
        fenster->zeige(spiel);
    }
    void cleanup() { schliesseFenster(); }

    // The matchday shown is chosen at first, the first kind of sheet too; shown again, the matchday
    // follows the game and the kind stays as chosen.
    void auswahlVonSpieltagUndArt() {
        QVERIFY(fenster->isWindow() && fenster->isVisible());
        auto* spieltag = kind<QComboBox>("cmbSpieltag");
        QCOMPARE(spieltag->count(), 3);
        QCOMPARE(spieltag->currentText(), QStringLiteral("2. Spieltag"));
        QVERIFY(kind<QRadioButton>("optArt_0")->isChecked());
        kind<QRadioButton>("optArt_2")->click();
        spiel.AktSpieltag = 0;
        fenster->zeige(spiel);
        QCOMPARE(spieltag->currentIndex(), 0);
        QVERIFY(kind<QRadioButton>("optArt_2")->isChecked());
    }

    // The sheet of the matchday and kind chosen, as the core builds it, proposed under the name of
    // the game file and the matchday.
    void speichernJeArt_data() {
        QTest::addColumn<int>("art");
        QTest::addColumn<int>("spieltag");
        QTest::newRow("Auswertung") << 0 << 1;
        QTest::newRow("Live-Spiel") << 1 << 0;
        QTest::newRow("Tippabgabe") << 2 << 2;
    }
    void speichernJeArt() {
        QFETCH(int, art);
        QFETCH(int, spieltag);
        kind<QRadioButton>(QStringLiteral("optArt_%1").arg(art))->click();
        kind<QComboBox>("cmbSpieltag")->setCurrentIndex(spieltag);
        const Spieltagsbogen bogen =
            erstelleBogen(spiel, spieltag, static_cast<Bogenart>(art), heutigesDatum());
        QCOMPARE(speichere("cmdHTML", "bogen.html"), QByteArray::fromStdString(bogenAlsHtml(bogen)));
        QCOMPARE(seiten(speichere("cmdPDF", "bogen.pdf")),
                 QStringLiteral("1 hoch"));  // two players fit across
        const QString name = pfad(QStringLiteral("klein Spieltag %1").arg(spieltag + 1));
        QCOMPARE(dialoge->vorschlaege, (QStringList{name + ".html", name + ".pdf"}));
    }

    // Cancelled, nothing is written; into a missing folder, the message names the file.
    void abbrechenOderFehlenderOrdnerSchreibtNichts() {
        dialoge->antworten << QString() << QString();
        klick("cmdPDF");
        klick("cmdHTML");
        speichere("cmdPDF", "fehlt/bogen.pdf");
        QCOMPARE(dialoge->titel.size(), 3);
        QCOMPARE(QDir(ordner->path()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot),
                 QStringList{});
        QCOMPARE(dialoge->meldungen.size(), 1);
        QVERIFY2(dialoge->meldungen.takeFirst().contains("bogen.pdf"), "the message names the file");
    }

    void druckenOhneDruckerBietetDasPdfAn() {
        if (!QPrinterInfo::availablePrinters().isEmpty()) QSKIP("a printer is installed here");
        const QByteArray pdf = speichere("cmdDrucken", "gedruckt.pdf");
        QCOMPARE(dialoge->titel, QStringList{"Kein Drucker eingerichtet – als PDF speichern"});
        QCOMPARE(seiten(pdf), QStringLiteral("1 hoch"));
    }

    void vorschauZeigtEineSeite() {
        spiel.Teilnehmer = {{1, 1, 1, 1, 1, 1, 1, 1, 1}};  // nine columns need the landscape page
        klick("cmdVorschau");
        QCOMPARE(dialoge->vorschauen.size(), 1);
        QCOMPARE(seiten(dialoge->vorschauen[0]), QStringLiteral("1 quer"));
    }

    // "--pdf" writes the sheet without a display; on an error it says why, exits with 1 and leaves
    // the file that was there.
    void pdfOhneFenster_data() {
        QTest::addColumn<QString>("spiel");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("meldung");
        QTest::newRow("live") << "klein.tip" << 0 << "";
        QTest::newRow("Spiel fehlt") << "fehlt.tip" << 1 << "Fehler: Die Datei „";
    }
    void pdfOhneFenster() {
        QFETCH(QString, spiel);
        QFETCH(int, code);
        QFETCH(QString, meldung);
        kalimbo::test::speichereSpiel(this->spiel, pfad("klein.tip").toStdString());
        kalimbo::test::schreibeBytes(pfad("aus.pdf").toStdString(), "alt");
        QProcess programm;
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            umgebung.remove(name);
        umgebung.insert("XDG_RUNTIME_DIR", ordner->path());
        programm.setProcessEnvironment(umgebung);
        programm.start(KALIMBO_PROGRAMM, {"--pdf", pfad("aus.pdf"), "--art", "live", pfad(spiel)});
        QVERIFY(programm.waitForFinished(-1));
        QCOMPARE(programm.exitStatus(), QProcess::NormalExit);
        QCOMPARE(programm.exitCode(), code);
        const QString fehler = QString::fromUtf8(programm.readAllStandardError());
        QVERIFY2(meldung.isEmpty() ? fehler.isEmpty() : fehler.startsWith(meldung), qPrintable(fehler));
        const QByteArray pdf = ui::test::Hauptfenster::inhalt(pfad("aus.pdf"));
        QCOMPARE(code == 0 ? seiten(pdf) : QString(pdf), code == 0 ? QStringLiteral("1 hoch") : "alt");
    }

    // The sheet sizes its columns by an estimate of the text widths; the fonts the painter really
    // uses must not be wider, or names would run over their cells.
    void geschaetzteBreitenHaltenDieEchtenSchriften() {
        QImage bild(10, 10, QImage::Format_RGB32);
        QStringList namen{"Heim", "Gast", "Ergebnis", "Punkte Spieltag", "Platz gesamt", "10:10"};
        for (const char* datei : {"/bundesliga-2005-06.tip", "/premier-league-2010-11.tip"}) {
            const Dateiinhalt d = ladeSpieldatei(KALIMBO_SAMPLE_DATA + std::string(datei));
            for (int t = 0; t <= d.AnzTeams; ++t)
                namen << text(d.Teamname[t]);
            for (const auto& name : d.Spielername)
                namen << text(name);
        }
        for (const bool fett : {false, true})
            for (const QString& name : namen) {
                const QFont f = schrift("Arial", 10, fett, 1.0 / 15, bild);
                const double echt = QFontMetricsF(f, &bild).horizontalAdvance(name) * 15;  // twips at 96 dpi
                QVERIFY2(grafik::geschaetzteTextbreite(name.toStdString(), 10, fett) >= echt,
                         qPrintable(QStringLiteral("%1: %2").arg(name).arg(echt)));
            }
    }
};

KALIMBO_UI_TEST_MAIN(FrmDruckenTest)

#include "frmdrucken_test.moc"
