// Typing results and tips into the matchday view: the key filter, the focus rules that keep an
// abandoned entry, "X" on a home tip, goal clicks, and numbers too large for a score.
#include <QClipboard>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;
using namespace kalimbo::ui::test;

class HauptEingabeTest : public QObject {
    Q_OBJECT

    static void fokus(QWidget* w, QEvent::Type art, Qt::FocusReason grund) {
        QFocusEvent e(art, grund);
        QApplication::sendEvent(w, &e);
    }
    // Enters a box as a click does: the box is emptied and waits for typing.
    static void betrete(Eingabefeld* box) { fokus(box, QEvent::FocusIn, Qt::MouseFocusReason); }
    static void verlasse(Eingabefeld* box) { fokus(box, QEvent::FocusOut, Qt::TabFocusReason); }

  private slots:
    void tastenfilter_data() {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("eingabe");  // the keys typed, or "^V" and the clipboard's text
        QTest::addColumn<QString>("text");
        for (const auto& [fall, box, eingabe, text] :
             {std::tuple{"Ziffer", "txtHeimTipp", "7", "7"},
              {"Buchstabe", "txtHeimTipp", "a", "0"},
              {"Prozent", "txtAusErgebnis", "%", "0"},
              {"Enter", "txtAusTipp", "\r", "0"},
              {"Esc", "txtHeimErgebnis", "\x1b", "0"},
              {"Leertaste", "txtHeimTipp", " ", "0"},
              {"Minus", "txtHeimErgebnis", "-", "0"},
              {"Tipp: ein Zeichen", "txtHeimTipp", "12", "1"},
              {"Ergebnis: mehrere", "txtHeimErgebnis", "10", "10"},
              {"eingefügtes X", "txtHeimTipp", "^VX", "0"},
              {"eingefügtes Minus", "txtAusTipp", "^V-", "0"},
              {"eingefügte Ziffer", "txtAusTipp", "^V4", "4"},
              {"eingefügt im Tipp", "txtAusTipp", "^V12", "1"},
              {"eingefügt im Ergebnis", "txtAusErgebnis", "^V12a", "120"}})
            QTest::newRow(fall) << QString(box) << QString(eingabe) << QString(text);
    }
    void tastenfilter() {
        QFETCH(QString, box);
        QFETCH(QString, eingabe);
        Hauptfenster h(kleinesSpiel());
        Eingabefeld* feld = h.feld(qPrintable(box), 2);
        betrete(feld);
        QCOMPARE(feld->text(), QString());
        if (eingabe.startsWith("^V")) {
            QGuiApplication::clipboard()->setText(eingabe.mid(2));
            QTest::keyClick(feld, Qt::Key_V, Qt::ControlModifier);
        } else {
            QTest::keyClicks(feld, eingabe);
        }
        QTEST(feld->text(), "text");
    }

    // Entered, a box is emptied and turns red; left empty, it shows its value and its colours again.
    void verlassenesFeldBehaeltSeinenWert_data() {
        QTest::addColumn<QString>("box");
        for (const char* box : {"txtHeimErgebnis", "txtAusErgebnis", "txtHeimTipp", "txtAusTipp"})
            QTest::newRow(box) << QString(box);
    }
    void verlassenesFeldBehaeltSeinenWert() {
        QFETCH(QString, box);
        Hauptfenster h(kleinesSpiel());
        Eingabefeld* feld = h.feld(qPrintable(box), 4);  // Jena - Kiel 1:2, Anna tipped no hit
        const QStringList vorher{feld->text(), feld->hintergrund().name(), feld->schrift().name()};
        const auto jetzt = [feld] {
            return QStringList{feld->text(), feld->hintergrund().name(), feld->schrift().name()};
        };
        betrete(feld);
        QCOMPARE(jetzt(), (QStringList{"", "#ff0000", "#ffffff"}));
        verlasse(feld);
        QCOMPARE(jetzt(), vorher);
        betrete(feld);
        QTest::keyClick(feld, Qt::Key_9);
        QTest::keyClick(feld, Qt::Key_Backspace);  // cleared again: the old value comes back
        verlasse(feld);
        QCOMPARE(jetzt(), vorher);
    }

