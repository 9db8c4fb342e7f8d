#include "ui/frmsimulation.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QtTest>

#include "fenstertest.h"
#include "hauptfenster.h"
#include "kurzesspiel.h"
#include "quellen/spielplan.h"
#include "scoring/auswertung.h"
#include "simulation/abweichung.h"
#include "simulation/vorhersage.h"
#include "ui/bausteine/twips.h"

using namespace kalimbo;
using namespace kalimbo::ui;

namespace {

// The short game with Anna's second matchday tipped so that her table is ordered unlike the real
// one: Fürth first (really last), Essen last (really first). Places coloured as a league's.
Spielstand spielMitVorhersage() {
    Spielstand s = kalimbo::test::kurzesSpiel();
    kalimbo::test::setzeTipps(s, 0, 1, "2:1 2:1 12:0");
    s.TabFarbe = tabellenfarben(6);
    werteAus(s, false);
    return s;
}

// The rows of a table as the golden file "fenster/simulation-NAME.txt" lists them.
QStringList tabelleAus(const std::string& name) {
    return QString::fromStdString(kalimbo::test::testdatei("fenster/simulation-" + name + ".txt"))
        .split('\n', Qt::SkipEmptyParts);
}
const QStringList Echt = tabelleAus("echt"), VonAnna = tabelleAus("anna"), VonCarl = tabelleAus("carl");

}  // namespace

class FrmSimulationTest : public ui::test::FensterTest<frmSimulation> {
    Q_OBJECT

    Spielstand spiel;

    QLabel* label(const char* name, int i) { return kind<QLabel>(QStringLiteral("%1_%2").arg(name).arg(i)); }
    QComboBox* wahl() { return kind<QComboBox>(QStringLiteral("cmbSpielerWahl")); }
    QString bericht() { return kind<QPlainTextEdit>(QStringLiteral("txtPunkteDiff"))->toPlainText(); }
    // The six rows of the real table (index 0) or the predicted one with the real points (20).
    QStringList tabelle(int erste) {
        QStringList zeilen;
        for (int i = erste; i < erste + 6; ++i) {
            QStringList zellen;
            for (const char* spalte : {"lblTabellenplatz", "lblTabName", "lblTabPunkte", "lblTabTore",
                                       "lblTabDifferenz", "lblTabSiege", "lblTabUn", "lblTabNiederlagen"})
                zellen << label(spalte, i)->text();
            if (erste > 0) zellen << label("lblPunkteDiff", i - erste)->text();
            zeilen << zellen.join('|');
        }
        return zeilen;
    }
    // Chooses entry `eintrag` of the player list as the user does.
    void waehle(int eintrag) {
        wahl()->setCurrentIndex(eintrag);
        emit wahl()->textActivated(wahl()->itemText(eintrag));
    }
    QColor farbe(const char* name, int i, QPalette::ColorRole rolle) {
        return label(name, i)->palette().color(rolle);
    }

  private slots:
    void init() {
        erzeugeFenster();
        spiel = spielMitVorhersage();
    }
    void cleanup() {
        QLocale::setDefault(QLocale::c());
        schliesseFenster();
    }

    // The league, both tables and the report (read-only, fixed pitch), at first (player 0) and after
    // choosing another player.
    void tabellenUndBericht_data() {
        QTest::addColumn<int>("eintrag");  // chosen in the list, -1 none
        QTest::addColumn<int>("spieler");
        QTest::addColumn<QString>("sprache");
        QTest::addColumn<QStringList>("vorhersage");
        QTest::newRow("zuerst Anna") << -1 << 0 << "C" << VonAnna;
        QTest::newRow("Carl gewählt, deutsch") << 1 << 2 << "de_DE" << VonCarl;
    }
    void tabellenUndBericht() {
        QFETCH(int, eintrag);
        QFETCH(int, spieler);
        QFETCH(QString, sprache);
        QLocale::setDefault(QLocale(sprache));
        fenster->zeige(spiel);
        if (eintrag >= 0) waehle(eintrag);
        QCOMPARE(kind<QLabel>(QStringLiteral("lblLiga"))->text(), QStringLiteral("Testliga 2024/25"));
        auto* text = kind<QPlainTextEdit>(QStringLiteral("txtPunkteDiff"));
        QVERIFY(text->isReadOnly() && QFontInfo(text->font()).fixedPitch());
        QCOMPARE(tabelle(0), Echt);
        QTEST(tabelle(MaxTeams), "vorhersage");
        const std::string trenner = sprache == "C" ? "." : ",";
        QCOMPARE(bericht(),
                 QString::fromStdString(
                     abweichungsbericht(spiel, spieler, vorhergesagteTabelle(spiel, spieler), trenner))
                     .replace("\r\n", "\n"));
    }

