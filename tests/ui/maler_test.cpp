#include "ui/bausteine/maler.h"

#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QtTest>

#include "hauptfenster.h"

using namespace kalimbo;
using namespace kalimbo::ui;

namespace {

constexpr QRgb WeissRgb = 0xFFFFFFFF;
constexpr QRgb RotRgb = 0xFFFF0000;
constexpr QRgb BlauRgb = 0xFF0000FF;

// A square drawing of 1500 x 1500 twips: its top left quarter red, a blue rectangle reaching far
// beyond its right edge.
grafik::Zeichnung quadrate() {
    grafik::Zeichnung z;
    z.breite = z.hoehe = 1500;
    z.teile = {grafik::Rechteck{750, 750, 0, 0, rgb(255, 0, 0)},
               grafik::Rechteck{1200, 0, 3000, 300, rgb(0, 0, 255)}};
    return z;
}

QImage gemalt(const grafik::Zeichnung& z, QSize groesse, const QRectF& ziel) {
    QImage bild(groesse, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    male(maler, z, ziel);
    return bild;
}

// The rows of `bild` holding a pixel darker than mid-grey: first and last, -1 if none.
std::pair<int, int> dunkleZeilen(const QImage& bild) {
    int erste = -1, letzte = -1;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (qGray(bild.pixel(x, y)) < 128) {
                if (erste < 0) erste = y;
                letzte = y;
            }
    return {erste, letzte};
}

}  // namespace

class MalerTest : public QObject {
    Q_OBJECT

  private slots:
    // 200 x 100 pixels: the smaller scale (100 / 1500) holds for both directions. An offset target
    // moves everything with its top left corner; nothing is drawn beyond the drawing's edge.
    void flaechenWerdenEinheitlichAbgebildet() {
        const QImage breit = gemalt(quadrate(), {200, 100}, QRectF(0, 0, 200, 100));
        const QImage versetzt = gemalt(quadrate(), {200, 200}, QRectF(40, 20, 150, 150));
        QString farben;  // (r)ed, (b)lue or (w)hite at each point
        for (const auto& [bild, x, y] : {std::tuple{&breit, 24, 24},
                                         {&breit, 60, 24},
                                         {&breit, 24, 60},
                                         {&breit, 90, 10},
                                         {&breit, 150, 10},
                                         {&versetzt, 30, 30},
                                         {&versetzt, 100, 80},
                                         {&versetzt, 120, 80},
                                         {&versetzt, 189, 25},
                                         {&versetzt, 195, 25}}) {
            const QRgb p = bild->pixel(x, y);
            farben += p == RotRgb ? 'r' : p == BlauRgb ? 'b' : p == WeissRgb ? 'w' : '?';
        }
        QCOMPARE(farben, QStringLiteral("rwwbwwrwbw"));
    }

    void linieIstEinPixelBreit() {
        grafik::Zeichnung z;
        z.breite = z.hoehe = 1500;
        z.teile = {grafik::Linie{0, 750, 1500, 750, rgb(0, 0, 0)}};
        const QImage bild = gemalt(z, {100, 100}, QRectF(0, 0, 100, 100));
        QCOMPARE(dunkleZeilen(bild), std::make_pair(50, 50));
        QCOMPARE(QColor(bild.pixel(0, 50)), QColor(Qt::black));
        QCOMPARE(QColor(bild.pixel(99, 50)), QColor(Qt::black));
    }

    // The text's top is at y: the glyphs lie below y and within the font's line height.
    void textBeginntMitSeinerOberkanteBeiY() {
        grafik::Zeichnung z;
        z.breite = z.hoehe = 3000;
        z.teile = {grafik::Text{150, 1500, rgb(0, 0, 0), "MS Sans Serif", 10, true, "8", 0, {}}};
        const QImage bild = gemalt(z, {200, 200}, QRectF(0, 0, 200, 200));
        const auto [erste, letzte] = dunkleZeilen(bild);
        QVERIFY2(erste >= 100, qPrintable(QString::number(erste)));
        QVERIFY2(letzte <= 100 + 14, qPrintable(QString::number(letzte)));
    }

    void textWirdImFeldAusgerichtet_data() {
        QTest::addColumn<int>("ausrichtung");
        QTest::addColumn<int>("links");
        QTest::addColumn<int>("rechts");
        QTest::newRow("links") << int(grafik::Ausrichtung::Links) << 0 << 30;
        QTest::newRow("mitte") << int(grafik::Ausrichtung::Mitte) << 70 << 130;
        QTest::newRow("rechts") << int(grafik::Ausrichtung::Rechts) << 170 << 200;
    }
    void textWirdImFeldAusgerichtet() {
        QFETCH(int, ausrichtung);
        QFETCH(int, links);
        QFETCH(int, rechts);
        grafik::Zeichnung z;
        z.breite = z.hoehe = 3000;
        z.teile = {grafik::Text{0, 0, rgb(0, 0, 0), "MS Sans Serif", 10, false, "88", 3000,
                                static_cast<grafik::Ausrichtung>(ausrichtung)}};
        const QImage bild = gemalt(z, {200, 200}, QRectF(0, 0, 200, 200));
        for (int x = 0; x < bild.width(); ++x)
            for (int y = 0; y < 20; ++y)
                if (qGray(bild.pixel(x, y)) < 128)
                    QVERIFY2(x >= links && x < rechts, qPrintable(QString::number(x)));
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
        QTest::newRow("doppelte Abbildung") << 96 << 2 * 96.0 / 1440 << 20.0;
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

    void zustandDesMalersBleibt() {
        QImage bild(50, 50, QImage::Format_RGB32);
        QPainter maler(&bild);
        const QPen stift(Qt::green, 3);
        maler.setPen(stift);
        male(maler, quadrate(), QRectF(0, 0, 50, 50));
        QCOMPARE(maler.pen(), stift);
        QVERIFY(!maler.hasClipping());
    }
};

KALIMBO_UI_TEST_MAIN(MalerTest)
#include "maler_test.moc"
