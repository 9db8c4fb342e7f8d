// The matchday view of the main window: rankings, points and places, tip colours, player
// columns, the Sunday marks, the layout for 34 and 38 matchdays, and the start without a game.
#include <QCheckBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>

#include "hauptfenster.h"
#include "scoring/regeln.h"
#include "ui/bausteine/beschriftung.h"
#include "ui/bausteine/twips.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

using Zeilen = QStringList;  // "name=points" per ranking row, "-" for a hidden row

class HauptAnsichtTest : public QObject {
    Q_OBJECT

    static QStringList zeilen(const Hauptfenster& h, const char* name, const char* punkte) {
        QStringList z;
        for (int i = 0; i < MaxSpieler; ++i) {
            QLabel* n = h.label(name, i);
            QLabel* p = h.label(punkte, i);
            z << (n->isHidden() ? (p->isHidden() ? QStringLiteral("-") : QStringLiteral("?"))
                                : n->text() + "=" + p->text());
        }
        return z;
    }

  private slots:
    void ranglistenUndPunkte_data() {
        QTest::addColumn<int>("spieltag");
        QTest::addColumn<Zeilen>("spieltagstabelle");
        QTest::addColumn<Zeilen>("gesamttabelle");
        QTest::addColumn<QStringList>("punkteUndPlaetze");  // per player: matchday points/place, total/place
        const Zeilen gesamt{"  Bernd=16", "  Anna=10", "  Dieter=10", "-", "-", "-", "-", "-", "-"};
        QTest::newRow("Spieltag 2") << 1 << Zeilen{"  Bernd=12", "  Dieter=5", "  Anna=1", "-", "-",
                                                   "-",          "-",          "-",        "-"}
                                    << gesamt << QStringList{"1 3 10 2", "12 1 16 1", "", "5 2 10 2"};
        QTest::newRow("Spieltag 1") << 0 << Zeilen{"  Anna=9", "  Dieter=5", "  Bernd=4", "-", "-",
                                                   "-",        "-",          "-",         "-"}
                                    << gesamt << QStringList{"9 1 10 2", "4 3 16 1", "", "5 2 10 2"};
        // Not counted: everybody has 0 and keeps the row and place of his slot; Clara's row stays
        // hidden.
        QTest::newRow("Spieltag 6") << 5 << Zeilen{"  Anna=0", "  Bernd=0", "-", "  Dieter=0", "-",
                                                   "-",        "-",         "-", "-"}
                                    << gesamt << QStringList{"0 1 10 2", "0 2 16 1", "", "0 4 10 2"};
    }
    void ranglistenUndPunkte() {
        QFETCH(int, spieltag);
        Hauptfenster h;
        h.oeffneSpiel();
        h.auswerten();
        h.zeigeSpieltag(spieltag);
        QTEST(zeilen(h, "lblSptgTabelle", "lblSptgTabellePkt"), "spieltagstabelle");
        QTEST(zeilen(h, "lblGesamttabelle", "lblGesamttabellePkt"), "gesamttabelle");
        QCOMPARE(h.kind<QLabel>("lblSptgstabelle")->text(), QStringLiteral("Spieltag %1").arg(spieltag + 1));
        QFETCH(QStringList, punkteUndPlaetze);
        for (int p : {Anna, Bernd, Dieter}) {
            const QString gezeigt =
                QStringList{h.label("lblSptgPunkte", p)->text(), h.label("lblSptgPlatz", p)->text(),
                            h.label("lblGesamtPunkte", p)->text(), h.label("lblGesamtPlatz", p)->text()}
                    .join(' ');
            QCOMPARE(gezeigt, punkteUndPlaetze[p]);
        }
        // Who does not take part has no column, and his shown matchday's points read -1.
        QVERIFY(!h.sichtbar(QStringLiteral("fraSpielerSäule_2")));
        QCOMPARE(h.spiel().getSpieltagPunkte(Clara, spieltag), -1);
    }

