#include "ui/frmhaeufigkeiten.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QtTest>
#include <memory>

#include "fenstertest.h"
#include "hauptfenster.h"
#include "kurzesspiel.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/twips.h"

using namespace kalimbo;
using namespace kalimbo::ui;

class FrmHaeufigkeitenTest : public ui::test::FensterTest<frmHaeufigkeiten> {
    Q_OBJECT

    Spielstand spiel;

    QLabel* label(const QString& name) { return kind<QLabel>(name); }
    QLabel* label(const char* name, int i) { return label(QStringLiteral("%1_%2").arg(name).arg(i)); }
    QColor hintergrund(QLabel* l) { return l->palette().color(QPalette::Window); }
    // Width of a bar, 0 when it is hidden.
    int balken(const QString& name) {
        QLabel* l = label(name);
        return l->isHidden() ? 0 : l->width();
    }

  private slots:
    void init() {
        erzeugeFenster();
        spiel = kalimbo::test::kurzesSpiel();
        fenster->zeige(spiel);
    }
    void cleanup() { schliesseFenster(); }

    void rasterZaehltDieErgebnisseUndSchattiertSie() {
        QVERIFY(fenster->isWindow() && fenster->isVisible());
        QStringList texte;
        for (int k = 0; k < AnzErgebnisklassen; ++k) {
            QLabel* zelle = label("lblErgebnis", k);
            texte << zelle->text();
            const Farbe schatten = schattierung(zelle->text().toInt(), 2);
            QCOMPARE(hintergrund(zelle), qfarbe(schatten));
            QCOMPARE(zelle->palette().color(QPalette::WindowText), qfarbe(schriftfarbeAuf(schatten)));
        }
        QStringList erwartet(AnzErgebnisklassen, QStringLiteral("0"));
        erwartet[21] = "2";
        erwartet[0] = erwartet[11] = erwartet[3] = erwartet[KlasseAndere] = "1";
        QCOMPARE(texte, erwartet);
        // Home goals down, away goals across: 2:1 stands under 0:1 and beside 2:0.
        QCOMPARE(label("lblErgebnis", 21)->toolTip(), QStringLiteral("2:1"));
        QCOMPARE(label("lblErgebnis", 21)->pos(),
                 QPoint(label("lblErgebnis", 1)->x(), label("lblErgebnis", 20)->y()));
        QVERIFY(label("lblErgebnis", 21)->x() > label("lblErgebnis", 20)->x());
        QVERIFY(label("lblErgebnis", 21)->y() > label("lblErgebnis", 1)->y());
        // The most frequent result is chosen at first.
        QCOMPARE(label("lblAuswahl")->text(), QStringLiteral("Ergebnis 2:1"));
        QVERIFY(label("lblErgebnis", 21)->font().bold());
        QVERIFY(!label("lblErgebnis", 0)->font().bold());
    }

    void jeSpielerHaeufigsterTippUndExaktRichtige() {
        QCOMPARE(label("lblTipper", 0)->text(), QStringLiteral("Anna"));
        QCOMPARE(label("lblHäufigsterTipp", 0)->text(), QStringLiteral("2:1 (3-mal)"));
        QCOMPARE(label("lblTreffer", 0)->text(), QStringLiteral("2"));
        QCOMPARE(label("lblTipper", 2)->text(), QStringLiteral("Carl"));
        QCOMPARE(label("lblHäufigsterTipp", 2)->text(), QStringLiteral("0:0 (3-mal)"));
        QCOMPARE(label("lblTreffer", 2)->text(), QStringLiteral("3"));
        // Carl stands right under Anna; Bernd and the empty slots are not shown.
        QCOMPARE(label("lblTipper", 2)->y() - label("lblTipper", 0)->y(), px(300));
        QCOMPARE(label("lblName_2")->y() - label("lblName_0")->y(), px(330));
        for (int p : {1, 3, 8})
            QVERIFY(label("lblTipper", p)->isHidden() && label("lblTreffer", p)->isHidden());
    }

