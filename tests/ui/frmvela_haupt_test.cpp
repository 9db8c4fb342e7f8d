#include "ui/frmvela_haupt.h"

#include <unistd.h>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "state/spieldatei.h"
#include "testdialoge.h"
#include "ui/bausteine/twips.h"
#include "ui/haupt/eingabefeld.h"

using namespace kalimbo;
using namespace kalimbo::ui;

namespace {

const QString Bundesliga = QStringLiteral(KALIMBO_SAMPLE_DATA "/bundesliga-2005-06.tip");  // 34 matchdays
const QString PremierLeague = QStringLiteral(KALIMBO_SAMPLE_DATA "/premier-league-2010-11.tip");  // 38

QStringList zuletztSchluessel() {
    QSettings s(QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo"));
    s.beginGroup(QStringLiteral("Letzten Dateien"));
    QStringList werte;
    for (const char* k : {"Datei1", "Datei2", "Datei3", "Datei1b", "Datei2b", "Datei3b"})
        werte << (s.contains(k) ? s.value(k).toString() : QStringLiteral("<fehlt>"));
    return werte;
}

}  // namespace

class FrmVelaHauptTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::TestDialoge> dialoge;
    std::unique_ptr<frmVela_Haupt> fenster;
    std::unique_ptr<QTemporaryDir> ordner;

    template <class T = QWidget>
    T* kind(const QString& name) {
        T* w = fenster->findChild<T*>(name);
        if (!w) qFatal("no child %s", qPrintable(name));
        return w;
    }
    Eingabefeld* feld(const char* name, int i) {
        return kind<Eingabefeld>(QStringLiteral("%1_%2").arg(name).arg(i));
    }
    QLabel* label(const char* name, int i) { return kind<QLabel>(QStringLiteral("%1_%2").arg(name).arg(i)); }
    QAction* aktion(const QString& name) { return kind<QAction>(name); }
    void klick(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }
    void oeffne(const QString& pfad) {
        dialoge->antworten << pfad;
        aktion("menOeffnen")->trigger();
    }
    bool sichtbar(const QString& name) { return !kind(name)->isHidden(); }
    // A copy of a sample game, changed by `aendern`, in the temporary folder.
    QString spielDatei(const QString& name, const QString& vorlage,
                       const std::function<void(Dateiinhalt&)>& aendern) {
        Dateiinhalt d = ladeSpieldatei(vorlage.toStdString());
        aendern(d);
        const QString pfad = ordner->filePath(name);
        speichereSpieldatei(pfad.toStdString(), d);
        return pfad;
    }
    static void fokus(QWidget* w, QEvent::Type art) {
        QFocusEvent e(art, Qt::MouseFocusReason);
        QApplication::sendEvent(w, &e);
    }

