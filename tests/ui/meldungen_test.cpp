// Messages of the right kind: a pasted number too large names its box, errors carry the warning
// icon while a refused matchday selection stays an information, and a message of the start
// appears over the window already shown.
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

namespace {

// Records whether the window a warning belongs to was on screen when it appeared.
struct StartDialoge : TestDialoge {
    QList<bool> fensterSichtbar;
    void warnung(QWidget* eltern, const QString& text) override {
        fensterSichtbar << eltern->window()->isVisible();
        TestDialoge::warnung(eltern, text);
    }
};

}  // namespace

class MeldungenTest : public QObject {
    Q_OBJECT

  private slots:
    void eingefuegteZahlUeber32767NenntDasFeld() {
        Hauptfenster h;
        h.oeffneSpiel();
        Eingabefeld* feld = h.feld("txtHeimErgebnis", 0);
        QFocusEvent hinein(QEvent::FocusIn, Qt::MouseFocusReason),
            hinaus(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(feld, &hinein);
        QGuiApplication::clipboard()->setText("99999");
        QTest::keyClick(feld, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(h.dialoge.warnungen,
                 QStringList{"Die Eingabe für das Heimergebnis von „Bochum – Cottbus“ ist zu "
                             "groß: höchstens 32767 Tore. Das Feld behält seinen bisherigen "
                             "Wert."});
        h.meldungen();
        QApplication::sendEvent(feld, &hinaus);
        QCOMPARE(feld->text(), QStringLiteral("1"));  // Bochum - Cottbus 1:0
    }

    void fehlerWarnenAuswahlInformiert_data() {
        QTest::addColumn<QString>("aktion");
        QTest::addColumn<bool>("warnung");
        QTest::newRow("Eigene Regel mit 40000 Punkten") << "menRegEigene" << true;
        QTest::newRow("zu wenige absolvierte Spieltage") << "menSptgLetzten_3" << false;
    }
    void fehlerWarnenAuswahlInformiert() {
        QFETCH(QString, aktion);
        QFETCH(bool, warnung);
        Hauptfenster h;
        h.oeffneSpiel();
        h.aktion(aktion)->trigger();
        if (warnung) {
            h.kind<QLineEdit>("txtNeuModus_1")->setText("40000");
            h.klick(h.kind("cmdOK"));
        }
        QCOMPARE(h.dialoge.warnungen.size(), warnung ? 1 : 0);
        QCOMPARE(h.meldungen().size(), 1);
    }

    void startmeldungErscheintUeberDemFenster() {
        StartDialoge dialoge;
        frmVela_Haupt fenster(dialoge, "/gibt/es/nicht.tip");
        fenster.zeigeBeimStart();
        QCOMPARE(dialoge.fensterSichtbar, QList<bool>{true});
    }
};

KALIMBO_UI_TEST_MAIN(MeldungenTest)
#include "meldungen_test.moc"
