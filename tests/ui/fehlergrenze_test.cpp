#include "ui/bausteine/fehlergrenze.h"

#include <QtTest>
#include <filesystem>
#include <functional>
#include <new>

#include "state/fehler.h"
#include "testdialoge.h"

using namespace kalimbo;
using namespace kalimbo::ui;

Q_DECLARE_METATYPE(std::function<void()>)

class FehlergrenzeTest : public QObject {
    Q_OBJECT

  private slots:
    void jederFehlerWirdDeutschGemeldet_data() {
        QTest::addColumn<std::function<void()>>("handler");
        QTest::addColumn<QString>("meldung");
        QTest::newRow("Laufzeitfehler") << std::function<void()>([] {
            throw Laufzeitfehler(Laufzeitfehler::Ueberlauf, "bei den Gesamtpunkten von Spieler 1");
        }) << QStringLiteral("Laufzeitfehler '6':\n\nÜberlauf bei den Gesamtpunkten von Spieler 1");
        QTest::newRow("Speicher") << std::function<void()>([] {
            throw std::bad_alloc();
        }) << QStringLiteral("Nicht genug Arbeitsspeicher; der Vorgang wurde abgebrochen.");
    }
    void jederFehlerWirdDeutschGemeldet() {
        QFETCH(std::function<void()>, handler);
        QFETCH(QString, meldung);
        test::TestDialoge dialoge;
        bool weiter = false;
        fangeFehler(nullptr, dialoge, handler);
        fangeFehler(nullptr, dialoge, [&] { weiter = true; });
        QCOMPARE(dialoge.meldungen, QStringList{meldung});
        QVERIFY(weiter);
    }
};

QTEST_MAIN(FehlergrenzeTest)
#include "fehlergrenze_test.moc"