  private slots:
    void init() {
        QSettings(QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo")).clear();
        ordner = std::make_unique<QTemporaryDir>();
        dialoge = std::make_unique<test::TestDialoge>();
        fenster = std::make_unique<frmVela_Haupt>(*dialoge);
    }
    void cleanup() {
        fenster.reset();
        QVERIFY2(dialoge->meldungen.isEmpty(), qPrintable(dialoge->meldungen.join(" | ")));
    }

    void startOhneDatei() {
        for (int tag = 0; tag < 38; ++tag)
            QVERIFY(sichtbar(QStringLiteral("lblSpieltagWahl_%1").arg(tag)));
        for (int k = 0; k < 10; ++k)
            QVERIFY(sichtbar(QStringLiteral("lblHeimTeam_%1").arg(k)));
        QCOMPARE(fenster->spiel().getAktSpieltagGlobal(), 99);
        QCOMPARE(kind<QLineEdit>("txtAktSpieltag")->text(), QStringLiteral("99"));
        QCOMPARE(fenster->spiel().getAnzSpieltage(), 37);
        QCOMPARE(label("lblSpieltagWahl", 0)->palette().color(QPalette::Window), QColor(255, 0, 0));
        QCOMPARE(label("lblSpieltagWahl", 1)->palette().color(QPalette::Window), QColor(255, 255, 128));
        QCOMPARE(label("lblSpieltagWahl", 37)->x(), px(37 * 395 + 100));
        QCOMPARE(label("lblAuswahl", 5)->toolTip(), QStringLiteral(" diesen Spieltag auswerten "));
        QCOMPARE(kind<QLabel>("lblQuoten")->text(),
                 QStringLiteral(" Heimsieg: 3,15\r\n Remis: 2,00\r\n Auswärtssieg: 2,25"));
        QCOMPARE(fenster->width(), px(15360));
        QCOMPARE(kind<QGroupBox>("fraBlitztabelle")->title(), QStringLiteral("Blitztabelle"));
        // Menu tree: captions as the user sees them.
        QCOMPARE(aktion("menOeffnen")->text(), QStringLiteral("Öffnen"));
        QCOMPARE(aktion(QStringLiteral("menSptgAlleAbsolvRück"))->text(),
                 QStringLiteral("Alle absolvierten der Rückrunde"));
        QCOMPARE(aktion("menSptgLetzten_24")->text(), QStringLiteral("vierundzwanzig"));
        QCOMPARE(aktion("menDieserTrainer_0")->text(), QStringLiteral("noch keine Trainerwechsel"));
        QVERIFY(aktion("menNormal")->isChecked());
        QCOMPARE(aktion("menHTML")->text(), QStringLiteral("HTML-Datei"));
        QCOMPARE(aktion("menAuswerten")->shortcut(), QKeySequence(Qt::Key_F5));
        QCOMPARE(aktion("menOeffnen")->shortcut(), QKeySequence(QKeySequence::Open));
        QVERIFY(!aktion("menRecent_1")->isVisible());
        QVERIFY(frmVela_Haupt::startMaximiert(767));
        QVERIFY(!frmVela_Haupt::startMaximiert(768));
    }

    void tabulatorFolgeLaeuftDieSpalteHinunter() {
        auto naechstes = [this](const char* name, int i) { return feld(name, i)->nextInFocusChain(); };
        QCOMPARE(naechstes("txtAusErgebnis", 9), static_cast<QWidget*>(feld("txtHeimTipp", 0)));
        QCOMPARE(naechstes("txtHeimTipp", 0), static_cast<QWidget*>(feld("txtAusTipp", 0)));
        QCOMPARE(naechstes("txtAusTipp", 0), static_cast<QWidget*>(feld("txtHeimTipp", 1)));
        QCOMPARE(naechstes("txtAusTipp", 9), static_cast<QWidget*>(feld("txtHeimTipp", 10)));
    }

    void oeffnenPasstDasFensterAnDieSaisonAn() {
        oeffne(Bundesliga);
        QCOMPARE(fenster->spiel().Dateititel, std::string("bundesliga-2005-06.tip"));
        QCOMPARE(fenster->windowTitle(), QStringLiteral("Kalimbo - bundesliga-2005-06.tip"));
        for (int tag = 0; tag < 38; ++tag)
            QCOMPARE(sichtbar(QStringLiteral("lblSpieltagWahl_%1").arg(tag)), tag < 34);
        QVERIFY(!sichtbar("lblHeimTeam_9"));
        QVERIFY(!sichtbar("txtAusErgebnis_9"));
        for (int p = 0; p < 9; ++p)
            QVERIFY(feld("txtHeimTipp", p * 10 + 9)->isHidden());
        QVERIFY(!feld("txtHeimTipp", 8)->isHidden());
        for (const char* rahmen : {"fraBlitztabelle", "fraTabelle", "fraTeamInfo"})
            QCOMPARE(kind(rahmen)->height(), px(4815));
        QCOMPARE(kind("txtTeamInfo")->height(), px(4335));
        QCOMPARE(label("lblSptgPunkte", 0)->y(), px(3480));
        QCOMPARE(label("lblGesamtPlatz", 0)->y(), px(3740));
        // The last matchday selected (25) is shown; the rule's check mark is set.
        QCOMPARE(fenster->spiel().getAktSpieltag(), 24);
        QCOMPARE(label("lblSpieltagWahl", 24)->palette().color(QPalette::Window), QColor(255, 0, 0));
        QVERIFY(aktion("menReg321")->isChecked());
        QVERIFY(!aktion("menReg3")->isChecked() && !aktion("menReg2")->isChecked() &&
                !aktion("menRegEigene")->isChecked());
        QVERIFY(label("lblAuswahl", 24)->autoFillBackground());
        QVERIFY(!label("lblAuswahl", 25)->autoFillBackground());
        // Table rows: names by team index until evaluated, colours and hints by position.
        QCOMPARE(label("lblTabName", 0)->text(), QStringLiteral("Bayern München"));
        QVERIFY(sichtbar("lblTabName_17") && !sichtbar("lblTabName_18"));
        QCOMPARE(label("lblTabellenplatz", 0)->toolTip(), QStringLiteral("Meister"));
        QCOMPARE(label("lblTabellenplatz", 3)->toolTip(), QStringLiteral("Champions-League-Qualifikation"));
        QCOMPARE(label("lblTabellenplatz", 17)->toolTip(), QStringLiteral("Abstiegsplatz"));
        QCOMPARE(label("lblTabellenplatz", 17)->palette().color(QPalette::Window), QColor(255, 255, 255));
        QCOMPARE(label("lblSpieler", 2)->text(), QStringLiteral("Özlem"));

        oeffne(PremierLeague);
        for (int tag = 0; tag < 38; ++tag)
            QVERIFY(sichtbar(QStringLiteral("lblSpieltagWahl_%1").arg(tag)));
        QVERIFY(sichtbar("lblHeimTeam_9") && !feld("txtAusTipp", 19)->isHidden());
        for (const char* rahmen : {"fraBlitztabelle", "fraTabelle", "fraTeamInfo"})
            QCOMPARE(kind(rahmen)->height(), px(5295));
        QCOMPARE(kind("txtTeamInfo")->height(), px(4815));
        QCOMPARE(label("lblSptgPunkte", 0)->y(), px(3840));
        QCOMPARE(label("lblGesamtPunkte", 0)->y(), px(4080));
        QVERIFY(aktion("menReg3")->isChecked() && !aktion("menReg321")->isChecked());
    }

    void positionOhneHinweisfarbeBehaeltIhrenHinweis() {
        oeffne(Bundesliga);
        oeffne(spielDatei("blau.tip", Bundesliga, [](Dateiinhalt& d) { d.TabFarbe[0] = rgb(0, 0, 255); }));
        QCOMPARE(label("lblTabellenplatz", 0)->toolTip(), QStringLiteral("Meister"));
        QCOMPARE(label("lblTabellenplatz", 0)->palette().color(QPalette::Window), QColor(0, 0, 255));
    }

    void ohneAusgewaehltenSpieltagZeigtEsDenErsten() {
        oeffne(spielDatei("keiner.tip", Bundesliga, [](Dateiinhalt& d) { d.SptgAuswerten = {}; }));
        QCOMPARE(fenster->spiel().getAktSpieltag(), 0);
    }

    void zuletztGeoeffneteDateien() {
        QStringList pfade;
        for (const char* name : {"A.tip", "B.tip", "C.tip"}) {
            pfade << ordner->filePath(name);
            QFile::copy(Bundesliga, pfade.last());
        }
        auto titel = [this] {
            return QStringList{aktion("menRecent_1")->text(), aktion("menRecent_2")->text(),
                               aktion("menRecent_3")->text()};
        };
        for (const QString& p : pfade)
            oeffne(p);
        QCOMPARE(titel(), (QStringList{"C.tip", "B.tip", "A.tip"}));
        QCOMPARE(zuletztSchluessel(), (QStringList{pfade[2], pfade[1], pfade[0], "C.tip", "B.tip", "A.tip"}));
        oeffne(pfade[1]);
        QCOMPARE(titel(), (QStringList{"B.tip", "C.tip", "A.tip"}));
        oeffne(pfade[0]);
        QCOMPARE(titel(), (QStringList{"A.tip", "B.tip", "C.tip"}));
        QCOMPARE(zuletztSchluessel(), (QStringList{pfade[0], pfade[1], pfade[2], "A.tip", "B.tip", "C.tip"}));

        // Reopening the newest file moves nothing but still writes every key.
        QSettings(QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo"))
            .remove(QStringLiteral("Letzten Dateien/Datei3b"));
        oeffne(pfade[0]);
        QCOMPARE(zuletztSchluessel(), (QStringList{pfade[0], pfade[1], pfade[2], "A.tip", "B.tip", "C.tip"}));

        // A recent file is read, but a later save still proposes the file opened last by dialog.
        aktion("menRecent_3")->trigger();
        QCOMPARE(titel(), (QStringList{"C.tip", "A.tip", "B.tip"}));
        QCOMPARE(fenster->spiel().Dateipfad, pfade[0].toStdString());
        QCOMPARE(fenster->windowTitle(), QStringLiteral("Kalimbo - C.tip"));
        aktion("menSpeichern")->trigger();  // cancelled
        QCOMPARE(dialoge->vorschlaege, QStringList{pfade[0]});

        // A new window reads the list back.
        fenster = std::make_unique<frmVela_Haupt>(*dialoge);
        QCOMPARE(titel(), (QStringList{"C.tip", "A.tip", "B.tip"}));
    }

    void beschaedigteOderFehlendeDateiLaesstDasSpielStehen() {
        oeffne(Bundesliga);
        const QString kaputt = ordner->filePath("kaputt.tip");
        QFile f(kaputt);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(5000, 'x'));
        f.close();
        oeffne(kaputt);
        QCOMPARE(dialoge->meldungen.size(), 1);
        QVERIFY(dialoge->meldungen.takeFirst().contains(
            QStringLiteral("kaputt.tip“ ist beschädigt oder keine Tippspiel-Datei")));
        QCOMPARE(fenster->spiel().Dateititel, std::string("bundesliga-2005-06.tip"));
        QCOMPARE(fenster->spiel().getTeamName(0), std::string("Bayern München"));
        QCOMPARE(aktion("menRecent_1")->text(), QStringLiteral("bundesliga-2005-06.tip"));

        const QString weg = ordner->filePath("weg.tip");
        QFile::copy(PremierLeague, weg);
        oeffne(weg);
        oeffne(Bundesliga);
        QFile::remove(weg);
        aktion("menRecent_2")->trigger();
        QCOMPARE(dialoge->meldungen.size(), 1);
        QVERIFY(dialoge->meldungen.takeFirst().contains(QStringLiteral("konnte nicht geöffnet werden")));
        QCOMPARE(fenster->spiel().getAnzTeams(), 17);
    }

    void spaltenDerTeilnehmerStehenOhneLuecken() {
        oeffne(spielDatei("drei.tip", Bundesliga, [](Dateiinhalt& d) {
            d.Teilnehmer = {{1, 0, 0, 0, 1, 0, 0, 0, 1}};
        }));
        QCOMPARE(kind(QStringLiteral("fraSpielerSäule_0"))->x(), px(4920));
        QCOMPARE(kind(QStringLiteral("fraSpielerSäule_4"))->x(), px(5880));
        QCOMPARE(kind(QStringLiteral("fraSpielerSäule_8"))->x(), px(6840));
        QVERIFY(!sichtbar(QStringLiteral("fraSpielerSäule_1")));
        QCOMPARE(fenster->spiel().getSpieltagPunkte(1, fenster->spiel().getAktSpieltag()), -1);
        QCOMPARE(fenster->spiel().getSpieltagPunkte(4, fenster->spiel().getAktSpieltag()), 0);
    }

    void sonntagsspieleUndAktuellerSpieltag() {
        oeffne(Bundesliga);  // current matchday 25 (index 24), Sunday matches 7 and 8
        QVERIFY(sichtbar("chkSonntag"));
        QCOMPARE(kind("shpSonntag_0")->y(), px(7 * 360 + 720));
        QCOMPARE(kind("shpSonntag_1")->y(), px(8 * 360 + 720));
        klick(label("lblSpieltagWahl", 3));
        QVERIFY(!sichtbar("chkSonntag") && !sichtbar("shpSonntag_0"));

        // Taking over another current matchday and Sunday matches marks them on that matchday.
        kind<QLineEdit>("txtAktSpieltag")->setText("3");
        kind<QLineEdit>("txtSonntag_0")->setText("0");
        klick(kind("cmdSonntag"));
        QCOMPARE(fenster->spiel().getAktSpieltagGlobal(), 3);
        QVERIFY(sichtbar("chkSonntag"));
        QCOMPARE(kind("shpSonntag_0")->y(), px(720));

        // Left out: the Sunday matches score nothing for anybody and count for no team.
        kind<QCheckBox>("chkSonntag")->setChecked(true);
        klick(kind("cmdAuswerten"));
        QCOMPARE(fenster->spiel().getKorrekt(0, 3, 0), -1);
        QCOMPARE(fenster->spiel().getSpielFarbe(0, 3, 0), static_cast<Farbe>(0x8000000F));
        QCOMPARE(feld("txtHeimTipp", 0)->palette().color(QPalette::Base),
                 QApplication::palette().color(QPalette::Button));
    }

    void xSchuetztNurDenHeimtipp() {
        oeffne(Bundesliga);
        const int tag = fenster->spiel().getAktSpieltag();
        const i16 heim = fenster->spiel().getTipp(0, tag, 0, 0);
        feld("txtHeimTipp", 0)->setText("X");
        feld("txtAusTipp", 0)->setText("5");
        feld("txtHeimTipp", 1)->setText("7");
        feld("txtAusTipp", 1)->setText("X");
        klick(kind("cmdAuswerten"));
        QCOMPARE(fenster->spiel().getTipp(0, tag, 0, 0), heim);
        QCOMPARE(fenster->spiel().getTipp(0, tag, 0, 1), 5);
        QCOMPARE(fenster->spiel().getTipp(0, tag, 1, 0), 7);
        QCOMPARE(fenster->spiel().getTipp(0, tag, 1, 1), 0);
    }

    void tastenUndFokus() {
        oeffne(Bundesliga);
        Eingabefeld* box = feld("txtHeimTipp", 3);
        const QString vorher = box->text();
        fokus(box, QEvent::FocusIn);
        QCOMPARE(box->text(), QString());
        QCOMPARE(box->palette().color(QPalette::Base), QColor(255, 0, 0));
        QTest::keyClick(box, Qt::Key_A);
        QCOMPARE(box->text(), QStringLiteral("0"));
        QTest::keyClick(box, Qt::Key_5);  // only one character can be typed
        QCOMPARE(box->text(), QStringLiteral("0"));
        QTest::keyClick(box, Qt::Key_Backspace);
        QTest::keyClick(box, Qt::Key_7);
        QCOMPARE(box->text(), QStringLiteral("7"));
        QTest::keyClick(box, Qt::Key_Backspace);
        QGuiApplication::clipboard()->setText(QStringLiteral("12"));
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);  // pasting is limited like typing
        QCOMPARE(box->text(), QString());
        fokus(box, QEvent::FocusOut);  // left empty: the old value comes back
        QCOMPARE(box->text(), vorher);
        QCOMPARE(box->palette().color(QPalette::Base), QColor(255, 255, 255));

        Eingabefeld* ergebnis = feld("txtAusErgebnis", 2);
        fokus(ergebnis, QEvent::FocusIn);
        QTest::keyClick(ergebnis, Qt::Key_Percent);
        fokus(ergebnis, QEvent::FocusOut);
        QCOMPARE(ergebnis->text(), QStringLiteral("0"));
        QCOMPARE(ergebnis->palette().color(QPalette::Base), QColor(64, 64, 64));
    }