    void spaltenDerTeilnehmerStehenOhneLuecken() {
        Hauptfenster h;
        Dateiinhalt d = kleinesSpiel();
        d.Teilnehmer = {{1, 0, 0, 0, 1, 0, 0, 0, 1}};
        h.oeffneSpiel(d);
        QCOMPARE(h.kind(QStringLiteral("fraSpielerSäule_0"))->x(), px(4920));
        QCOMPARE(h.kind(QStringLiteral("fraSpielerSäule_4"))->x(), px(5880));
        QCOMPARE(h.kind(QStringLiteral("fraSpielerSäule_8"))->x(), px(6840));
        for (int p : {1, 2, 3, 5, 6, 7})
            QVERIFY(h.kind(Hauptfenster::indexName("fraSpielerSäule", p))->isHidden());
    }

    void trefferfarben_data() {
        QTest::addColumn<int>("feld");
        QTest::addColumn<QColor>("farbe");
        const QColor rot(255, 0, 0), hellgelb(250, 250, 144), gruen(48, 190, 48), weiss(255, 255, 255);
        const QColor schaltflaeche = QApplication::palette().color(QPalette::Button);
        QTest::newRow("komplett richtig") << Bernd * 10 + 0 << rot;
        QTest::newRow("Höhe des Sieges") << Dieter * 10 + 0 << hellgelb;
        QTest::newRow("Tendenz Remis") << Dieter * 10 + 1 << gruen;
        QTest::newRow("Tendenz 0:0 auf 2:2") << Anna * 10 + 1 << gruen;
        QTest::newRow("kein Treffer") << Dieter * 10 + 4 << weiss;
        QTest::newRow("nicht Teilnehmer") << Clara * 10 + 0 << schaltflaeche;
    }
    void trefferfarben() {
        QFETCH(int, feld);
        QFETCH(QColor, farbe);
        Hauptfenster h;
        h.oeffneSpiel();
        h.auswerten();
        h.zeigeSpieltag(1);
        QCOMPARE(h.feld("txtHeimTipp", feld)->hintergrund(), farbe);
        QCOMPARE(h.feld("txtAusTipp", feld)->hintergrund(), farbe);
    }

