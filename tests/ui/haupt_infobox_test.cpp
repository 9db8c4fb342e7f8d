// The information box of the main window: a player's or a team's sheet on a click, exactly as the
// core builds it, and its export as a text file.
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "hauptfenster.h"
#include "reports/spielerinfo.h"
#include "reports/teaminfo.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptInfoboxTest : public QObject {
    Q_OBJECT

    static QString titel(const Hauptfenster& h) { return h.kind<QGroupBox>("fraTeamInfo")->title(); }
    static QString kasten(const Hauptfenster& h) {
        return h.kind<QPlainTextEdit>("txtTeamInfo")->toPlainText();
    }
    static QString alsText(const std::optional<std::string>& blatt) {
        return QString::fromStdString(blatt.value()).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    }

  private slots:
    void spielerblattBeimStartUndAufKlick() {
        Hauptfenster h(kleinesSpiel());
        h.neuStarten();  // nothing open: no current matchday, no sheet, only the caption
        QCOMPARE(titel(h), QStringLiteral("Spielerinformationen: "));
        QCOMPARE(kasten(h), QString());
        h.fenster = std::make_unique<frmVela_Haupt>(
            h.dialoge, QFile::encodeName(h.ordner.filePath("spiel.tip")).toStdString());
        h.fenster->starte();
        QCOMPARE(titel(h), QStringLiteral("Spielerinformationen: Anna"));  // player 0 at start
        QCOMPARE(kasten(h), alsText(SpielerInfoText(h.spiel(), Anna, ".")));
        QLocale::setDefault(QLocale(QLocale::German));  // the user's decimal separator
        h.klick(h.label("lblSpieler", Dieter));
        QLocale::setDefault(QLocale::c());
        QCOMPARE(titel(h), QStringLiteral("Spielerinformationen: Dieter"));
        QCOMPARE(kasten(h), alsText(SpielerInfoText(h.spiel(), Dieter, ",")));
        QVERIFY(kasten(h).contains(QStringLiteral("Spieltag: \t5,0\n")));  // 10 over 2
        // Without a current matchday no sheet is built: the caption changes, the box stays.
        const QString vorher = kasten(h);
        h.kind<QLineEdit>("txtAktSpieltag")->setText("99");
        h.klick(h.kind("cmdSonntag"));
        h.klick(h.label("lblSpieler", Bernd));
        QCOMPARE(titel(h), QStringLiteral("Spielerinformationen: Bernd"));
        QCOMPARE(kasten(h), vorher);
    }

    // The box follows the game: an evaluation rebuilds the sheet shown (here a team's), another
    // game shows its player 0, or nothing while it has no current matchday.
    void folgtDemSpiel() {
        Hauptfenster h(kleinesSpiel());
        h.klick(h.label("lblTabName", 1));  // Hamburg is second after matchdays 1 and 2
        QCOMPARE(titel(h), QStringLiteral("Mannschaftsinformationen: Hamburg"));
        QCOMPARE(kasten(h), alsText(TeamInfoText(h.spiel(), 7)));
        h.klick(h.label("lblHeimTeam", 3));  // a goal for Hamburg: its sheet follows
        QCOMPARE(kasten(h), alsText(TeamInfoText(h.spiel(), 7)));
        Dateiinhalt ohneSpieltag = kleinesSpiel(20);
        ohneSpieltag.AktSpieltagGlobal = KeinAktuellerSpieltag;
        h.oeffneSpiel(ohneSpieltag);
        QCOMPARE(titel(h), QStringLiteral("Spielerinformationen: "));
        QCOMPARE(kasten(h), QString());
        h.oeffneSpiel(kleinesSpiel(20));
        QCOMPARE(titel(h), QStringLiteral("Spielerinformationen: Anna"));
        QCOMPARE(kasten(h), alsText(SpielerInfoText(h.spiel(), Anna, ".")));
    }

    void divisionDurchNullWirdGemeldetUndDerKastenBleibt() {
        Dateiinhalt d = kleinesSpiel();
        d.Modus = 3;
        d.ModusPunkte[1] = 0;  // a margin hit is worth nothing: its count divides by zero
        Hauptfenster h(d);
        const QString vorher = kasten(h);
        h.klick(h.label("lblSpieler", Bernd));
        QCOMPARE(h.meldungen(), QStringList{"Laufzeitfehler '11':\n\nDivision durch Null"});
        QCOMPARE(kasten(h), vorher);
        QCOMPARE(titel(h), QStringLiteral("Spielerinformationen: Bernd"));
    }

    void exportSchreibtDenKastenMitFussnoteInWindows1252() {
        Hauptfenster h(kleinesSpiel());
        h.klick(h.label("lblTabName", 17));  // Fürth, last
        const QString ziel = h.ordner.filePath("fuerth.txt");
        h.dialoge.antworten << ziel;
        h.aktion("menBericht")->trigger();
        QCOMPARE(h.dialoge.titel.last(), QStringLiteral("Geben Sie den Namen der Datei zum Speichern ein!"));
        const QByteArray bytes = Hauptfenster::inhalt(ziel);
        QVERIFY(bytes.startsWith("F\xFCrth\r\n  -\r\n\r\n  GESAMT\r\n"));
        QVERIFY(bytes.contains("  Torverh\xE4ltnis: \t0:3\r\n"));
        const QRegularExpression schluss(
            QStringLiteral("\r\n  - \r\n  automatisch erstellt mit 'Kalimbo' - Version 5\\.0\\.1 "
                           "\\[\\d\\d\\.\\d\\d\\.\\d{4}, \\d\\d:\\d\\d\\]\r\n$"));
        QVERIFY2(schluss.match(QString::fromLatin1(bytes)).hasMatch(), bytes.right(120).constData());

        h.dialoge.antworten << QString();  // cancelled: nothing written
        h.aktion("menBericht")->trigger();
        QCOMPARE(h.meldungen(), QStringList());
        QCOMPARE(Hauptfenster::inhalt(ziel), bytes);

        h.dialoge.antworten << h.ordner.path();  // a folder: refused with a message
        h.aktion("menBericht")->trigger();
        QCOMPARE(h.meldungen().size(), 1);
    }
};

KALIMBO_UI_TEST_MAIN(HauptInfoboxTest)
#include "haupt_infobox_test.moc"