    void zweistelligeWerteBleibenErhalten() {
        oeffne(spielDatei("zwoelf.tip", Bundesliga, [](Dateiinhalt& d) {
            d.TippDatei[0][24][0] = {{12, 10}};
            d.ErgebnisDatei[24][1] = {{11, 0}};
        }));
        QCOMPARE(feld("txtHeimTipp", 0)->text(), QStringLiteral("12"));
        QCOMPARE(feld("txtHeimErgebnis", 1)->text(), QStringLiteral("11"));
        klick(kind("cmdAuswerten"));
        QCOMPARE(fenster->spiel().getTipp(0, 24, 0, 0), 12);
        QCOMPARE(fenster->spiel().getTipp(0, 24, 0, 1), 10);
        QCOMPARE(fenster->spiel().getErgebnis(24, 1, 0), 11);
    }

    void torklicksWertenSofortAus() {
        oeffne(Bundesliga);
        Eingabefeld* heim = feld("txtHeimErgebnis", 0);
        heim->setText(QString());
        klick(label("lblHeimTeam", 0));
        QCOMPARE(heim->text(), QStringLiteral("1"));
        klick(label("lblHeimTeam", 0));
        QCOMPARE(heim->text(), QStringLiteral("2"));
        QCOMPARE(fenster->spiel().getErgebnis(24, 0, 0), 2);
        const QString team =
            QString::fromStdString(fenster->spiel().getTeamName(fenster->spiel().getPaarung(24, 0, 0)));
        const QString titel = kind<QGroupBox>("fraBlitztabelle")->title();
        QVERIFY2(titel.startsWith(QStringLiteral("Blitztabelle [Tor für") + team + ", "), qPrintable(titel));
        QVERIFY(QRegularExpression(QStringLiteral(", \\d\\d:\\d\\d:\\d\\d\\]$")).match(titel).hasMatch());
        // The running table counts the new result at once.
        QVERIFY(!label("lblTabPunkte", 0)->text().isEmpty());

        const QString gast =
            QString::fromStdString(fenster->spiel().getTeamName(fenster->spiel().getPaarung(24, 3, 1)));
        klick(label("lblAusTeam", 3));
        QVERIFY(kind<QGroupBox>("fraBlitztabelle")
                    ->title()
                    .startsWith(QStringLiteral("Blitztabelle [Tor für") + gast + ", "));
        QCOMPARE(fenster->spiel().getErgebnis(24, 3, 1), 1);

        klick(kind("cmdAuswerten"));
        QVERIFY(
            kind<QGroupBox>("fraBlitztabelle")->title().startsWith(QStringLiteral("Blitztabelle [---, ")));
    }

