#include "ui/frmueber.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "hauptfenster.h"

using kalimbo::ui::frmUeber;

class FrmUeberTest : public QObject {
    Q_OBJECT

  private slots:
    void zeigtNameVersionFunktionenUndQt() {
        frmUeber box(nullptr);
        QCOMPARE(box.objectName(), QStringLiteral("frmÜber"));
        QCOMPARE(box.windowTitle(), QStringLiteral("Über Kalimbo"));
        auto text = [&](const char* name) { return box.findChild<QLabel*>(name)->text(); };
        QCOMPARE(text("lblProdukt"), QStringLiteral("Kalimbo"));
        QCOMPARE(text("lblVersion"), QStringLiteral("Version: zorb 5.0.1 [04.08.2006]"));
        QCOMPARE(text("lblQt"), QStringLiteral("Läuft mit Qt ") + qVersion());
    }

    void okSchliesst() {
        frmUeber box(nullptr);
        box.show();
        auto* ok = box.findChild<QPushButton*>("cmdOK");
        QCOMPARE(ok->text(), QStringLiteral("OK"));
        QTest::mouseClick(ok, Qt::LeftButton);
        QVERIFY(!box.isVisible());
        QCOMPARE(box.result(), int(QDialog::Accepted));
    }
};

KALIMBO_UI_TEST_MAIN(FrmUeberTest)

#include "frmueber_test.moc"