    void nichtGewerteterSpieltagHatSchaltflaechenfarbe() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.auswerten();
        h.zeigeSpieltag(4);
        QCOMPARE(h.feld("txtHeimTipp", Bernd * 10)->hintergrund(),
                 QApplication::palette().color(QPalette::Button));
    }

    void sonntagsspieleNurAmAktuellenSpieltag() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.zeigeSpieltag(1);
        QVERIFY(h.sichtbar("chkSonntag"));
        QCOMPARE(h.kind("shpSonntag_0")->y(), px(7 * 360 + 720));
        QCOMPARE(h.kind("shpSonntag_1")->y(), px(8 * 360 + 720));
        h.zeigeSpieltag(0);
        QVERIFY(!h.sichtbar("chkSonntag") && !h.sichtbar("shpSonntag_0") && !h.sichtbar("shpSonntag_1"));
    }

    // Left out: the Sunday matches of the current matchday score nothing for anybody.
    void sonntagsspieleAuslassen() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.feld("txtHeimTipp", Anna * 10 + 7)->setText("2");  // Offenbach - Paderborn 2:0
        h.feld("txtAusTipp", Anna * 10 + 7)->setText("0");
        h.kind<QCheckBox>("chkSonntag")->setChecked(true);
        h.auswerten();
        QCOMPARE(h.label("lblGesamtPunkte", Anna)->text(), QStringLiteral("10"));
        QCOMPARE(h.feld("txtHeimTipp", Anna * 10 + 7)->hintergrund(),
                 QApplication::palette().color(QPalette::Button));
        QCOMPARE(h.feld("txtHeimTipp", Anna * 10 + 6)->hintergrund(), QColor(Qt::white));
        h.kind<QCheckBox>("chkSonntag")->setChecked(false);
        h.auswerten();
        QCOMPARE(h.label("lblGesamtPunkte", Anna)->text(), QStringLiteral("13"));
    }

    void anordnungNachSaisonlaenge_data() {
        QTest::addColumn<int>("teams");
        QTest::addColumn<int>("rahmen");
        QTest::addColumn<int>("infotext");
        QTest::addColumn<int>("linienende");
        QTest::addColumn<int>("sptgOben");
        QTest::addColumn<int>("gesamtOben");
        QTest::newRow("34 Spieltage") << 18 << 4815 << 4335 << 3960 << 3480 << 3740;
        QTest::newRow("38 Spieltage") << 20 << 5295 << 4815 << 4320 << 3840 << 4080;
    }
    void anordnungNachSaisonlaenge() {
        QFETCH(int, teams);
        Hauptfenster h;
        h.oeffneSpiel(kleinesSpiel(teams == 18 ? 20 : 18));  // the other layout first
        h.oeffneSpiel(kleinesSpiel(teams));
        const bool zehn = teams == 20;
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            QCOMPARE(h.sichtbar(Hauptfenster::indexName("lblSpieltagWahl", tag)), tag < 2 * teams - 2);
        for (const char* name : {"lblHeimTeam", "lblAusTeam", "txtHeimErgebnis", "txtAusErgebnis"})
            QCOMPARE(h.sichtbar(Hauptfenster::indexName(name, 9)), zehn);
        for (int p = 0; p < MaxSpieler; ++p) {
            QCOMPARE(!h.feld("txtHeimTipp", p * 10 + 9)->isHidden(), zehn);
            QCOMPARE(!h.feld("txtAusTipp", p * 10 + 9)->isHidden(), zehn);
            QVERIFY(!h.feld("txtHeimTipp", p * 10 + 8)->isHidden());
        }
        QFETCH(int, rahmen);
        for (const char* name : {"fraBlitztabelle", "fraTabelle", "fraTeamInfo"})
            QCOMPARE(h.kind(name)->height(), px(rahmen));
        QFETCH(int, infotext);
        QCOMPARE(h.kind("txtTeamInfo")->height(), px(infotext));
        QFETCH(int, linienende);
        QCOMPARE(h.kind("linTrenn")->geometry().bottom() + 1, px(linienende));
        QFETCH(int, sptgOben);
        QFETCH(int, gesamtOben);
        for (int p = 0; p < MaxSpieler; ++p) {
            QCOMPARE(h.label("lblSptgPunkte", p)->y(), px(sptgOben));
            QCOMPARE(h.label("lblSptgPlatz", p)->y(), px(sptgOben));
            QCOMPARE(h.label("lblGesamtPunkte", p)->y(), px(gesamtOben));
            QCOMPARE(h.label("lblGesamtPlatz", p)->y(), px(gesamtOben));
        }
    }

    void startOhneSpiel() {
        Hauptfenster h;
        for (int tag = 0; tag < MaxSpieltage; ++tag) {
            QVERIFY(h.sichtbar(Hauptfenster::indexName("lblSpieltagWahl", tag)));
            QCOMPARE(h.label("lblSpieltagWahl", tag)->text(), QString::number(tag + 1));
            QCOMPARE(h.label("lblSpieltagWahl", tag)->x(), px(tag * 395 + 100));
            QCOMPARE(h.label("lblSpieltagWahl", tag)->width(), px(375));
            QCOMPARE(h.label("lblAuswahl", tag)->toolTip(), QStringLiteral(" diesen Spieltag auswerten "));
        }
        for (int k = 0; k < MaxSpiele; ++k)
            QVERIFY(h.sichtbar(Hauptfenster::indexName("lblHeimTeam", k)));
        QCOMPARE(h.label("lblSpieltagWahl", 0)->palette().color(QPalette::Window), QColor(255, 0, 0));
        QCOMPARE(h.label("lblSpieltagWahl", 1)->palette().color(QPalette::Window), QColor(255, 255, 128));
        QCOMPARE(h.kind<QLineEdit>("txtAktSpieltag")->text(), QStringLiteral("99"));
        QCOMPARE(h.kind<QLabel>("lblQuoten")->text(),
                 QStringLiteral(" Heimsieg: 3,15\r\n Remis: 2,00\r\n Auswärtssieg: 2,25"));
        QCOMPARE(h.kind("lblQuoten")->size(), QSize(px(1615), px(1075)));
        QCOMPARE(qobject_cast<QScrollArea*>(h.fenster->centralWidget())->widget()->width(), px(15360));
        QCOMPARE(h.kind<QGroupBox>("fraBlitztabelle")->title(), QStringLiteral("Blitztabelle"));
        QCOMPARE(h.kind<QGroupBox>("fraTeamInfo")->title(), QStringLiteral("Spielerinformationen: "));
        QVERIFY(frmVela_Haupt::startMaximiert(767));
        QVERIFY(!frmVela_Haupt::startMaximiert(768));
    }

    void zuLangeNamenWerdenGekuerztUndAlsHinweisGezeigt() {
        Hauptfenster h;
        Dateiinhalt d = kleinesSpiel();
        d.Teamname[2] = "Sportvereinigung Cottbus-Brandenburg an der Spree 1896";
        d.Spielername[Dieter] = "Dieter-Friedrich von Hohenstein";
        h.oeffneSpiel(d);
        h.zeigeSpieltag(0);
        for (const auto& [name, index] : {std::pair{"lblHeimTeam", 1}, std::pair{"lblSpieler", Dieter}}) {
            auto* l = qobject_cast<Beschriftung*>(h.label(name, index));
            QVERIFY(l->gekuerzt());
            QHelpEvent hilfe(QEvent::ToolTip, QPoint(2, 2), l->mapToGlobal(QPoint(2, 2)));
            QApplication::sendEvent(l, &hilfe);
            QVERIFY2(QToolTip::text().startsWith(l->text()), qPrintable(QToolTip::text()));
        }
        QVERIFY(!qobject_cast<Beschriftung*>(h.label("lblAusTeam", 1))->gekuerzt());
    }

    // On a screen smaller than the window the content keeps its size and scrolls.
    void kleinerBildschirmRollt() {
        Hauptfenster h;
        h.oeffneSpiel();
        auto* flaeche = qobject_cast<QScrollArea*>(h.fenster->centralWidget());
        QVERIFY(flaeche);
        h.fenster->resize(1024, 600);
        h.fenster->show();
        QVERIFY(QTest::qWaitForWindowExposed(h.fenster.get()));
        QVERIFY(flaeche->horizontalScrollBar()->maximum() > 0);
        QVERIFY(flaeche->verticalScrollBar()->maximum() > 0);
        QCOMPARE(flaeche->widget()->size(), QSize(px(15360), px(10875)));
        flaeche->ensureWidgetVisible(h.kind("txtTeamInfo"));
        QVERIFY(flaeche->viewport()->rect().intersects(
            QRect(h.kind("txtTeamInfo")->mapTo(flaeche->viewport(), QPoint(0, 0)), QSize(10, 10))));
    }

    void strgBildBlaettert() {
        Hauptfenster h;
        h.oeffneSpiel();  // shows matchday index 1
        h.fenster->show();
        QApplication::setActiveWindow(h.fenster.get());
        QVERIFY(QTest::qWaitForWindowActive(h.fenster.get()));
        QTest::keyClick(h.fenster.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(h.spiel().getAktSpieltag(), 2);
        QCOMPARE(h.label("lblSpieltagWahl", 2)->palette().color(QPalette::Window), QColor(255, 0, 0));
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(h.fenster.get(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(h.spiel().getAktSpieltag(), 0);  // not before the first
        h.zeigeSpieltag(33);
        QTest::keyClick(h.fenster.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(h.spiel().getAktSpieltag(), 33);  // nor after the last
    }

    void tabulatorfolgeLaeuftDieSpalteHinunter() {
        Hauptfenster h;
        auto naechstes = [&](const char* name, int i) { return h.feld(name, i)->nextInFocusChain(); };
        QCOMPARE(naechstes("txtAusErgebnis", 9), static_cast<QWidget*>(h.feld("txtHeimTipp", 0)));
        QCOMPARE(naechstes("txtHeimTipp", 0), static_cast<QWidget*>(h.feld("txtAusTipp", 0)));
        QCOMPARE(naechstes("txtAusTipp", 0), static_cast<QWidget*>(h.feld("txtHeimTipp", 1)));
        QCOMPARE(naechstes("txtAusTipp", 9), static_cast<QWidget*>(h.feld("txtHeimTipp", 10)));
    }
};

KALIMBO_UI_TEST_MAIN(HauptAnsichtTest)
#include "haupt_ansicht_test.moc"