    void torklickInEinGeradeBetretenesFeldZaehltWeiter() {
        oeffne(Bundesliga);
        Eingabefeld* heim = feld("txtHeimErgebnis", 2);
        const int vorher = heim->text().toInt();
        fenster->show();
        QApplication::setActiveWindow(fenster.get());
        QVERIFY(QTest::qWaitForWindowActive(fenster.get()));
        heim->setFocus(Qt::MouseFocusReason);
        QCOMPARE(heim->text(), QString());  // emptied while the user is in it
        klick(label("lblHeimTeam", 2));
        QCOMPARE(heim->text(), QString::number(vorher + 1));
    }

    void spieltagswechselBehaeltGetippteWerte() {
        oeffne(Bundesliga);
        feld("txtHeimTipp", 12)->setText("9");
        feld("txtHeimErgebnis", 4)->setText("8");
        klick(label("lblSpieltagWahl", 2));
        QCOMPARE(fenster->spiel().getAktSpieltag(), 2);
        QCOMPARE(label("lblSpieltagWahl", 24)->palette().color(QPalette::Window), QColor(255, 255, 128));
        QVERIFY(!label("lblSpieltagWahl", 24)->font().bold());
        QVERIFY(label("lblSpieltagWahl", 2)->font().bold());
        klick(label("lblSpieltagWahl", 24));
        QCOMPARE(feld("txtHeimTipp", 12)->text(), QStringLiteral("9"));
        QCOMPARE(feld("txtHeimErgebnis", 4)->text(), QStringLiteral("8"));
        QCOMPARE(fenster->spiel().getTipp(1, 24, 2, 0), 9);
    }

