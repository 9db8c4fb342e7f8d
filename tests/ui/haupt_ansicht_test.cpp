// The matchday view of the main window: rankings, points and places, tip
// colours, player columns, the Sunday marks, the layout for 34 and 38
// matchdays, and the start without a game.
#include <QCheckBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>

#include "hauptfenster.h"
#include "ui/bausteine/beschriftung.h"
#include "ui/bausteine/farben.h"
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
                                : n->text().trimmed() + "=" + p->text());
        }
        return z;
    }
    static QColor schaltflaeche() { return QApplication::palette().color(QPalette::Button); }
    static QColor hervorhebung(const Hauptfenster& h, int tag) {
        return h.label("lblSpieltagWahl", tag)->palette().color(QPalette::Window);
    }

  private slots:
    void ranglistenUndPunkte_data() {
        QTest::addColumn<int>("spieltag");
        QTest::addColumn<Zeilen>("spieltagstabelle");
        QTest::addColumn<QStringList>("punkteUndPlaetze");  // per player: matchday points/place, total/place
        QTest::newRow("Spieltag 2") << 1
                                    << Zeilen{"Bernd=12", "Dieter=5", "Anna=1", "-", "-", "-", "-", "-", "-"}
                                    << QStringList{"1 3 10 2", "12 1 16 1", "", "5 2 10 2"};
        QTest::newRow("Spieltag 1") << 0
                                    << Zeilen{"Anna=9", "Dieter=5", "Bernd=4", "-", "-", "-", "-", "-", "-"}
                                    << QStringList{"9 1 10 2", "4 3 16 1", "", "5 2 10 2"};
        // Not counted: everybody has 0 and keeps the row and place of his slot;
        // Clara's row stays hidden.
        QTest::newRow("Spieltag 6") << 5
                                    << Zeilen{"Anna=0", "Bernd=0", "-", "Dieter=0", "-", "-", "-", "-", "-"}
                                    << QStringList{"0 1 10 2", "0 2 16 1", "", "0 4 10 2"};
    }
    void ranglistenUndPunkte() {
        QFETCH(int, spieltag);
        Hauptfenster h(kleinesSpiel());  // shown evaluated at once
        h.zeigeSpieltag(spieltag);
        QTEST(zeilen(h, "lblSptgTabelle", "lblSptgTabellePkt"), "spieltagstabelle");
        QCOMPARE(zeilen(h, "lblGesamttabelle", "lblGesamttabellePkt"),
                 (Zeilen{"Bernd=16", "Anna=10", "Dieter=10", "-", "-", "-", "-", "-", "-"}));
        QCOMPARE(h.kind<QLabel>("lblSptgstabelle")->text(), QStringLiteral("Spieltag %1").arg(spieltag + 1));
        QFETCH(QStringList, punkteUndPlaetze);
        for (int p : {Anna, Bernd, Dieter}) {
            QStringList gezeigt;
            for (const char* name : {"lblSptgPunkte", "lblSptgPlatz", "lblGesamtPunkte", "lblGesamtPlatz"})
                gezeigt << h.label(name, p)->text();
            QCOMPARE(gezeigt.join(' '), punkteUndPlaetze[p]);
        }
        // Who does not take part has no column, and his shown matchday's points
        // read -1.
        QVERIFY(!h.sichtbar(QStringLiteral("fraSpielerSäule_2")));
        QCOMPARE(h.spiel().getSpieltagPunkte(Clara, spieltag), -1);
    }

    void spaltenDerTeilnehmerStehenOhneLuecken() {
        Dateiinhalt d = kleinesSpiel();
        d.Teilnehmer = {{1, 0, 0, 0, 1, 0, 0, 0, 1}};
        Hauptfenster h(d);
        QCOMPARE(h.kind(QStringLiteral("fraSpielerSäule_0"))->x(), px(4920));
        QCOMPARE(h.kind(QStringLiteral("fraSpielerSäule_4"))->x(), px(5880));
        QCOMPARE(h.kind(QStringLiteral("fraSpielerSäule_8"))->x(), px(6840));
        for (int p : {1, 2, 3, 5, 6, 7})
            QVERIFY(h.kind(Hauptfenster::indexName("fraSpielerSäule", p))->isHidden());
    }

    // A tip box shows the colour of its hit under the rule in force.
    void trefferfarben_data() {
        QTest::addColumn<int>("spieltag");
        QTest::addColumn<int>("feld");
        QTest::addColumn<int>("treffer");  // kind of hit 0..2, -1 none, -2 not counted
        QTest::newRow("komplett richtig") << 1 << Bernd * 10 + 0 << 0;
        QTest::newRow("Höhe des Sieges") << 1 << Dieter * 10 + 0 << 1;
        QTest::newRow("Tendenz Remis") << 1 << Dieter * 10 + 1 << 2;
        QTest::newRow("Tendenz 0:0 auf 2:2") << 1 << Anna * 10 + 1 << 2;
        QTest::newRow("kein Treffer") << 1 << Dieter * 10 + 4 << -1;
        QTest::newRow("nicht Teilnehmer") << 1 << Clara * 10 + 0 << -2;
        QTest::newRow("nicht gewertet") << 4 << Bernd * 10 + 0 << -2;
    }
    void trefferfarben() {
        QFETCH(int, spieltag);
        QFETCH(int, feld);
        QFETCH(int, treffer);
        Hauptfenster h(kleinesSpiel());
        h.zeigeSpieltag(spieltag);
        const QColor farbe = treffer >= 0    ? qfarbe(h.spiel().getModusFarbe(treffer))
                             : treffer == -1 ? QColor(Qt::white)
                                             : schaltflaeche();
        QCOMPARE(h.feld("txtHeimTipp", feld)->hintergrund(), farbe);
        QCOMPARE(h.feld("txtAusTipp", feld)->hintergrund(), farbe);
    }

    // The Sunday matches are framed on the current matchday only; left out, they
    // score nothing for anybody.
    void sonntagsspiele() {
        Hauptfenster h(kleinesSpiel());
        QCOMPARE(h.kind("shpSonntag_0")->y(), h.label("lblHeimTeam", 7)->y() - px(30));
        QCOMPARE(h.kind("shpSonntag_1")->y(), h.label("lblHeimTeam", 8)->y() - px(30));
        h.feld("txtHeimTipp", Anna * 10 + 7)->setText("2");  // Offenbach - Paderborn 2:0
        h.feld("txtAusTipp", Anna * 10 + 7)->setText("0");
        h.kind<QCheckBox>("chkSonntag")->setChecked(true);
        h.auswerten();
        QCOMPARE(h.label("lblGesamtPunkte", Anna)->text(), QStringLiteral("10"));
        QCOMPARE(h.feld("txtHeimTipp", Anna * 10 + 7)->hintergrund(), schaltflaeche());
        QCOMPARE(h.feld("txtHeimTipp", Anna * 10 + 6)->hintergrund(), QColor(Qt::white));
        h.kind<QCheckBox>("chkSonntag")->setChecked(false);
        h.auswerten();
        QCOMPARE(h.label("lblGesamtPunkte", Anna)->text(), QStringLiteral("13"));
        h.zeigeSpieltag(0);
        QVERIFY(!h.sichtbar("chkSonntag") && !h.sichtbar("shpSonntag_0") && !h.sichtbar("shpSonntag_1"));
    }

    // 38 matchdays bring a tenth match row. The line between results and tips
    // ends under the last row, the points stand under the last tip, and the
    // frames below hold the league table.
    void anordnungNachSaisonlaenge_data() {
        QTest::addColumn<int>("teams");
        QTest::newRow("34 Spieltage") << 18;
        QTest::newRow("38 Spieltage") << 20;
    }
    void anordnungNachSaisonlaenge() {
        QFETCH(int, teams);
        Hauptfenster h;
        h.oeffneSpiel(kleinesSpiel(teams == 18 ? 20 : 18));  // the other layout first
        h.oeffneSpiel(kleinesSpiel(teams));
        const int letzte = teams / 2 - 1;
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            QCOMPARE(h.sichtbar(Hauptfenster::indexName("lblSpieltagWahl", tag)), tag < 2 * teams - 2);
        for (const char* name : {"lblHeimTeam", "lblAusTeam", "txtHeimErgebnis", "txtAusErgebnis"})
            QCOMPARE(h.sichtbar(Hauptfenster::indexName(name, 9)), letzte == 9);
        for (int p = 0; p < MaxSpieler; ++p)
            for (const char* name : {"txtHeimTipp", "txtAusTipp"})
                QCOMPARE(!h.feld(name, p * 10 + 9)->isHidden(), letzte == 9);
        QCOMPARE(h.kind("linTrenn")->geometry().bottom(),
                 h.feld("txtAusErgebnis", letzte)->geometry().bottom() + px(30));
        for (int p = 0; p < MaxSpieler; ++p) {
            const int tippUnten = h.feld("txtHeimTipp", p * 10 + letzte)->geometry().bottom();
            QCOMPARE(h.label("lblSptgPunkte", p)->y(), tippUnten + 1 + px(30));
            QCOMPARE(h.label("lblSptgPlatz", p)->y(), tippUnten + 1 + px(30));
            QVERIFY(h.label("lblGesamtPlatz", p)->y() > h.label("lblSptgPunkte", p)->geometry().bottom());
        }
        QWidget* blitz = h.kind("fraBlitztabelle");
        const int tabelleUnten = h.label("lblTabName", teams - 1)->mapTo(blitz, QPoint(0, 0)).y() + px(240);
        QVERIFY2(blitz->height() > tabelleUnten && blitz->height() <= tabelleUnten + px(240),
                 qPrintable(QStringLiteral("%1 %2").arg(blitz->height()).arg(tabelleUnten)));
        for (const char* name : {"fraTabelle", "fraTeamInfo"})
            QCOMPARE(h.kind(name)->height(), blitz->height());
        const int infoUnten = h.kind("txtTeamInfo")->geometry().bottom();
        QVERIFY(infoUnten < blitz->height() && infoUnten > blitz->height() - px(240));
    }

    void startOhneSpiel() {
        Hauptfenster h;
        for (int tag = 0; tag < MaxSpieltage; ++tag)
            QCOMPARE(h.label("lblSpieltagWahl", tag)->isHidden() ? QString()
                                                                 : h.label("lblSpieltagWahl", tag)->text(),
                     QString::number(tag + 1));
        for (int k = 0; k < MaxSpiele; ++k)
            QVERIFY(h.sichtbar(Hauptfenster::indexName("lblHeimTeam", k)));
        QCOMPARE(hervorhebung(h, 0), QColor(255, 0, 0));
        QCOMPARE(hervorhebung(h, 1), QColor(255, 255, 128));
        QCOMPARE(h.kind<QLineEdit>("txtAktSpieltag")->text(), QStringLiteral("99"));
        QVERIFY(frmVela_Haupt::startMaximiert(767));
        QVERIFY(!frmVela_Haupt::startMaximiert(768));
    }

    void zuLangeNamenWerdenGekuerztUndAlsHinweisGezeigt() {
        Dateiinhalt d = kleinesSpiel();
        d.Teamname[2] = "Sportvereinigung Cottbus-Brandenburg an der Spree 1896";
        d.Spielername[Dieter] = "Dieter-Friedrich von Hohenstein";
        Hauptfenster h(d);
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
        Hauptfenster h(kleinesSpiel());
        auto* flaeche = qobject_cast<QScrollArea*>(h.fenster->centralWidget());
        QVERIFY(flaeche);
        h.fenster->resize(1024, 600);
        h.fenster->show();
        QVERIFY(QTest::qWaitForWindowExposed(h.fenster.get()));
        QVERIFY(flaeche->horizontalScrollBar()->maximum() > 0 && flaeche->verticalScrollBar()->maximum() > 0);
        QCOMPARE(flaeche->widget()->size(), QSize(px(15360), px(10875)));
        flaeche->ensureWidgetVisible(h.kind("txtTeamInfo"));
        QVERIFY(flaeche->viewport()->rect().intersects(
            QRect(h.kind("txtTeamInfo")->mapTo(flaeche->viewport(), QPoint(0, 0)), QSize(10, 10))));
    }

    void strgBildBlaettert() {
        Hauptfenster h(kleinesSpiel());  // shows matchday index 1
        h.fenster->show();
        QApplication::setActiveWindow(h.fenster.get());
        QVERIFY(QTest::qWaitForWindowActive(h.fenster.get()));
        QTest::keyClick(h.fenster.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(h.spiel().getAktSpieltag(), 2);
        QCOMPARE(hervorhebung(h, 2), QColor(255, 0, 0));
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
