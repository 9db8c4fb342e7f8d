#include "ui/bausteine/maler.h"

#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QtTest>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;

namespace {

QImage gemalt(const grafik::Zeichnung& z, QSize groesse, const QRectF& ziel) {
    QImage bild(groesse, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    const QPen stift(Qt::green, 3);
    maler.setPen(stift);
    male(maler, z, ziel);
    if (maler.pen() != stift || maler.hasClipping()) bild.fill(Qt::green);  // the caller's state is kept
    return bild;
}

// The columns and rows holding a pixel darker than mid-grey: first and last of each, -1 if none.
QList<int> dunkel(const QImage& bild) {
    QList<int> r{-1, -1, -1, -1};
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (qGray(bild.pixel(x, y)) < 128) {
                if (r[0] < 0 || x < r[0]) r[0] = x;
                r[1] = std::max(r[1], x);
                if (r[2] < 0) r[2] = y;
                r[3] = y;
            }
    return r;
}

}  // namespace

class MalerTest : public QObject {
    Q_OBJECT

  private slots:
    // A square drawing of 1500 twips: its top left quarter red, a blue rectangle reaching far beyond
    // its right edge, a black line across its middle. 200 x 100 pixels: the smaller scale
    // (100 / 1500) holds for both directions. An offset target moves everything with its top left
    // corner; nothing is drawn beyond the drawing's edge; the line is one pixel wide.
    void flaechenUndLinienWerdenEinheitlichAbgebildet() {
        grafik::Zeichnung z;
        z.breite = z.hoehe = 1500;
        z.teile = {grafik::Rechteck{750, 750, 0, 0, rgb(255, 0, 0)},
                   grafik::Rechteck{1200, 0, 3000, 300, rgb(0, 0, 255)},
                   grafik::Linie{0, 1125, 1500, 1125, rgb(0, 0, 0)}};
        const QImage breit = gemalt(z, {200, 100}, QRectF(0, 0, 200, 100));
        const QImage versetzt = gemalt(z, {200, 200}, QRectF(40, 20, 150, 150));
        QString farben;  // (r)ed, (b)lue, blac(k) or (w)hite at each point
        for (const auto& [bild, x, y] : {std::tuple{&breit, 24, 24},
                                         {&breit, 60, 24},
                                         {&breit, 24, 60},
                                         {&breit, 90, 10},
                                         {&breit, 150, 10},
                                         {&breit, 0, 75},
                                         {&breit, 99, 75},
                                         {&breit, 50, 74},
                                         {&breit, 50, 76},
                                         {&versetzt, 30, 30},
                                         {&versetzt, 100, 80},
                                         {&versetzt, 120, 80},
                                         {&versetzt, 189, 25},
                                         {&versetzt, 195, 25}}) {
            const QRgb p = bild->pixel(x, y) & 0xFFFFFF;
            farben += p == 0xFF0000 ? 'r' : p == 0x0000FF ? 'b' : p == 0 ? 'k' : p == 0xFFFFFF ? 'w' : '?';
        }
        QCOMPARE(farben, QStringLiteral("rwwbwkkwwwrwbw"));
    }

    // The text's top is at y, the glyphs within the font's line height; a text with a width is
    // aligned in its field.
    void textStehtAnSeinemPlatz_data() {
        QTest::addColumn<int>("ausrichtung");
        QTest::addColumn<QList<int>>("grenzen");  // left, right, top, bottom the glyphs stay within
        QTest::newRow("links") << int(grafik::Ausrichtung::Links) << QList<int>{0, 30, 100, 114};
        QTest::newRow("mitte") << int(grafik::Ausrichtung::Mitte) << QList<int>{70, 130, 100, 114};
        QTest::newRow("rechts") << int(grafik::Ausrichtung::Rechts) << QList<int>{170, 200, 100, 114};
    }
    void textStehtAnSeinemPlatz() {
        QFETCH(int, ausrichtung);
        QFETCH(QList<int>, grenzen);
        grafik::Zeichnung z;
        z.breite = z.hoehe = 3000;
        z.teile = {grafik::Text{0, 1500, rgb(0, 0, 0), "MS Sans Serif", 10, true, "88", 3000,
                                static_cast<grafik::Ausrichtung>(ausrichtung)}};
        const QList<int> d = dunkel(gemalt(z, {200, 200}, QRectF(0, 0, 200, 200)));
        QVERIFY2(d[0] >= grenzen[0] && d[1] < grenzen[1] && d[2] >= grenzen[2] && d[3] <= grenzen[3],
                 qPrintable(QString("%1 %2 %3 %4").arg(d[0]).arg(d[1]).arg(d[2]).arg(d[3])));
    }

    // A missing font becomes the installed family of its kind; an installed one is kept.
    void schriftenWerdenErsetzt_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("familie");
        QFont serif, ohne;
        serif.setStyleHint(QFont::Serif);
        ohne.setStyleHint(QFont::SansSerif);
        QVERIFY(serif.defaultFamily() != ohne.defaultFamily());
        QTest::newRow("MS Serif") << "MS Serif" << serif.defaultFamily();
        QTest::newRow("MS Sans Serif") << "MS Sans Serif" << ohne.defaultFamily();
        QTest::newRow("unbekannt mit Serifen") << "Nirgends Serif" << serif.defaultFamily();
        QTest::newRow("unbekannt") << "Nirgends Grotesk" << ohne.defaultFamily();
        QTest::newRow("installiert") << "DejaVu Sans Mono"
                                     << "DejaVu Sans Mono";
    }
    void schriftenWerdenErsetzt() {
        QFETCH(QString, name);
        QFETCH(QString, familie);
        QImage bild(10, 10, QImage::Format_RGB32);
        for (const bool fett : {false, true}) {
            const QFont f = schrift(name.toStdString(), 8, fett, 1.0 / 15, bild);
            QCOMPARE(QFontInfo(f).family(), familie);
            QCOMPARE(f.bold(), fett);
        }
    }

    // A point stays a point on any device when the scale is the device's pixels per twip.
    void schriftgroesseFolgtDerAbbildung_data() {
        QTest::addColumn<int>("dpi");
        QTest::addColumn<double>("skala");
        QTest::addColumn<double>("punkte");
        QTest::newRow("96 dpi") << 96 << 96.0 / 1440 << 10.0;
        QTest::newRow("300 dpi") << 300 << 300.0 / 1440 << 10.0;
        QTest::newRow("halbe Abbildung") << 300 << 150.0 / 1440 << 5.0;
    }
    void schriftgroesseFolgtDerAbbildung() {
        QFETCH(int, dpi);
        QFETCH(double, skala);
        QFETCH(double, punkte);
        QImage bild(10, 10, QImage::Format_RGB32);
        bild.setDotsPerMeterX(qRound(dpi / 0.0254));
        bild.setDotsPerMeterY(qRound(dpi / 0.0254));
        const QFont f = schrift("MS Sans Serif", 10, false, skala, bild);
        QVERIFY2(qAbs(f.pointSizeF() - punkte) < 0.05, qPrintable(QString::number(f.pointSizeF())));
    }
};

KALIMBO_UI_TEST_MAIN(MalerTest)
#include "maler_test.moc"