    void regelwechselWirktErstBeiDerNaechstenAuswertung() {
        oeffne(Bundesliga);
        klick(kind("cmdAuswerten"));
        const QString punkte = label("lblGesamtPunkte", 0)->text();
        const i16 gesamt = fenster->spiel().getGesamtPunkte(0);
        aktion("menReg2")->trigger();
        QVERIFY(aktion("menReg2")->isChecked() && !aktion("menReg321")->isChecked());
        QCOMPARE(fenster->spiel().getModusPunkte(0), 2);
        klick(label("lblSpieltagWahl", 10));
        klick(label("lblSpieltagWahl", 24));
        QCOMPARE(label("lblGesamtPunkte", 0)->text(), punkte);
        QCOMPARE(fenster->spiel().getGesamtPunkte(0), gesamt);
        aktion("menAuswerten")->trigger();
        QVERIFY(fenster->spiel().getGesamtPunkte(0) < gesamt);
        QCOMPARE(label("lblGesamtPunkte", 0)->text(), QString::number(fenster->spiel().getGesamtPunkte(0)));
    }

    void spieltagsauswahl() {
        oeffne(Bundesliga);
        klick(label("lblAuswahl", 30));
        QCOMPARE(fenster->spiel().getSptgAuswerten(30), 1);
        QVERIFY(label("lblAuswahl", 30)->autoFillBackground());
        klick(label("lblAuswahl", 30));
        QCOMPARE(fenster->spiel().getSptgAuswerten(30), 0);
        QVERIFY(!label("lblAuswahl", 30)->autoFillBackground());

        aktion("menSptgKeinen")->trigger();
        QVERIFY(!label("lblAuswahl", 0)->autoFillBackground());
        aktion("menSptgLetzten_6")->trigger();
        for (int tag = 0; tag < 34; ++tag)
            QCOMPARE(label("lblAuswahl", tag)->autoFillBackground(), tag >= 19 && tag <= 24);

        kind<QLineEdit>("txtAktSpieltag")->setText("4");
        klick(kind("cmdSonntag"));
        aktion("menSptgLetzten_6")->trigger();
        QCOMPARE(dialoge->meldungen, QStringList{"Es wurden noch keine 6 Spieltage absolviert."});
        dialoge->meldungen.clear();
        QCOMPARE(fenster->spiel().getSptgAuswerten(24), 1);  // unchanged

        kind<QLineEdit>("txtAktSpieltag")->setText("99");
        klick(kind("cmdSonntag"));
        aktion("menSptgAlleAbsolv")->trigger();  // no current matchday: out of the season's range
        QCOMPARE(dialoge->meldungen,
                 QStringList{"Laufzeitfehler '9':\n\nIndex außerhalb des gültigen Bereichs"});
        dialoge->meldungen.clear();
        QCOMPARE(fenster->spiel().getSptgAuswerten(24), 1);
    }

