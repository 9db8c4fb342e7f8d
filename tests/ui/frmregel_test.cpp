// The own-rule window: it starts from the rule in force, the swatches choose the colours, "OK"
// writes points and colours without evaluating.
#include <QLineEdit>

#include "hauptfenster.h"
#include "ui/bausteine/farben.h"
#include "ui/frmregel.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class FrmRegelTest : public QObject {
    Q_OBJECT

    static frmRegel* oeffneFenster(const Hauptfenster& h) {
        h.aktion(QStringLiteral("menRegEigene"))->trigger();
        return h.kind<frmRegel>("frmRegel");
    }
    static QColor flaeche(const Hauptfenster& h, const char* name, int i) {
        return h.kind(Hauptfenster::indexName(name, i))->palette().color(QPalette::Window);
    }
    static QLineEdit* punkte(const Hauptfenster& h, int art) {
        return h.kind<QLineEdit>(Hauptfenster::indexName("txtNeuModus", art));
    }

  private slots:
    void beginntMitDerRegelInKraft() {
        Hauptfenster h(kleinesSpiel());
        h.aktion("menReg3")->trigger();
        h.aktion("menReg321")->trigger();
        frmRegel* fenster = oeffneFenster(h);
        QVERIFY(fenster->isVisible());
        for (int art = 0; art < 3; ++art) {
            QCOMPARE(punkte(h, art)->text(), QString::number(3 - art));
            QCOMPARE(flaeche(h, "lblFarbWahl", art), qfarbe(h.spiel().getModusFarbe(art)));
        }
        // Offered: index i belongs to kind i / 3 and shows offered colour i % 3.
        for (int i = 0; i < 9; ++i)
            QCOMPARE(flaeche(h, "lblFarbAlt", i), qfarbe(frmRegel::Angebot[static_cast<std::size_t>(i % 3)]));
    }

    void okSchreibtPunkteUndFarbenOhneAuswertung() {
        Hauptfenster h(kleinesSpiel());
        const QString vorher = h.label("lblGesamtPunkte", Bernd)->text();  // 16 under 3-2-1
        oeffneFenster(h);
        const auto angebot = [](int i) { return qfarbe(frmRegel::Angebot[static_cast<std::size_t>(i)]); };
        const QColor gewaehlt[] = {angebot(2), angebot(0), angebot(1)};
        for (const int i : {2, 3, 7})  // kind i / 3 gets offered colour i % 3: each kind its own
            h.klick(h.label("lblFarbAlt", i));
        punkte(h, 0)->setText(QStringLiteral("5"));
        punkte(h, 1)->clear();  // empty: 0 points
        punkte(h, 2)->setText(QStringLiteral("-1"));
        h.klick(h.kind("cmdOK"));
        QVERIFY(!h.kind("frmRegel")->isVisible());
        QCOMPARE(h.spiel().getModusPunkte(0), 5);
        QCOMPARE(h.spiel().getModusPunkte(1), 0);
        QCOMPARE(h.spiel().getModusPunkte(2), -1);
        for (int art = 0; art < 3; ++art) {
            QCOMPARE(flaeche(h, "lblFarbWahl", art), gewaehlt[art]);
            QCOMPARE(qfarbe(h.spiel().getModusFarbe(art)), gewaehlt[art]);
        }
        QCOMPARE(h.label("lblGesamtPunkte", Bernd)->text(), vorher);
        h.auswerten();  // Bernd: two margins (0) and four full hits (20) on his matchdays
        QCOMPARE(h.label("lblGesamtPunkte", Bernd)->text(), QStringLiteral("20"));
    }
};

KALIMBO_UI_TEST_MAIN(FrmRegelTest)
#include "frmregel_test.moc"