    void ergebnisWaehlen_data() {
        QTest::addColumn<int>("klasse");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<QStringList>("anzahlen");  // real results, Anna, Carl
        QTest::addColumn<QList<int>>("balken");     // bar widths in twips
        QTest::newRow("2:1") << 21 << "Ergebnis 2:1" << QStringList{"2", "3", "0"}
                             << QList<int>{2400, 3600, 0};
        QTest::newRow("0:0") << 0 << "Ergebnis 0:0" << QStringList{"1", "0", "3"}
                             << QList<int>{1200, 0, 3600};
        QTest::newRow("andere") << KlasseAndere << "Andere Ergebnisse" << QStringList{"1", "1", "0"}
                                << QList<int>{3600, 3600, 0};
        QTest::newRow("9:9 nie") << 99 << "Ergebnis 9:9" << QStringList{"0", "0", "0"} << QList<int>{0, 0, 0};
    }
    void ergebnisWaehlen() {
        QFETCH(int, klasse);
        QFETCH(QString, titel);
        QFETCH(QStringList, anzahlen);
        QFETCH(QList<int>, balken);
        QTest::mouseClick(label("lblErgebnis", klasse), Qt::LeftButton);
        QCOMPARE(label("lblAuswahl")->text(), titel);
        QVERIFY(label("lblErgebnis", klasse)->font().bold());
        QCOMPARE((QStringList{label("lblAnzahl")->text(), label("lblAnzahl_0")->text(),
                              label("lblAnzahl_2")->text()}),
                 anzahlen);
        QCOMPARE(
            (QList<int>{this->balken("lblBalken"), this->balken("lblBalken_0"), this->balken("lblBalken_2")}),
            (QList<int>{px(balken[0]), px(balken[1]), px(balken[2])}));
        // Bars in the player's colour, for those who take part only.
        QCOMPARE(hintergrund(label("lblBalken_2")), qfarbe(spiel.getSpielerFarbe(2)));
        for (const char* name : {"lblName_1", "lblAnzahl_1", "lblBalken_1", "lblName_5"})
            QVERIFY(label(name)->isHidden());
        // The matches concerned, as the core lists them.
        QCOMPARE(kind<QPlainTextEdit>("txtSpiele")->toPlainText(),
                 QString::fromStdString(spielliste(spiel, zaehleHaeufigkeiten(spiel), klasse)));
    }

    void derLaengsteBalkenKannDerDerErgebnisseSein() {
        spiel.Teilnehmer[2] = 0;  // without Carl nobody tipped 0:0
        fenster->zeige(spiel);
        QTest::mouseClick(label("lblErgebnis", 0), Qt::LeftButton);
        QCOMPARE(balken("lblBalken"), px(3600));
        QCOMPARE(balken("lblBalken_0"), 0);
    }

    void erneutesZeigenZaehltNeuUndBehaeltDieWahl() {
        QTest::mouseClick(label("lblErgebnis", 0), Qt::LeftButton);
        kalimbo::test::setzeAuswahl(spiel, "0-2");
        spiel.Teilnehmer[1] = 1;
        fenster->zeige(spiel);
        QCOMPARE(label("lblAuswahl")->text(), QStringLiteral("Ergebnis 0:0"));
        QCOMPARE(label("lblErgebnis", 21)->text(), QStringLiteral("5"));
        QCOMPARE(label("lblAnzahl_1")->text(), QStringLiteral("3"));
        QVERIFY(!label("lblName_1")->isHidden());
        QCOMPARE(label("lblName_2")->y() - label("lblName_0")->y(), px(2 * 330));
        QCOMPARE(label("lblHäufigsterTipp", 1)->text(), QStringLiteral("0:0 (3-mal)"));
    }
};

KALIMBO_UI_TEST_MAIN(FrmHaeufigkeitenTest)

#include "frmhaeufigkeiten_test.moc"
