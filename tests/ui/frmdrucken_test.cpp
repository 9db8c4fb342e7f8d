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
#include <QXmlStreamReader>
#include <QtTest>
#include <memory>
#include <sstream>

#include "app/pdfbefehl.h"
#include "fenstertest.h"
#include "graph/textbreite.h"
#include "hauptfenster.h"
#include "kurzesspiel.h"
#include "scoring/auswertung.h"
#include "state/spieldatei.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/maler.h"

using namespace kalimbo;
using namespace kalimbo::ui;

namespace {

QByteArray lies(const QString& pfad) {
    QFile f(pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void schreibe(const QString& pfad, const QByteArray& inhalt) {
    QFile f(pfad);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(inhalt);
}

int seitenzahl(const QByteArray& pdf) {
    return static_cast<int>(QString::fromLatin1(pdf).count(QRegularExpression("/Type\\s*/Page(?!s)")));
}

// "hoch" or "quer" by the page's media box, empty when there is none.
QString ausrichtung(const QByteArray& pdf) {
    const auto m =
        QRegularExpression("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]").match(QString::fromLatin1(pdf));
    if (!m.hasMatch()) return {};
    return m.captured(1).toDouble() > m.captured(2).toDouble() ? "quer" : "hoch";
}

// The texts of an HTML page read as XML, in document order; the reader's error when it is not
// well-formed.
QStringList texte(const QByteArray& html) {
    QXmlStreamReader leser(html);
    QStringList t;
    while (!leser.atEnd())
        if (leser.readNext() == QXmlStreamReader::Characters && !leser.isWhitespace())
            t << leser.text().toString();
    if (leser.hasError()) return {"Fehler: " + leser.errorString()};
    return t;
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
        return lies(pfad(name));
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

    void auswahlVonSpieltagUndArt() {
        QCOMPARE(fenster->objectName(), QStringLiteral("frmDrucken"));
        QVERIFY(fenster->isWindow() && fenster->isVisible());
        auto* spieltag = kind<QComboBox>("cmbSpieltag");
        QCOMPARE(spieltag->count(), 3);
        QCOMPARE(spieltag->currentIndex(), 1);  // the matchday shown
        QCOMPARE(spieltag->currentText(), QStringLiteral("2. Spieltag"));
        QStringList arten;
        for (int i = 0; i < 3; ++i)
            arten << kind<QRadioButton>(QStringLiteral("optArt_%1").arg(i))->text();
        QCOMPARE(arten, (QStringList{"Auwertung (Ergebnisse und Tipps)",
                                     "Live-Spiel (getippt, Ergebnisse unbekannt)",
                                     "Tippabgabe (Spalten bleiben leer)"}));
        QVERIFY(kind<QRadioButton>("optArt_0")->isChecked());
        QStringList knoepfe;
        for (const char* k : {"cmdVorschau", "cmdDrucken", "cmdPDF", "cmdHTML"})
            knoepfe << kind<QPushButton>(k)->text();
        QCOMPARE(knoepfe, (QStringList{"Vorschau", "Drucken", "Als PDF speichern", "Als HTML speichern"}));

        // Shown again: the matchday follows the game, the kind stays as chosen.
        kind<QRadioButton>("optArt_2")->click();
        spiel.AktSpieltag = 0;
        fenster->zeige(spiel);
        QCOMPARE(spieltag->currentIndex(), 0);
        QVERIFY(kind<QRadioButton>("optArt_2")->isChecked());
    }

    void pdfMitEinerSeite() {
        const QByteArray pdf = speichere("cmdPDF", "bogen.pdf");
        QVERIFY(pdf.startsWith("%PDF-"));
        QCOMPARE(seitenzahl(pdf), 1);
        QCOMPARE(ausrichtung(pdf), QStringLiteral("hoch"));  // two players fit across
        QCOMPARE(dialoge->titel, QStringList{"Als PDF speichern"});
        QCOMPARE(dialoge->vorschlaege, QStringList{pfad("klein Spieltag 2.pdf")});
    }

    void htmlJeArt_data() {
        QTest::addColumn<int>("art");
        QTest::addColumn<int>("spieltag");
        QTest::addColumn<bool>("ergebnisse");
        QTest::newRow("Auswertung") << 0 << 1 << true;
        QTest::newRow("Live-Spiel") << 1 << 0 << false;
        QTest::newRow("Tippabgabe") << 2 << 2 << false;
    }
    void htmlJeArt() {
        QFETCH(int, art);
        QFETCH(int, spieltag);
        QFETCH(bool, ergebnisse);
        kind<QRadioButton>(QStringLiteral("optArt_%1").arg(art))->click();
        kind<QComboBox>("cmbSpieltag")->setCurrentIndex(spieltag);
        const QStringList t = texte(speichere("cmdHTML", "bogen.html"));
        QVERIFY2(!t.isEmpty() && !t.first().startsWith("Fehler"), qPrintable(t.value(0)));
        for (int k = 0; k <= spiel.AnzSpiele; ++k)
            for (int seite = 0; seite < 2; ++seite)
                QVERIFY(t.contains(text(spiel.getTeamName(spiel.getPaarung(spieltag, k, seite)))));
        QVERIFY(t.contains("Anna") && t.contains("Carl") && !t.contains("Bernd"));
        const QString ergebnis = QStringLiteral("%1:%2")
                                     .arg(spiel.getErgebnis(spieltag, 2, 0))
                                     .arg(spiel.getErgebnis(spieltag, 2, 1));
        QCOMPARE(t.contains(ergebnis), ergebnisse);
        QCOMPARE(dialoge->vorschlaege,
                 QStringList{pfad(QStringLiteral("klein Spieltag %1.html").arg(spieltag + 1))});
    }

    void abbrechenTutNichts() {
        dialoge->antworten << QString() << QString();
        klick("cmdPDF");
        klick("cmdHTML");
        QCOMPARE(dialoge->titel.size(), 2);
        QCOMPARE(QDir(ordner->path()).entryList(QDir::Files), QStringList{});
    }

    void schreibfehlerInEinenFehlendenOrdner() {
        speichere("cmdPDF", "fehlt/bogen.pdf");
        QCOMPARE(dialoge->meldungen.size(), 1);
        QVERIFY2(dialoge->meldungen.takeFirst().contains("bogen.pdf"), "the message names the file");
        QVERIFY(!QFile::exists(pfad("fehlt/bogen.pdf")));
    }

    void druckenOhneDruckerBietetDasPdfAn() {
        if (!QPrinterInfo::availablePrinters().isEmpty()) QSKIP("a printer is installed here");
        const QByteArray pdf = speichere("cmdDrucken", "gedruckt.pdf");
        QCOMPARE(dialoge->titel, QStringList{"Kein Drucker eingerichtet – als PDF speichern"});
        QCOMPARE(seitenzahl(pdf), 1);
    }

    void vorschauZeigtEineSeite() {
        spiel.Teilnehmer = {{1, 1, 1, 1, 1, 1, 1, 1, 1}};  // nine columns need the landscape page
        klick("cmdVorschau");
        QCOMPARE(dialoge->vorschauen.size(), 1);
        QCOMPARE(seitenzahl(dialoge->vorschauen[0]), 1);
        QCOMPARE(ausrichtung(dialoge->vorschauen[0]), QStringLiteral("quer"));
    }

    void pdfOhneFenster_data() {
        QTest::addColumn<QStringList>("optionen");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("meldung");
        QTest::newRow("Vorgaben") << QStringList{} << 0 << "";
        QTest::newRow("Tippabgabe 3") << QStringList{"--art", "tippabgabe", "--spieltag", "3"} << 0 << "";
        QTest::newRow("Art falsch") << QStringList{"--art", "alles"} << 1
                                    << "--art erwartet auswertung, live oder tippabgabe, nicht „alles“.\n"
                                       "Aufruf: kalimbo --pdf AUSGABE.pdf [--spieltag N] [--art "
                                       "auswertung|live|tippabgabe] SPIEL.tip\n";
        QTest::newRow("Spieltag 4") << QStringList{"--spieltag", "4"} << 1
                                    << "--spieltag muss eine ganze Zahl von 1 bis 3 sein, nicht „4“.\n"
                                       "Aufruf: kalimbo --pdf AUSGABE.pdf [--spieltag N] [--art "
                                       "auswertung|live|tippabgabe] SPIEL.tip\n";
        QTest::newRow("Spiel fehlt") << QStringList{"FEHLT"} << 1 << "Fehler: Die Datei „";
    }
    void pdfOhneFenster() {
        QFETCH(QStringList, optionen);
        QFETCH(int, code);
        QFETCH(QString, meldung);
        kalimbo::test::speichereSpiel(spiel, pfad("klein.tip").toStdString());
        schreibe(pfad("aus.pdf"), "alt");
        std::vector<std::string> aufruf{"--pdf", pfad("aus.pdf").toStdString()};
        for (const QString& o : optionen)
            aufruf.push_back(o == "FEHLT" ? pfad("fehlt.tip").toStdString() : o.toStdString());
        if (!optionen.contains("FEHLT")) aufruf.push_back(pfad("klein.tip").toStdString());
        std::ostringstream fehler;
        QCOMPARE(app::schreibePdf(aufruf, fehler), code);
        QVERIFY2(QString::fromStdString(fehler.str()).startsWith(meldung), fehler.str().c_str());
        if (meldung.isEmpty()) QCOMPARE(QString::fromStdString(fehler.str()), QString());
        const QByteArray pdf = lies(pfad("aus.pdf"));
        if (code == 0)
            QCOMPARE(seitenzahl(pdf), 1);
        else
            QCOMPARE(pdf, QByteArray("alt"));
    }

    void pdfOhneFensterBrauchtKeineAnzeige() {
        kalimbo::test::speichereSpiel(spiel, pfad("klein.tip").toStdString());
        QProcess programm;
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            umgebung.remove(name);
        umgebung.insert("XDG_RUNTIME_DIR", ordner->path());
        programm.setProcessEnvironment(umgebung);
        programm.start(KALIMBO_PROGRAMM, {"--pdf", pfad("aus.pdf"), "--art", "live", pfad("klein.tip")});
        QVERIFY(programm.waitForFinished(-1));
        QCOMPARE(programm.exitStatus(), QProcess::NormalExit);
        QCOMPARE(programm.exitCode(), 0);
        QCOMPARE(programm.readAllStandardError(), QByteArray());
        QCOMPARE(seitenzahl(lies(pfad("aus.pdf"))), 1);

        programm.start(KALIMBO_PROGRAMM, {"--pdf", pfad("nie.pdf"), pfad("fehlt.tip")});
        QVERIFY(programm.waitForFinished(-1));
        QCOMPARE(programm.exitCode(), 1);
        QVERIFY(QString::fromUtf8(programm.readAllStandardError()).startsWith("Fehler: Die Datei „"));
        QVERIFY(!QFile::exists(pfad("nie.pdf")));
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
