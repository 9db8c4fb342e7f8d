// The keyboard in the secondary windows: Escape closes each, "Abbrechen", Escape and the frame
// drop the edits of Spielerdaten and Eigene Regel (the rule before comes back), the arrow keys walk
// the frequency grid, and Tab goes through each window in a sensible order.
#include <QApplication>
#include <QLineEdit>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

namespace {

// How a window is left without "OK".
enum Weg { Abbrechen, Escape, Rahmen };

void verlasse(const Hauptfenster& h, QWidget* fenster, int weg) {
    if (weg == Abbrechen) h.klick(h.kind(QStringLiteral("cmdAbbrechen")));
    if (weg == Escape) QTest::keyClick(fenster->findChild<QLineEdit*>(), Qt::Key_Escape);
    if (weg == Rahmen) fenster->close();
}

QWidget* oeffne(const Hauptfenster& h, const QString& aktion, const QString& fenster) {
    h.aktion(aktion)->trigger();
    QWidget* w = h.kind(fenster);
    QApplication::setActiveWindow(w);
    return w;
}

}  // namespace

class TastaturTest : public QObject {
    Q_OBJECT

  private slots:
    void escapeSchliesstJedesNebenfenster_data() {
        QTest::addColumn<QString>("aktion");
        QTest::addColumn<QString>("fenster");
        const std::pair<const char*, const char*> fenster[] = {
            {"menSpielerAe", "frmSpieler"},         {"menRegEigene", "frmRegel"},
            {"menHäufigkeiten", "frmHäufigkeiten"}, {"menDrucken", "frmDrucken"},
            {"menSimulation", "frmSimulation"},     {"menGrafik", "frmGrafik"}};
        for (const auto& [aktion, name] : fenster)
            QTest::newRow(name) << QString::fromUtf8(aktion) << QString::fromUtf8(name);
    }
    void escapeSchliesstJedesNebenfenster() {
        QFETCH(QString, aktion);
        QFETCH(QString, fenster);
        Hauptfenster h;
        h.oeffneSpiel();
        QWidget* w = oeffne(h, aktion, fenster);
        QVERIFY(w->isVisible());
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : w, Qt::Key_Escape);
        QVERIFY(!w->isVisible());
    }

    void ohneOkGiltDieRegelVonVorher_data() {
        QTest::addColumn<int>("weg");
        QTest::newRow("Abbrechen") << int(Abbrechen);
        QTest::newRow("Escape") << int(Escape);
        QTest::newRow("Rahmen") << int(Rahmen);
    }
    void ohneOkGiltDieRegelVonVorher() {
        QFETCH(int, weg);
        Hauptfenster h;
        h.oeffneSpiel();
        h.aktion("menReg3")->trigger();
        const Spielstand vorher = h.spiel();
        QWidget* fenster = oeffne(h, "menRegEigene", "frmRegel");
        h.kind<QLineEdit>("txtNeuModus_0")->setText("9");
        h.klick(h.label("lblFarbAlt", 1));
        h.aktion("menRegEigene")->trigger();  // a second click keeps the rule from before the first
        verlasse(h, fenster, weg);
        QVERIFY(!fenster->isVisible());
        QCOMPARE(h.spiel().Modus, 1);
        QCOMPARE(h.spiel().ModusPunkte, vorher.ModusPunkte);
        QCOMPARE(h.spiel().ModusFarbe, vorher.ModusFarbe);
        QVERIFY(h.aktion("menReg3")->isChecked() && !h.aktion("menRegEigene")->isChecked());
    }

    void ohneOkBleibenDieSpielerdaten_data() { ohneOkGiltDieRegelVonVorher_data(); }
    void ohneOkBleibenDieSpielerdaten() {
        QFETCH(int, weg);
        Hauptfenster h;
        h.oeffneSpiel();
        QWidget* fenster = oeffne(h, "menSpielerAe", "frmSpieler");
        const QPalette farbe = h.label("lblSpielerFarbe", Clara)->palette();
        h.kind<QLineEdit>("txtSpieler_0")->setText("Zora");
        h.klick(h.label("lblSpielerFarbe", Clara));
        verlasse(h, fenster, weg);
        QVERIFY(!fenster->isVisible());
        QCOMPARE(h.spiel().getSpielerName(Anna), std::string("Anna"));
        oeffne(h, "menSpielerAe", "frmSpieler");
        QCOMPARE(h.kind<QLineEdit>("txtSpieler_0")->text(), QStringLiteral("Anna"));
        QCOMPARE(h.label("lblSpielerFarbe", Clara)->palette(), farbe);
    }

    // From the chosen score, a key: the score chosen then. "andere" (100) lies under 9:1.
    void pfeiltastenImRaster_data() {
        QTest::addColumn<int>("von");
        QTest::addColumn<int>("taste");
        QTest::addColumn<int>("nach");
        const std::array<std::array<int, 3>, 8> faelle{{{0, Qt::Key_Left, 0},
                                                        {0, Qt::Key_Up, 0},
                                                        {0, Qt::Key_Right, 1},
                                                        {9, Qt::Key_Right, 9},
                                                        {55, Qt::Key_Up, 45},
                                                        {95, Qt::Key_Down, 100},
                                                        {100, Qt::Key_Up, 91},
                                                        {100, Qt::Key_Right, 100}}};
        for (const auto& [von, taste, nach] : faelle)
            QTest::addRow("%d %x", von, taste) << von << taste << nach;
    }
    void pfeiltastenImRaster() {
        QFETCH(int, von);
        QFETCH(int, taste);
        QFETCH(int, nach);
        Hauptfenster h;
        h.oeffneSpiel();
        oeffne(h, QStringLiteral("menHäufigkeiten"), QStringLiteral("frmHäufigkeiten"));
        QLabel* zelle = h.label("lblErgebnis", von);
        h.klick(zelle);
        QTest::keyClick(zelle->parentWidget(), Qt::Key(taste));
        QCOMPARE(h.label("lblErgebnis", nach)->lineWidth(), 3);  // the chosen cell's frame
        QCOMPARE(h.label("lblErgebnis", von)->lineWidth(), von == nach ? 3 : 1);
    }

    // Tab from the first control reaches each in this order, and then the first again.
    void tabfolge_data() {
        QTest::addColumn<QString>("aktion");
        QTest::addColumn<QString>("fenster");
        QTest::addColumn<QString>("folge");
        QString spieler;
        for (int p = 0; p < MaxSpieler; ++p)
            spieler += QStringLiteral("txtSpieler_%1 chkTeilnehmer_%1 ").arg(p);
        QTest::newRow("Spielerdaten") << "menSpielerAe"
                                      << "frmSpieler" << spieler + "cmdOK cmdAbbrechen";
        QTest::newRow("Eigene Regel") << "menRegEigene"
                                      << "frmRegel"
                                      << "txtNeuModus_0 txtNeuModus_1 txtNeuModus_2 cmdOK cmdAbbrechen";
        QTest::newRow("Drucken") << "menDrucken"
                                 << "frmDrucken"
                                 << "cmbSpieltag optArt_0 cmdVorschau cmdDrucken cmdPDF cmdHTML";
        QTest::newRow("Simulation") << "menSimulation"
                                    << "frmSimulation"
                                    << "cmbSpielerWahl txtPunkteDiff";
        QTest::newRow("Häufigkeiten") << "menHäufigkeiten"
                                      << "frmHäufigkeiten"
                                      << "fraRaster txtSpiele";
    }
    void tabfolge() {
        QFETCH(QString, aktion);
        QFETCH(QString, fenster);
        QFETCH(QString, folge);
        Hauptfenster h;
        h.oeffneSpiel();
        QWidget* w = oeffne(h, aktion, fenster);
        const QStringList namen = folge.split(' ');
        QWidget* erstes = w->findChild<QWidget*>(namen[0]);
        erstes->setFocus(Qt::TabFocusReason);
        QStringList erreicht;
        for (int i = 0; i < namen.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            erreicht << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(erreicht, namen.mid(1) << namen[0]);
    }
};

KALIMBO_UI_TEST_MAIN(TastaturTest)
#include "tastatur_test.moc"
