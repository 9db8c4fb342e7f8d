#include "ui/frmgrafik.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
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

    void titelMenueUndErsteAnsicht() {
        QCOMPARE(fenster->objectName(), QStringLiteral("frmGrafik"));
        QCOMPARE(fenster->windowTitle(), QStringLiteral("Grafische Anzeige der Tippergebnisse"));
        auto* bild = kind<QMenu>("menBild");
        QCOMPARE(bild->title(), QStringLiteral("Bild"));
        QStringList eintraege;
        for (QAction* a : bild->actions())
            eintraege << a->objectName() + "=" + (a->isSeparator() ? QStringLiteral("-") : a->text());
        QCOMPARE(eintraege, (QStringList{"menSpeichern=Speichern", "menStrich=-", "menDrucken=Drucken"}));

        QVERIFY(zeigt(grafik::ersteAnsicht(spiel)));
        QCOMPARE(kind<Zeichenflaeche>("picHintergrund")->size(), QSize(861, 521));
        QCOMPARE(label("lblTest")->text(), QStringLiteral("39"));
        QVERIFY(label("lblTest")->isHidden());
    }

    // The window never opens larger than the screen; what does not fit scrolls.
    void passtAufDenBildschirm() {
        const QSize frei = fenster->screen()->availableSize();
        QVERIFY(fenster->width() <= frei.width() && fenster->height() <= frei.height());
        auto* flaeche = qobject_cast<QScrollArea*>(fenster->centralWidget());
        QVERIFY(flaeche);
        QVERIFY(flaeche->widget()->isAncestorOf(kind<Zeichenflaeche>("picHintergrund")));
        QVERIFY(flaeche->horizontalScrollBar()->maximum() > 0);
    }

    void legendeZeigtTeilnehmerUndAndere() {
        const QStringList erwartet{"Anna  |39|3|fett|#c80000", "Bernd  |26|2|fett|#fd00e6",
                                   "      ---|-|-|normal|" + qfarbe(static_cast<Farbe>(0x80000008u)).name()};
        for (int p = 0; p < 3; ++p) {
            QLabel* name = label("lblSpieler", p);
            QCOMPARE(QStringList({name->text(), label("lblGesamtPunkte", p)->text(),
                                  label("lblSptgPunkte", p)->text(), name->font().bold() ? "fett" : "normal",
                                  schrift(name).name()})
                         .join('|'),
                     erwartet[p]);
        }
        QCOMPARE(label("lblGesamtPunkte", 0)->toolTip(), QStringLiteral("Gesamtpunkte"));
        QCOMPARE(label("lblSptgPunkte", 0)->toolTip(), QStringLiteral("Punkte an diesem Spieltag"));
        QCOMPARE(label("lblAnsicht", 0)->toolTip(), QStringLiteral("Linie dieses Spielers einblenden"));
        QCOMPARE(label("lblPunkteZeigen", 0)->toolTip(),
                 QStringLiteral("Punktzahl dieses Spielers anzeigen"));
        QCOMPARE(label("lblAnAus")->text(), QStringLiteral("+"));
        QCOMPARE(label("lblAnAus")->toolTip(),
                 QStringLiteral("Übersicht verschieben (ziehen und loslassen)"));
    }

    void reiterNachKlicks_data() {
        QTest::addColumn<QList<int>>("klicks");
        QTest::addColumn<int>("aktiv");
        QTest::newRow("keiner") << QList<int>{} << 0;
        QTest::newRow("Spieltagspunkte") << QList<int>{1} << 1;
        QTest::newRow("und zurueck") << QList<int>{1, 0} << 0;
        QTest::newRow("aktiver noch einmal") << QList<int>{0} << 0;
        QTest::newRow("zweimal Spieltagspunkte") << QList<int>{1, 1} << 1;
    }
    void reiterNachKlicks() {
        QFETCH(QList<int>, klicks);
        QFETCH(int, aktiv);
        for (const int i : klicks)
            QTest::mouseClick(label("lblSchalt", i), Qt::LeftButton);
        for (int i = 0; i < 2; ++i) {
            QLabel* reiter = label("lblSchalt", i);
            const bool an = i == aktiv;
            QCOMPARE(reiter->geometry(),
                     QRect(px(i == 0 ? 120 : 1980), px(an ? 240 : 300), px(1800), px(an ? 375 : 315)));
            QCOMPARE(hintergrund(reiter), an ? QColor(64, 64, 64) : QColor(128, 128, 128));
            QCOMPARE(schrift(reiter), an ? QColor(Qt::white) : QColor(224, 224, 224));
        }
        QCOMPARE(label("lblSchalt", 0)->text(), QStringLiteral("Gesamtpunkte"));
        QCOMPARE(label("lblSchalt", 1)->text(), QStringLiteral("Spieltagspunkte"));
        grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
        ansicht.Darstellung = static_cast<i16>(aktiv);
        QVERIFY(zeigt(ansicht));
    }

    void umschalterKehrenUmUndZeichnenNeu_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("spieler");
        QTest::addColumn<int>("klicks");
        QTest::newRow("Linie Anna aus") << "lblAnsicht" << 0 << 1;
        QTest::newRow("Linie Anna aus und an") << "lblAnsicht" << 0 << 2;
        QTest::newRow("Linie Carl an: nimmt nicht teil") << "lblAnsicht" << 2 << 1;
        QTest::newRow("Zahlen Bernd an") << "lblPunkteZeigen" << 1 << 1;
        QTest::newRow("Zahlen Bernd an und aus") << "lblPunkteZeigen" << 1 << 2;
    }
    void umschalterKehrenUmUndZeichnenNeu() {
        QFETCH(QString, name);
        QFETCH(int, spieler);
        QFETCH(int, klicks);
        grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
        auto& flags = name == "lblAnsicht" ? ansicht.LinieZeigen : ansicht.PunkteZeigen;
        const auto s = static_cast<std::size_t>(spieler);
        if (klicks % 2) flags[s] = !flags[s];
        const grafik::Zeichnung vorher = gezeigt();

        for (int k = 0; k < klicks; ++k)
            QTest::mouseClick(label(qPrintable(name), spieler), Qt::LeftButton);

        QVERIFY(zeigt(ansicht));
        QCOMPARE(gezeigt().teile == vorher.teile, klicks % 2 == 0 || spieler == 2);
        const QColor text = qfarbe(static_cast<Farbe>(0x80000008u));
        for (const char* art : {"lblAnsicht", "lblPunkteZeigen"})
            for (int p = 0; p < MaxSpieler; ++p) {
                const bool an = (QString::fromUtf8(art) == "lblAnsicht"
                                     ? ansicht.LinieZeigen
                                     : ansicht.PunkteZeigen)[static_cast<std::size_t>(p)];
                QCOMPARE(hintergrund(label(art, p)), an ? text : QColor(Qt::white));
                QCOMPARE(schrift(label(art, p)), an ? QColor(Qt::white) : text);
            }
    }

    void aktivierungZeigtGesamtpunkte() {
        QTest::mouseClick(label("lblSchalt", 1), Qt::LeftButton);
        QTest::mouseClick(label("lblPunkteZeigen", 0), Qt::LeftButton);
        QEvent aktiv(QEvent::WindowActivate);
        QApplication::sendEvent(fenster.get(), &aktiv);
        grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
        ansicht.PunkteZeigen[0] = true;
        QVERIFY(zeigt(ansicht));
        QCOMPARE(label("lblSchalt", 0)->geometry().height(), px(375));
        QCOMPARE(hintergrund(label("lblPunkteZeigen", 0)), qfarbe(static_cast<Farbe>(0x80000008u)));
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
        QCOMPARE(hintergrund(label("lblAnsicht", 2)), qfarbe(static_cast<Farbe>(0x80000008u)));
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

    void legendeLandetAmAblegepunkt_data() {
        QTest::addColumn<QList<QPoint>>("ablagen");  // release points, relative to the handle then
        QTest::addColumn<QPoint>("ursprung");        // expected top left of the first row
        const QPoint griff(px(420), px(855));
        QTest::newRow("kurz") << QList<QPoint>{{5, 7}} << griff + QPoint(5, 7);
        QTest::newRow("auf die Grafik") << QList<QPoint>{{600, 300}} << griff + QPoint(600, 300);
        QTest::newRow("zweimal") << QList<QPoint>{{600, 300}, {20, -10}}
                                 << griff + QPoint(600, 300) + QPoint(-px(180), -px(60)) + QPoint(20, -10);
    }
    void legendeLandetAmAblegepunkt() {
        QFETCH(QList<QPoint>, ablagen);
        QFETCH(QPoint, ursprung);
        for (const QPoint& ablage : ablagen)
            ziehe(QPoint(3, 3), ablage);
        const auto ecke = [](QWidget* w) { return w->pos(); };
        QCOMPARE(ecke(label("lblAnAus")), ursprung + QPoint(-px(180), -px(60)));
        for (int p = 0; p < MaxSpieler; ++p) {
            const int y = ursprung.y() + px(240 * p);
            QCOMPARE(ecke(label("lblSpieler", p)), QPoint(ursprung.x(), y));
            QCOMPARE(ecke(label("lblGesamtPunkte", p)), QPoint(ursprung.x() + px(1080), y));
            QCOMPARE(ecke(label("lblSptgPunkte", p)), QPoint(ursprung.x() + px(1560), y));
            QCOMPARE(ecke(label("lblAnsicht", p)), QPoint(ursprung.x() + px(2040), y));
            QCOMPARE(ecke(label("lblPunkteZeigen", p)), QPoint(ursprung.x() + px(2280), y));
        }
        const auto linie = [this](int i) {
            const QRect r = kind<QFrame>(indexName("linHori", i))->geometry();
            return QLine(r.topLeft(), r.topLeft() + QPoint(r.width(), 0));
        };
        QCOMPARE(linie(0), QLine(ursprung + QPoint(px(1920), px(120)), ursprung + QPoint(px(2040), px(120))));
        QCOMPARE(linie(1),
                 QLine(ursprung + QPoint(px(1920), px(2040)), ursprung + QPoint(px(2040), px(2040))));
        QVERIFY(!kind<QFrame>("shpRahmen")->isVisible());
    }

    void speichernSchreibtBitmapDerZeichnung() {
        QTemporaryDir ordner;
        const QString pfad = ordner.filePath("grafik.bmp");
        dialoge->antworten << pfad;
        kind<QAction>("menSpeichern")->trigger();
        QCOMPARE(dialoge->titel, QStringList{"Geben Sie den Namen der Datei zum Speichern ein!"});
        QCOMPARE(dialoge->filter, QStringList{"Bitmap-Dateien (*.bmp)|*.bmp|Alle Dateien|*.*"});
        QCOMPARE(dialoge->vorschlaege, QStringList{QString()});
        QCOMPARE(dialoge->meldungen, QStringList{});
        QCOMPARE(QDir(ordner.path()).entryList(QDir::Files), QStringList{"grafik.bmp"});

        QFile datei(pfad);
        QVERIFY(datei.open(QIODevice::ReadOnly));
        QCOMPARE(datei.read(2), QByteArray("BM"));
        const QImage bild(pfad, "BMP");
        QCOMPARE(bild.size(), QSize(861, 521));
        // Column i spans 380 twips; sample each column near the top, above the grid and the marks.
        for (int spalte = 0; spalte <= 33; ++spalte)
            QCOMPARE(QColor(bild.pixel(px(380 * spalte + 190), px(150))),
                     spalte % 2 ? QColor(239, 239, 239) : QColor(224, 224, 224));
        // Anna's first mark (3 points of 39 + 3: s = 7715 / 42 = 184) in her colour.
        QCOMPARE(QColor(bild.pixel(px(190), px(7665 - 3 * 184))), qfarbe(AnnaFarbe));
    }

    void abbrechenSchreibtNichts() {
        QTemporaryDir ordner;
        dialoge->antworten << QString();
        kind<QAction>("menSpeichern")->trigger();
        QCOMPARE(dialoge->meldungen, QStringList{});
        QCOMPARE(QDir(ordner.path()).entryList(QDir::Files), QStringList{});
    }

    void schreibfehlerWirdGemeldet() {
        QTemporaryDir ordner;
        const QString pfad = ordner.filePath("fehlt/grafik.bmp");
        dialoge->antworten << pfad;
        kind<QAction>("menSpeichern")->trigger();
        QCOMPARE(dialoge->meldungen,
                 QStringList{"Die Datei „" + pfad +
                             "“ konnte nicht gespeichert werden: Der Ordner existiert nicht."});
        dialoge->meldungen.clear();
        QVERIFY(!QFile::exists(pfad));
        QVERIFY(fenster->isVisible());
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
