// The running league table of the main window ("Blitztabelle"): every cell and the order after an
// evaluation, its caption, and the colours and hints of the places.
#include <QGroupBox>

#include "hauptfenster.h"
#include "state/tabellenfarben.h"
#include "testdaten.h"
#include "ui/bausteine/farben.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptTabelleTest : public QObject {
    Q_OBJECT

    static QString titel(const Hauptfenster& h) { return h.kind<QGroupBox>("fraBlitztabelle")->title(); }

  private slots:
    // Matchday 0 alone: nine wins; the order needs points, then difference, then goals, then the
    // team index.
    void jedeZelleNachDerAuswertung() {
        Hauptfenster h(kleinesSpiel());
        h.klick(h.label("lblAuswahl", 1));  // only matchday 0 counts
        h.auswerten();
        QStringList zeilen;
        for (int z = 0; z < 18; ++z) {
            QStringList zellen;
            for (const char* spalte : {"lblTabellenplatz", "lblTabName", "lblTabPunkte", "lblTabTore",
                                       "lblTabDifferenz", "lblTabSiege", "lblTabUn", "lblTabNiederlagen"})
                zellen << h.label(spalte, z)->text();
            zeilen << zellen.join('|') + '\n';
        }
        QCOMPARE(zeilen.join(""),
                 QString::fromStdString(kalimbo::test::testdatei("fenster/blitztabelle-spieltag1.txt")));
        QVERIFY(!h.sichtbar("lblTabName_18") && !h.sichtbar("lblTabPunkte_19"));
    }

    void ueberschriftNenntAnlassUndUhrzeit() {
        Hauptfenster h(kleinesSpiel());
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        h.auswerten();
        QLocale::setDefault(QLocale::c());
        // The time of day in the user's format: 12-hour clock in the United States.
        QVERIFY2(QRegularExpression(R"(^Blitztabelle \[---, .*[AP]M\]$)").match(titel(h)).hasMatch(),
                 qPrintable(titel(h)));
        h.klick(h.label("lblAusTeam", 3));  // Hamburg - Ingolstadt on matchday 1
        QVERIFY2(titel(h).startsWith(QStringLiteral("Blitztabelle [Tor fürIngolstadt, ")),
                 qPrintable(titel(h)));
        h.aktion("menAuswerten")->trigger();
        QVERIFY2(titel(h).startsWith(QStringLiteral("Blitztabelle [---, ")), qPrintable(titel(h)));
    }

    // Each place shows the game's colour for it with the hint that colour stands for; a colour
    // without a hint keeps the hint the place had, even from the game before.
    void plaetzeHabenFarbeUndHinweis() {
        Hauptfenster h(kleinesSpiel());
        Dateiinhalt d = kleinesSpiel();
        d.TabFarbe[0] = rgb(0, 0, 255);
        h.oeffne(h.speichere("blau.tip", d));
        for (int z = 0; z < 18; ++z) {
            QLabel* platz = h.label("lblTabellenplatz", z);
            QCOMPARE(platz->palette().color(QPalette::Window), qfarbe(d.TabFarbe[z]));
            const std::string_view hinweis = positionsHinweis(kleinesSpiel().TabFarbe[z]);
            QVERIFY(!hinweis.empty());
            QCOMPARE(platz->toolTip(),
                     QString::fromUtf8(hinweis.data(), static_cast<qsizetype>(hinweis.size())));
        }
    }
};

KALIMBO_UI_TEST_MAIN(HauptTabelleTest)
#include "haupt_tabelle_test.moc"
