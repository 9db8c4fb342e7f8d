// Messages of the right kind and language, run under LANG=C: Qt's own dialogs speak German all the
// same while the user's locale stays the default; a pasted number too large names its box; errors
// carry the warning icon while a refused matchday selection stays an information; a message of
// the start appears over the window already shown.
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

#include "hauptfenster.h"
#include "ui/bausteine/uebersetzung.h"

using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class MeldungenTest : public QObject {
    Q_OBJECT

  private slots:
    void qtsDialogeSprechenDeutsch() {
        QVERIFY(ladeQtUebersetzung(*QCoreApplication::instance()));
        QDialogButtonBox knoepfe(QDialogButtonBox::Cancel | QDialogButtonBox::Yes);
        QCOMPARE(knoepfe.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Abbrechen"));
        QCOMPARE(knoepfe.button(QDialogButtonBox::Yes)->text(), QStringLiteral("&Ja"));
        QFileDialog datei(nullptr, {}, {}, {});
        datei.setOption(QFileDialog::DontUseNativeDialog);
        QCOMPARE(datei.findChild<QLabel*>("fileNameLabel")->text(), QStringLiteral("Datei&name:"));
        QCOMPARE(QLocale().decimalPoint(), QStringLiteral("."));
    }

    // 32767 is the largest score a box takes; one more is refused with a warning naming the box.
    void zahlUeber32767NenntDasFeld() {
        Hauptfenster h;
        h.oeffneSpiel();
        Eingabefeld* feld = h.feld("txtHeimErgebnis", 0);
        QFocusEvent hinein(QEvent::FocusIn, Qt::MouseFocusReason),
            hinaus(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(feld, &hinein);
        QGuiApplication::clipboard()->setText("3276");
        QTest::keyClick(feld, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(feld, Qt::Key_7);
        QCOMPARE(h.dialoge.warnungen, QStringList());
        QTest::keyClick(feld, Qt::Key_Backspace);
        QTest::keyClick(feld, Qt::Key_8);
        QApplication::sendEvent(feld, &hinaus);
        QCOMPARE(feld->text(), QStringLiteral("3276"));
        QCOMPARE(h.dialoge.warnungen,
                 QStringList{"Die Eingabe für das Heimergebnis von „Bochum – Cottbus“ ist zu "
                             "groß: höchstens 32767 Tore. Das Feld behält seinen bisherigen "
                             "Wert."});
        h.meldungen();
    }

    void fehlerWarnenAuswahlInformiert() {
        Hauptfenster h;
        h.oeffneSpiel();
        h.aktion("menSptgLetzten_3")->trigger();  // refused: an information
        h.aktion("menRegEigene")->trigger();
        h.kind<QLineEdit>("txtNeuModus_0")->setText("7");
        h.kind<QLineEdit>("txtNeuModus_1")->setText("40000");
        h.klick(h.kind("cmdOK"));  // a run-time error: the rule stays, the window stays open
        QCOMPARE(h.dialoge.warnungen, QStringList{"Laufzeitfehler '6':\n\nÜberlauf"});
        QCOMPARE(h.meldungen().size(), 2);
        QCOMPARE(h.spiel().getModusPunkte(0), 3);
        QVERIFY(h.kind("frmRegel")->isVisible());
    }

    void startmeldungErscheintUeberDemFenster() {
        struct : TestDialoge {
            QList<bool> fensterSichtbar;
            void warnung(QWidget* eltern, const QString& text) override {
                fensterSichtbar << eltern->window()->isVisible();
                TestDialoge::warnung(eltern, text);
            }
        } dialoge;
        frmVela_Haupt fenster(dialoge, "/gibt/es/nicht.tip");
        fenster.zeigeBeimStart();
        QCOMPARE(dialoge.fensterSichtbar, QList<bool>{true});
    }
};

KALIMBO_UI_TEST_MAIN(MeldungenTest)
#include "meldungen_test.moc"