    // The focus may come without a click (the window is activated, a dialog closes): the box then
    // enters editing just the same, so that Backspace and Tab cannot store a stale value.
    void fokusOhneKlickBeginntDieEingabe() {
        Hauptfenster h(kleinesSpiel());
        Eingabefeld* andere = h.feld("txtAusErgebnis", 0);  // 0 on matchday 1
        betrete(andere);
        verlasse(andere);
        Eingabefeld* feld = h.feld("txtHeimErgebnis", 1);  // 2 on matchday 1
        fokus(feld, QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QTest::keyClick(feld, Qt::Key_Backspace);
        verlasse(feld);
        QCOMPARE(feld->text(), QStringLiteral("2"));
        h.auswerten();
        QCOMPARE(h.spiel().getErgebnis(1, 1, 0), 2);
    }

    // Switching to another window while typing keeps what was typed and the box in editing.
    void fensterwechselBehaeltDieEingabe() {
        Hauptfenster h(kleinesSpiel());
        h.fenster->show();
        QApplication::setActiveWindow(h.fenster.get());
        QVERIFY(QTest::qWaitForWindowActive(h.fenster.get()));
        Eingabefeld* feld = h.feld("txtHeimErgebnis", 3);
        h.klick(feld);
        QVERIFY(feld->hasFocus());
        QTest::keyClick(feld, Qt::Key_5);
        QWidget anderes;
        anderes.show();
        QApplication::setActiveWindow(&anderes);
        QVERIFY(QTest::qWaitForWindowActive(&anderes));
        QApplication::setActiveWindow(h.fenster.get());
        QVERIFY(QTest::qWaitForWindowActive(h.fenster.get()));
        QCOMPARE(feld->text(), QStringLiteral("5"));
        QTest::keyClick(feld, Qt::Key_Backspace);
        QTest::keyClick(feld, Qt::Key_Tab);
        QCOMPARE(feld->text(), QStringLiteral("2"));  // abandoned: the value before the click
    }

    void torklicksWertenSofortAus() {
        Hauptfenster h(kleinesSpiel());
        h.zeigeSpieltag(2);  // no results yet; Cottbus - Dresden is match 0
        h.feld("txtHeimErgebnis", 0)->setText(QString());
        h.klick(h.label("lblHeimTeam", 0));
        QCOMPARE(h.feld("txtHeimErgebnis", 0)->text(), QStringLiteral("1"));
        h.klick(h.label("lblHeimTeam", 0));
        QCOMPARE(h.feld("txtHeimErgebnis", 0)->text(), QStringLiteral("2"));
        QCOMPARE(h.spiel().getErgebnis(2, 0, 0), 2);
        QVERIFY(h.kind<QGroupBox>("fraBlitztabelle")
                    ->title()
                    .startsWith(QStringLiteral("Blitztabelle [Tor fürCottbus, ")));
        // On a counted matchday the goal counts at once for the players.
        h.zeigeSpieltag(1);
        h.auswerten();
        QCOMPARE(h.label("lblGesamtPunkte", Anna)->text(), QStringLiteral("10"));
        h.feld("txtHeimTipp", Anna * 10 + 4)->setText("2");
        h.feld("txtAusTipp", Anna * 10 + 4)->setText("2");
        h.klick(h.label("lblHeimTeam", 4));  // Jena - Kiel 1:2 becomes 2:2: Anna's tip is a full hit
        QCOMPARE(h.label("lblGesamtPunkte", Anna)->text(), QStringLiteral("13"));
        QCOMPARE(h.spiel().getErgebnis(1, 4, 0), 2);
    }

    void zuGrosseZahlWirdAbgelehnt() {
        Hauptfenster h(kleinesSpiel());
        h.feld("txtHeimErgebnis", 0)->setText("70000");
        h.auswerten();
        QCOMPARE(h.meldungen(), QStringList{"Laufzeitfehler '6':\n\nÜberlauf"});
        QCOMPARE(h.spiel().getErgebnis(1, 0, 0), 1);
        h.feld("txtHeimErgebnis", 0)->setText("32767");
        h.klick(h.label("lblHeimTeam", 0));
        QCOMPARE(h.meldungen(), QStringList{"Laufzeitfehler '6':\n\nÜberlauf"});
        QCOMPARE(h.spiel().getErgebnis(1, 0, 0), 1);
        h.feld("txtHeimErgebnis", 0)->setText("4");  // the window keeps working
        h.auswerten();
        QCOMPARE(h.spiel().getErgebnis(1, 0, 0), 4);
    }

    // An evaluation that overflows (30000 points a full hit) changes nothing on screen: points,
    // places, tables, sheet and the goal's box show the evaluation before, and the game is as it was.
    void ueberlaufLaesstAllesWieEsWar() {
        Hauptfenster h(kleinesSpiel());
        h.klick(h.label("lblSpieler", Anna));
        const auto bildschirm = [&h] {
            QStringList texte{h.kind<QGroupBox>("fraBlitztabelle")->title(),
                              h.kind<QPlainTextEdit>("txtTeamInfo")->toPlainText(),
                              h.feld("txtHeimErgebnis", 0)->text()};
            for (const char* name :
                 {"lblSptgPunkte", "lblGesamtPunkte", "lblGesamtPlatz", "lblGesamttabellePkt"})
                for (int p = 0; p < MaxSpieler; ++p)
                    texte << h.label(name, p)->text();
            for (int z = 0; z < 18; ++z)
                texte << h.label("lblTabName", z)->text() << h.label("lblTabPunkte", z)->text();
            return texte;
        };
        const QStringList vorher = bildschirm();
        const Spielstand spiel = h.spiel();
        h.aktion("menRegEigene")->trigger();
        h.kind<QLineEdit>("txtNeuModus_0")->setText("30000");
        h.klick(h.kind("cmdOK"));
        h.auswerten();
        h.klick(h.label("lblHeimTeam", 0));
        QCOMPARE(h.meldungen().size(), 2);
        QCOMPARE(bildschirm(), vorher);
        QCOMPARE(h.spiel().Auswertung, spiel.Auswertung);
        QCOMPARE(h.spiel().Ergebnis, spiel.Ergebnis);
    }

    void spieltagswechselBehaeltGetippteWerte() {
        Hauptfenster h(kleinesSpiel());
        h.feld("txtHeimTipp", Bernd * 10 + 2)->setText("9");
        h.feld("txtHeimErgebnis", 4)->setText("8");
        h.zeigeSpieltag(2);
        h.zeigeSpieltag(1);
        QCOMPARE(h.feld("txtHeimTipp", Bernd * 10 + 2)->text(), QStringLiteral("9"));
        QCOMPARE(h.feld("txtHeimErgebnis", 4)->text(), QStringLiteral("8"));
        QCOMPARE(h.spiel().getTipp(Bernd, 1, 2, 0), 9);
    }
};

KALIMBO_UI_TEST_MAIN(HauptEingabeTest)
#include "haupt_eingabe_test.moc"
