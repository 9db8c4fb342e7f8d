// The keyboard in the secondary windows: Tab goes round each in a sensible order and Escape closes
// it; leaving Spielerdaten or Eigene Regel without "OK" drops the edits (the rule before comes
// back); the arrow keys walk the frequency grid.
#include <QApplication>
#include <QLineEdit>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

namespace {

QWidget* oeffne(const Hauptfenster& h, const QString& aktion) {
    h.aktion(aktion)->trigger();
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (fenster->isVisible() && fenster != h.fenster.get()) {
            QApplication::setActiveWindow(fenster);
            return fenster;
        }
    return nullptr;
}

}  // namespace

class TastaturTest : public QObject {
    Q_OBJECT

  private slots:
    // The controls Tab reaches one after the other, from the first round to it again.
    void tabUndEscape_data() {
        QTest::addColumn<QString>("aktion");
        QTest::addColumn<QString>("folge");
        QString spieler;
        for (int p = 0; p < MaxSpieler; ++p)
            spieler += QStringLiteral("txtSpieler_%1 chkTeilnehmer_%1 ").arg(p);
        const std::pair<const char*, QString> faelle[] = {
            {"menSpielerAe", spieler + "cmdOK cmdAbbrechen"},
            {"menRegEigene", "txtNeuModus_0 txtNeuModus_1 txtNeuModus_2 cmdOK cmdAbbrechen"},
            {"menDrucken", "cmbSpieltag optArt_0 cmdVorschau cmdDrucken cmdPDF cmdHTML"},
            {"menSimulation", "cmbSpielerWahl txtPunkteDiff"},
            {"menHäufigkeiten", "fraRaster txtSpiele"},
            {"menGrafik", ""}};  // nothing in the graph window takes the focus
        for (const auto& [aktion, folge] : faelle)
            QTest::newRow(aktion) << QString::fromUtf8(aktion) << folge;
    }
    void tabUndEscape() {
        QFETCH(QString, aktion);
        QFETCH(QString, folge);
        Hauptfenster h;
        h.oeffneSpiel();
        QWidget* fenster = oeffne(h, aktion);
        const QStringList namen = folge.split(' ', Qt::SkipEmptyParts);
        if (!namen.isEmpty()) fenster->findChild<QWidget*>(namen[0])->setFocus();
        QStringList erreicht;
        for (int i = 0; i < namen.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            erreicht << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(erreicht, namen.mid(1) << namen.mid(0, 1));
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : fenster, Qt::Key_Escape);
        QVERIFY(!fenster->isVisible());
    }

    // Left by "Abbrechen" (0), Escape (1) or the frame (2).
    void ohneOk_data() {
        QTest::addColumn<QString>("aktion");
        QTest::addColumn<int>("weg");
        for (const char* aktion : {"menRegEigene", "menSpielerAe"})
            for (const int weg : {0, 1, 2})
                QTest::addRow("%s %d", aktion, weg) << aktion << weg;
    }
    void ohneOk() {
        QFETCH(QString, aktion);
        QFETCH(int, weg);
        const bool regel = aktion == "menRegEigene";
        Hauptfenster h;
        h.oeffneSpiel();
        h.aktion("menReg3")->trigger();
        const Dateiinhalt vorher = h.spiel();
        QWidget* fenster = oeffne(h, aktion);
        QLineEdit* text = fenster->findChild<QLineEdit*>();
        QLabel* farbe = h.label(regel ? "lblFarbAlt" : "lblSpielerFarbe", Clara);
        const QString textVorher = text->text();
        const QPalette farbeVorher = farbe->palette();
        text->setText("9");
        h.klick(farbe);
        if (regel) h.aktion(aktion)->trigger();  // a second click keeps the rule from before the first
        if (weg == 0) h.klick(fenster->findChild<QWidget*>("cmdAbbrechen"));
        if (weg == 1) QTest::keyClick(text, Qt::Key_Escape);
        if (weg == 2) fenster->close();
        QVERIFY(!fenster->isVisible());
        QVERIFY(static_cast<const Dateiinhalt&>(h.spiel()) == vorher);
        QVERIFY(h.aktion("menReg3")->isChecked());
        oeffne(h, aktion);  // opened again: as before the edits, the colour clicked included
        QCOMPARE(text->text(), textVorher);
        QCOMPARE(farbe->palette(), farbeVorher);
    }

    // Each key moves the chosen score (its cell's frame is thick); "andere" (100) lies under 9:1.
    void pfeiltastenImRaster() {
        Hauptfenster h;
        h.oeffneSpiel();
        oeffne(h, QStringLiteral("menHäufigkeiten"));
        h.klick(h.label("lblErgebnis", 95));
        const std::pair<int, int> schritte[] = {{Qt::Key_Down, 100}, {Qt::Key_Right, 100}, {Qt::Key_Up, 91},
                                                {Qt::Key_Up, 81},    {Qt::Key_Left, 80},   {Qt::Key_Left, 80},
                                                {Qt::Key_Right, 81}};
        for (const auto& [taste, klasse] : schritte) {
            QTest::keyClick(h.kind(QStringLiteral("fraRaster")), Qt::Key(taste));
            QCOMPARE(h.label("lblErgebnis", klasse)->lineWidth(), 3);
        }
    }
};

KALIMBO_UI_TEST_MAIN(TastaturTest)
#include "tastatur_test.moc"