    void spielerWahl_data() {
        QTest::addColumn<int>("ohne");      // a slot set not to take part, -1 none
        QTest::addColumn<QString>("carl");  // the name of slot 2
        QTest::addColumn<QStringList>("liste");
        QTest::addColumn<int>("eintrag");
        QTest::newRow("nur wer mitspielt") << -1 << "Carl" << QStringList{"Anna", "Carl"} << -1;
        QTest::newRow("zuerst Spieler 0, auch ohne Teilnahme") << 0 << "Carl" << QStringList{"Carl"} << -1;
        QTest::newRow("gleicher Name: der niedrigere Platz")
            << -1 << "Anna" << QStringList{"Anna", "Anna"} << 1;
    }
    void spielerWahl() {
        QFETCH(int, ohne);
        QFETCH(QString, carl);
        QFETCH(int, eintrag);
        if (ohne >= 0) spiel.Teilnehmer[ohne] = 0;
        spiel.Spielername[2] = carl.toStdString();
        fenster->zeige(spiel);
        QStringList liste;
        for (int i = 0; i < wahl()->count(); ++i)
            liste << wahl()->itemText(i);
        QTEST(liste, "liste");
        if (eintrag >= 0) waehle(eintrag);
        QCOMPARE(tabelle(MaxTeams), VonAnna);
        QVERIFY(bericht().startsWith(QStringLiteral(" Spieler: Anna\n")));
    }

    // A name no longer in the game keeps the player chosen before.
    void unbekannterNameBehaeltDenSpieler() {
        fenster->zeige(spiel);
        waehle(1);
        spiel.Spielername[0] = "Anne";
        waehle(0);
        QCOMPARE(tabelle(MaxTeams), VonCarl);
    }

    // The tables show twenty rows unless the season has 34 matchdays, the frames hold them with the
    // report beneath, and a line closes each table under its last team.
    void layoutNachSaisonlaenge_data() {
        QTest::addColumn<QList<int>>("teams");  // the games shown one after the other
        QTest::addColumn<int>("spieltage");     // highest matchday index of the last, -1 as built
        QTest::addColumn<int>("zeilen");
        QTest::newRow("34 Spieltage") << QList<int>{18} << -1 << 18;
        QTest::newRow("38 Spieltage") << QList<int>{20} << -1 << 20;
        QTest::newRow("38 nach 34") << QList<int>{18, 20} << -1 << 20;
        QTest::newRow("18 Teams, 36 Spieltage") << QList<int>{18} << 35 << 20;
    }
    void layoutNachSaisonlaenge() {
        QFETCH(QList<int>, teams);
        QFETCH(int, spieltage);
        QFETCH(int, zeilen);
        for (int n : teams) {
            spiel = kalimbo::test::kleinesSpiel(n);
            if (spieltage >= 0) spiel.AnzSpieltage = static_cast<i16>(spieltage);
            fenster->zeige(spiel);
        }
        for (int z : {17, 18, 19})
            for (QLabel* l :
                 {label("lblTabName", z), label("lblTabPunkte", MaxTeams + z), label("lblPunkteDiff", z)})
                QCOMPARE(!l->isHidden(), z < zeilen);
        QWidget* rahmen = label("lblTabName", 0)->parentWidget()->parentWidget();
        const auto unten = [rahmen, this](int z) {
            return label("lblTabName", z)->mapTo(rahmen, QPoint(0, label("lblTabName", z)->height())).y();
        };
        QVERIFY(rahmen->height() > unten(zeilen - 1) && rahmen->height() <= unten(zeilen - 1) + px(300));
        for (auto* r : fenster->findChildren<QGroupBox*>(QStringLiteral("fraBlitztabelle")))
            QCOMPARE(r->height(), rahmen->height());
        QCOMPARE(kind<QFrame>("linHori_1")->y(), unten(teams.last() - 1));
        QCOMPARE(kind<QFrame>("linHori_0")->y(), unten(teams.last() - 1) + px(15));
        const auto* text = kind<QPlainTextEdit>(QStringLiteral("txtPunkteDiff"));
        QVERIFY(text->y() > rahmen->geometry().bottom() && text->geometry().bottom() < fenster->height());
    }

    // The pointer over a name marks that team's points in both tables, and only there.
    void zeigerMarkiertDasTeamInBeidenTabellen_data() {
        QTest::addColumn<QList<int>>("ueber");  // names passed over, in this order
        QTest::addColumn<QList<int>>("markiert");
        QTest::newRow("Fürth, echte Tabelle") << QList<int>{5} << QList<int>{5, 20};
        QTest::newRow("Fürth, Vorhersage") << QList<int>{20} << QList<int>{5, 20};
        QTest::newRow("Essen, dann Aachen") << QList<int>{25, 1} << QList<int>{1, 21};
    }
    void zeigerMarkiertDasTeamInBeidenTabellen() {
        QFETCH(QList<int>, ueber);
        fenster->zeige(spiel);
        for (int i : ueber)
            QTest::mouseMove(label("lblTabName", i));
        QList<int> markiert;
        for (int i = 0; i < 2 * MaxTeams; ++i)
            if (farbe("lblTabPunkte", i, QPalette::WindowText) ==
                QApplication::palette().color(QPalette::Text))
                markiert << i;
        QTEST(markiert, "markiert");
    }
};

KALIMBO_UI_TEST_MAIN(FrmSimulationTest)

#include "frmsimulation_test.moc"