    void laufzeitfehlerWirdGemeldetUndDasFensterBleibtBenutzbar() {
        oeffne(Bundesliga);
        const i16 vorher = fenster->spiel().getErgebnis(24, 0, 0);
        feld("txtHeimErgebnis", 0)->setText("70000");
        klick(kind("cmdAuswerten"));
        QCOMPARE(dialoge->meldungen, QStringList{"Laufzeitfehler '6':\n\nÜberlauf"});
        dialoge->meldungen.clear();
        QCOMPARE(fenster->spiel().getErgebnis(24, 0, 0), vorher);

        feld("txtHeimErgebnis", 0)->setText("32767");
        klick(label("lblHeimTeam", 0));
        QCOMPARE(dialoge->meldungen.size(), 1);
        dialoge->meldungen.clear();

        feld("txtHeimErgebnis", 0)->setText("4");
        klick(kind("cmdAuswerten"));
        QCOMPARE(fenster->spiel().getErgebnis(24, 0, 0), 4);
    }

    void speichernUndWiederOeffnen() {
        oeffne(Bundesliga);
        feld("txtHeimTipp", 0)->setText("6");
        const QString ziel = ordner->filePath("gespeichert.tip");
        dialoge->antworten << ziel;
        aktion("menSpeichern")->trigger();
        QCOMPARE(dialoge->titel.last(), QStringLiteral("Geben Sie den Namen der Datei zum Speichern ein!"));
        QCOMPARE(dialoge->vorschlaege, QStringList{Bundesliga});
        QCOMPARE(fenster->spiel().Dateipfad, ziel.toStdString());
        QCOMPARE(aktion("menRecent_1")->text(), QStringLiteral("gespeichert.tip"));

        fenster = std::make_unique<frmVela_Haupt>(*dialoge);
        oeffne(ziel);
        QCOMPARE(fenster->spiel().getTipp(0, 24, 0, 0), 6);
        QCOMPARE(feld("txtHeimTipp", 0)->text(), QStringLiteral("6"));
        QCOMPARE(dialoge->titel.last(), QStringLiteral("Wählen Sie den gespeicherten Spielstand!"));
    }

