#include "druckseite.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include "ui/bausteine/maler.h"

namespace kalimbo::ui {

QPageLayout seitenlayout(const grafik::Zeichnung& zeichnung) {
    const auto ausrichtung =
        zeichnung.breite > zeichnung.hoehe ? QPageLayout::Landscape : QPageLayout::Portrait;
    return QPageLayout(QPageSize(QPageSize::A4), ausrichtung, QMarginsF(0, 0, 0, 0));
}

void druckeSeite(QPagedPaintDevice& geraet, const grafik::Zeichnung& zeichnung) {
    geraet.setPageLayout(seitenlayout(zeichnung));
    QPainter maler(&geraet);
    male(maler, zeichnung, QRectF(0, 0, geraet.width(), geraet.height()));
}

QByteArray alsPdf(const grafik::Zeichnung& zeichnung, const QString& titel) {
    QBuffer puffer;
    puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&puffer);
        pdf.setTitle(titel);
        pdf.setCreator(QStringLiteral("Kalimbo"));
        druckeSeite(pdf, zeichnung);
    }
    return puffer.data();
}

}  // namespace kalimbo::ui
