#include "ui/frmgrafik.h"

#include <QAction>
#include <QLabel>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "fenstertest.h"
#include "hauptfenster.h"
#include "scoring/auswertung.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/twips.h"
#include "ui/bausteine/zeichenflaeche.h"

using namespace kalimbo;
using namespace kalimbo::ui;

namespace {

const Farbe AnnaFarbe = rgb(200, 0, 0);

// 34 matchdays of nine matches, every result 1:0, matchdays 0..12 counted. Anna tips match 0
// exactly (3 points a matchday), Bernd matches 0 and 1 as 2:0 (1 point each); Carl does not take
// part. Totals: Anna 39, Bernd 26.
Spielstand grafikSpiel() {
    Spielstand s;
    s.AnzSpieltage = 33;
    s.AnzSpiele = 8;
    s.AnzTeams = 17;
    s.Spielername = {{"Anna", "Bernd", "Carl"}};
    s.Teilnehmer = {{1, 1, 0, 0, 0, 0, 0, 0, 0}};
    s.Spielerfarbe[0] = AnnaFarbe;
    for (int tag = 0; tag <= 33; ++tag) {
        for (int spiel = 0; spiel <= 8; ++spiel) {
            s.Paarung[tag][spiel] = {{static_cast<i16>(2 * spiel), static_cast<i16>(2 * spiel + 1)}};
            s.Ergebnis[tag][spiel] = {{1, 0}};
            for (int p = 0; p < MaxSpieler; ++p)
                s.Tipp[p][tag][spiel] = {{0, 1}};
        }
        s.Tipp[0][tag][0] = {{1, 0}};
        s.Tipp[1][tag][0] = s.Tipp[1][tag][1] = {{2, 0}};
        s.SptgAuswerten[tag] = tag <= 12 ? 1 : 0;
    }
    werteAus(s, false);
    return s;
}

void sendeMaus(QWidget* w, QEvent::Type art, QPoint punkt, Qt::MouseButton knopf, Qt::MouseButtons gehalten) {
    QMouseEvent e(art, QPointF(punkt), QPointF(w->mapToGlobal(punkt)), knopf, gehalten, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

}  // namespace

class FrmGrafikTest : public ui::test::FensterTest<frmGrafik> {
    Q_OBJECT

    Spielstand spiel;

    QLabel* label(const QString& name) { return kind<QLabel>(name); }
    QLabel* label(const char* name, int i) { return label(indexName(name, i)); }
    const grafik::Zeichnung& gezeigt() { return kind<Zeichenflaeche>("picHintergrund")->zeichnung(); }
    bool zeigt(const grafik::Ansicht& ansicht) {
        return gezeigt().teile == grafik::punktegrafik(spiel, spiel.getAnzSpieltage(), ansicht).teile;
    }
    static QColor hintergrund(QWidget* w) { return w->palette().color(QPalette::Window); }
    static QColor schrift(QWidget* w) { return w->palette().color(QPalette::WindowText); }
    // Drags the handle: press at `von`, move with `gehalten` to `nach`, release there.
    void ziehe(QPoint von, QPoint nach, Qt::MouseButton knopf = Qt::LeftButton) {
        QLabel* griff = label("lblAnAus");
        sendeMaus(griff, QEvent::MouseButtonPress, von, knopf, knopf);
        sendeMaus(griff, QEvent::MouseMove, nach, Qt::NoButton, knopf);
        sendeMaus(griff, QEvent::MouseButtonRelease, nach, knopf, Qt::NoButton);
    }

  private slots:
    void init() {
        erzeugeFenster();
        spiel = grafikSpiel();
        fenster->zeige(spiel);
    }
    void cleanup() { schliesseFenster(); }

    void legendeZeigtTeilnehmerUndAndere() {
        const QStringList erwartet{"Anna  |39|3|fett|" + qfarbe(AnnaFarbe).name(),
                                   "Bernd  |26|2|fett|" + qfarbe(spiel.Spielerfarbe[1]).name(),
                                   "      ---|-|-|normal|" + qfarbe(Fenstertext).name()};
        for (int p = 0; p < 3; ++p) {
            QLabel* name = label("lblSpieler", p);
            QCOMPARE(QStringList({name->text(), label("lblGesamtPunkte", p)->text(),
                                  label("lblSptgPunkte", p)->text(), name->font().bold() ? "fett" : "normal",
                                  schrift(name).name()})
                         .join('|'),
                     erwartet[p]);
        }
    }

    // The tabs choose the total or the matchday view, the toggles turn a player's line or numbers
    // on and off; the chart follows each click. The active tab stands taller and darker, both on
    // one baseline; a toggle that is on is dark.
    void ansichtNachKlicks_data() {
        QTest::addColumn<QStringList>("klicks");
        QTest::newRow("keiner") << QStringList{};
        QTest::newRow("Spieltagspunkte") << QStringList{"lblSchalt_1"};
        QTest::newRow("und zurück") << QStringList{"lblSchalt_1", "lblSchalt_0"};
        QTest::newRow("Linie Anna aus") << QStringList{"lblAnsicht_0"};
        QTest::newRow("Linie Anna aus und an") << QStringList{"lblAnsicht_0", "lblAnsicht_0"};
        QTest::newRow("Linie Carl: nimmt nicht teil") << QStringList{"lblAnsicht_2"};
        QTest::newRow("Zahlen Bernd an") << QStringList{"lblPunkteZeigen_1"};
    }
    void ansichtNachKlicks() {
        QFETCH(QStringList, klicks);
        grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
        for (const QString& name : klicks) {
            QTest::mouseClick(label(name), Qt::LeftButton);
            const auto i = static_cast<std::size_t>(name.section('_', 1).toInt());
            if (name.startsWith("lblSchalt")) ansicht.Darstellung = static_cast<i16>(i);
            if (name.startsWith("lblAnsicht")) ansicht.LinieZeigen[i] = !ansicht.LinieZeigen[i];
            if (name.startsWith("lblPunkteZeigen")) ansicht.PunkteZeigen[i] = !ansicht.PunkteZeigen[i];
        }
        QVERIFY(zeigt(ansicht));
        QLabel* an = label("lblSchalt", ansicht.Darstellung);
        QLabel* aus = label("lblSchalt", 1 - ansicht.Darstellung);
        QVERIFY(an->y() < aus->y() && an->geometry().bottom() == aus->geometry().bottom());
        QVERIFY(qGray(hintergrund(an).rgb()) < qGray(hintergrund(aus).rgb()));
        for (std::size_t p = 0; p < MaxSpieler; ++p)
            for (const auto& [name, flag] : {std::pair{"lblAnsicht", ansicht.LinieZeigen[p]},
                                             {"lblPunkteZeigen", ansicht.PunkteZeigen[p]}})
                QCOMPARE(hintergrund(label(name, static_cast<int>(p))),
                         flag ? qfarbe(Fenstertext) : QColor(Qt::white));
    }

    void aktivierungZeigtGesamtpunkte() {
        QTest::mouseClick(label("lblSchalt", 1), Qt::LeftButton);
        QTest::mouseClick(label("lblPunkteZeigen", 0), Qt::LeftButton);
        QEvent aktiv(QEvent::WindowActivate);
        QApplication::sendEvent(fenster.get(), &aktiv);
        grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
        ansicht.PunkteZeigen[0] = true;
        QVERIFY(zeigt(ansicht));
        QVERIFY(label("lblSchalt", 0)->y() < label("lblSchalt", 1)->y());
        QCOMPARE(hintergrund(label("lblPunkteZeigen", 0)), qfarbe(Fenstertext));
    }

    // Shown again or following a change, the toggles stay where their slot still takes part.
    void umschalterBleibenWoSiePassen() {
        QTest::mouseClick(label("lblAnsicht", 0), Qt::LeftButton);
        QTest::mouseClick(label("lblPunkteZeigen", 1), Qt::LeftButton);
        grafik::Ansicht erwartet = grafik::ersteAnsicht(spiel);
        erwartet.LinieZeigen[0] = false;
        erwartet.PunkteZeigen[1] = true;
        fenster->zeige(spiel);
        QVERIFY(zeigt(erwartet));
        spiel.Teilnehmer[0] = 0;
        spiel.Teilnehmer[2] = 1;
        fenster->folge(spiel, {});
        erwartet.LinieZeigen[2] = true;  // as the first time for the slots that changed
        QVERIFY(zeigt(erwartet));
        QCOMPARE(hintergrund(label("lblAnsicht", 2)), qfarbe(Fenstertext));
    }

    void rahmenFolgtNurDerLinkenTaste_data() {
        QTest::addColumn<int>("gehalten");
        QTest::addColumn<bool>("sichtbar");
        QTest::newRow("links") << int(Qt::LeftButton) << true;
        QTest::newRow("rechts") << int(Qt::RightButton) << false;
        QTest::newRow("links und rechts") << int(Qt::LeftButton | Qt::RightButton) << false;
        QTest::newRow("keine") << int(Qt::NoButton) << false;
    }
    void rahmenFolgtNurDerLinkenTaste() {
        QFETCH(int, gehalten);
        QFETCH(bool, sichtbar);
        QLabel* griff = label("lblAnAus");
        const QPoint punkt(-100, 40);
        sendeMaus(griff, QEvent::MouseMove, punkt, Qt::NoButton, Qt::MouseButtons(gehalten));
        auto* rahmen = kind<QFrame>("shpRahmen");
        QCOMPARE(rahmen->isVisible(), sichtbar);
        if (sichtbar) QCOMPARE(rahmen->pos(), griff->pos() + punkt);
        sendeMaus(griff, QEvent::MouseButtonRelease, punkt, Qt::LeftButton, Qt::NoButton);
        QVERIFY(!rahmen->isVisible());
    }

    // Dropped, the legend's first row lands where the handle was released, and every part of the
    // legend moves with it.
    void legendeLandetAmAblegepunkt_data() {
        QTest::addColumn<QList<QPoint>>("ablagen");  // release points, relative to the handle then
        QTest::newRow("kurz") << QList<QPoint>{{5, 7}};
        QTest::newRow("auf die Grafik") << QList<QPoint>{{600, 300}};
        QTest::newRow("zweimal") << QList<QPoint>{{600, 300}, {20, -10}};
    }
    void legendeLandetAmAblegepunkt() {
        QFETCH(QList<QPoint>, ablagen);
        const auto orte = [this] {
            QList<QPoint> o{label("lblAnAus")->pos(), kind<QFrame>("linHori_0")->pos(),
                            kind<QFrame>("linHori_1")->pos()};
            for (int p = 0; p < MaxSpieler; ++p)
                for (const char* name :
                     {"lblSpieler", "lblGesamtPunkte", "lblSptgPunkte", "lblAnsicht", "lblPunkteZeigen"})
                    o << label(name, p)->pos();
            return o;
        };
        const QList<QPoint> vorher = orte();
        for (const QPoint& ablage : ablagen) {
            const QPoint ziel = label("lblAnAus")->pos() + ablage;
            ziehe(QPoint(3, 3), ablage);
            QCOMPARE(label("lblSpieler", 0)->pos(), ziel);
        }
        const QPoint weg = orte()[0] - vorher[0];
        for (int i = 0; i < vorher.size(); ++i)
            QCOMPARE(orte()[i], vorher[i] + weg);
        QVERIFY(!kind<QFrame>("shpRahmen")->isVisible());
    }

    // Cancelled or into a missing folder, nothing is written; the message names the file.
    void speichernSchreibtBitmapDerZeichnung() {
        QTemporaryDir ordner;
        const QString pfad = ordner.filePath("grafik.bmp");
        dialoge->antworten << QString() << ordner.filePath("fehlt/grafik.bmp") << pfad;
        kind<QAction>("menSpeichern")->trigger();
        kind<QAction>("menSpeichern")->trigger();
        QCOMPARE(QDir(ordner.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
        QCOMPARE(dialoge->meldungen.size(), 1);
        QVERIFY(dialoge->meldungen.takeFirst().contains("fehlt/grafik.bmp"));
        kind<QAction>("menSpeichern")->trigger();
        const QImage bild(pfad, "BMP");
        QCOMPARE(bild.convertToFormat(QImage::Format_RGB32),
                 kind<Zeichenflaeche>("picHintergrund")->bild().convertToFormat(QImage::Format_RGB32));
        // Anna's first mark (3 points of 39 + 3: s = 7715 / 42 = 184) in her colour.
        QCOMPARE(QColor(bild.pixel(px(190), px(7665 - 3 * 184))), qfarbe(AnnaFarbe));
    }

    // 480 times 69 points leaves 16 bits: the error is shown and the window keeps working.
    void ueberlaufWirdGemeldet() {
        spiel.Auswertung[0].SpieltagPunkte[5] = 69;
        QTest::mouseClick(label("lblSchalt", 1), Qt::LeftButton);
        QCOMPARE(dialoge->meldungen.size(), 1);
        QVERIFY2(dialoge->meldungen[0].startsWith("Laufzeitfehler '6'"), qPrintable(dialoge->meldungen[0]));
        QTest::mouseClick(label("lblSchalt", 0), Qt::LeftButton);
        QVERIFY(zeigt(grafik::ersteAnsicht(spiel)));
        QCOMPARE(dialoge->meldungen.size(), 1);
        dialoge->meldungen.clear();
    }
};

KALIMBO_UI_TEST_MAIN(FrmGrafikTest)
#include "frmgrafik_test.moc"
