#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QString>

#include "graph/zeichnung.h"

class QPagedPaintDevice;

namespace kalimbo::ui {

// A4 without margins (the drawing keeps its own), landscape when the drawing is wider than high.
QPageLayout seitenlayout(const grafik::Zeichnung& zeichnung);

// Gives `geraet` (a printer or a PDF writer) the drawing's page layout and paints the drawing on
// its one page.
void druckeSeite(QPagedPaintDevice& geraet, const grafik::Zeichnung& zeichnung);

// The drawing as the bytes of a one-page PDF file titled `titel`.
QByteArray alsPdf(const grafik::Zeichnung& zeichnung, const QString& titel);

}  // namespace kalimbo::ui
