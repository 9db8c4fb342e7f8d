#include "maler.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
#include <QPaintDevice>
#include <QPainter>
#include <algorithm>
#include <variant>

#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"

namespace kalimbo::ui {

namespace {

constexpr double TwipsJePunkt = 20;
constexpr double PunkteJeZoll = 72;

// Installed family for a font name, looked up once per name.
QString familie(const std::string& name) {
    static QHash<QString, QString> gefunden;
    const QString gewuenscht = text(name);
    if (const auto it = gefunden.constFind(gewuenscht); it != gefunden.constEnd()) return it.value();
    QString f = gewuenscht;
    if (!QFontDatabase::hasFamily(gewuenscht)) {
        QFont ersatz;
        ersatz.setStyleHint(grafik::gattung(name) == grafik::Gattung::Serifen ? QFont::Serif
                                                                              : QFont::SansSerif);
        f = ersatz.defaultFamily();
    }
    gefunden.insert(gewuenscht, f);
    return f;
}

// Twips of the drawing to device coordinates.
struct Abbildung {
    QPointF ursprung;
    double skala;  // device units per twip

    QPointF punkt(int x, int y) const { return ursprung + QPointF(x * skala, y * skala); }
};

void zeichne(QPainter& maler, const Abbildung& a, const grafik::Rechteck& r) {
    maler.fillRect(QRectF(a.punkt(r.x1, r.y1), a.punkt(r.x2, r.y2)).normalized(), qfarbe(r.farbe));
}

void zeichne(QPainter& maler, const Abbildung& a, const grafik::Linie& l) {
    maler.setPen(QPen(qfarbe(l.farbe), 0));
    maler.drawLine(a.punkt(l.x1, l.y1), a.punkt(l.x2, l.y2));
}

void zeichne(QPainter& maler, const Abbildung& a, const grafik::Text& t) {
    const QFont f = schrift(t.schrift, t.groesse, t.fett, a.skala, *maler.device());
    const QFontMetricsF masse(f, maler.device());
    const QString inhalt = text(t.text);
    QPointF start = a.punkt(t.x, t.y);
    if (t.breite > 0 && t.ausrichtung != grafik::Ausrichtung::Links) {
        const double frei = t.breite * a.skala - masse.horizontalAdvance(inhalt);
        start.rx() += t.ausrichtung == grafik::Ausrichtung::Mitte ? frei / 2 : frei;
    }
    maler.setFont(f);
    maler.setPen(qfarbe(t.farbe));
    maler.drawText(start + QPointF(0, masse.ascent()), inhalt);
}

}  // namespace

QFont schrift(const std::string& name, int groesse, bool fett, double skala, const QPaintDevice& geraet) {
    QFont f(familie(name));
    f.setBold(fett);
    const double pixel = groesse * TwipsJePunkt * skala;
    f.setPointSizeF(std::max(pixel * PunkteJeZoll / geraet.logicalDpiY(), 0.1));
    return f;
}

void male(QPainter& maler, const grafik::Zeichnung& zeichnung, const QRectF& ziel) {
    if (zeichnung.breite <= 0 || zeichnung.hoehe <= 0) return;
    const Abbildung a{ziel.topLeft(),
                      std::min(ziel.width() / zeichnung.breite, ziel.height() / zeichnung.hoehe)};
    maler.save();
    maler.setClipRect(QRectF(a.punkt(0, 0), a.punkt(zeichnung.breite, zeichnung.hoehe)), Qt::IntersectClip);
    for (const grafik::Primitiv& teil : zeichnung.teile)
        std::visit([&](const auto& t) { zeichne(maler, a, t); }, teil);
    maler.restore();
}

}  // namespace kalimbo::ui