    void speichernAnEinenUnbeschreibbarenOrtLaesstDieAlteDatei() {
        const QString nurLesen = ordner->filePath("nurlesen");
        QVERIFY(QDir().mkdir(nurLesen));
        const QString ziel = nurLesen + "/alt.tip";
        QVERIFY(QFile::copy(Bundesliga, ziel));
        QFile alt(ziel);
        QVERIFY(alt.open(QIODevice::ReadOnly));
        const QByteArray vorher = alt.readAll();
        alt.close();
        oeffne(PremierLeague);
        QFile::setPermissions(nurLesen, QFile::ReadOwner | QFile::ExeOwner);
        dialoge->antworten << ziel;
        // Root may write anywhere, so as root (as in CI) the save runs under an unprivileged user.
        const bool root = geteuid() == 0;
        if (root && seteuid(65534) != 0) QSKIP("cannot drop privileges");
        aktion("menSpeichern")->trigger();
        if (root) QVERIFY(seteuid(0) == 0);
        QFile::setPermissions(nurLesen, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(dialoge->meldungen.size(), 1);
        QVERIFY(dialoge->meldungen.takeFirst().contains(
            QStringLiteral("alt.tip“ konnte nicht gespeichert werden")));
        QVERIFY(alt.open(QIODevice::ReadOnly));
        QCOMPARE(alt.readAll(), vorher);
        QCOMPARE(fenster->spiel().Dateipfad, PremierLeague.toStdString());
        QCOMPARE(aktion("menRecent_1")->text(), QStringLiteral("premier-league-2010-11.tip"));
    }
};

int main(int argc, char** argv) {
    // Settings go to a folder of their own, never to the user's.
    QTemporaryDir einstellungen;
    qputenv("XDG_CONFIG_HOME", einstellungen.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", einstellungen.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    FrmVelaHauptTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "frmvela_haupt_test.moc"
