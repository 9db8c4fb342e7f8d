// Run under LANG=C: Qt's own dialogs speak German all the same, and the user's locale (its decimal
// separator) stays the default.
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include "hauptfenster.h"
#include "ui/bausteine/uebersetzung.h"

class DeutschTest : public QObject {
    Q_OBJECT

  private slots:
    void qtsDialogeSprechenDeutsch() {
        QVERIFY(kalimbo::ui::ladeQtUebersetzung(*QCoreApplication::instance()));
        QDialogButtonBox knoepfe(QDialogButtonBox::Cancel | QDialogButtonBox::Save | QDialogButtonBox::Yes);
        QCOMPARE(knoepfe.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Abbrechen"));
        QCOMPARE(knoepfe.button(QDialogButtonBox::Save)->text(), QStringLiteral("Speichern"));
        QCOMPARE(knoepfe.button(QDialogButtonBox::Yes)->text(), QStringLiteral("&Ja"));
        QFileDialog datei;
        datei.setOption(QFileDialog::DontUseNativeDialog);
        QCOMPARE(datei.findChild<QLabel*>("fileNameLabel")->text(), QStringLiteral("Datei&name:"));
        QCOMPARE(QLocale().decimalPoint(), QStringLiteral("."));
    }
};

KALIMBO_UI_TEST_MAIN(DeutschTest)
#include "deutsch_test.moc"
