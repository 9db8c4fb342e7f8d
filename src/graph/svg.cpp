#include "svg.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>

#include "state/maskierung.h"
#include "state/spielstand.h"

namespace kalimbo::grafik {

namespace {

// Twips as points, the shortest exact decimal (20 twips per point).
std::string punkte(int twips) {
    char puffer[32];
    const auto [ende, fehler] = std::to_chars(puffer, puffer + sizeof puffer, twips / 20.0);
    return std::string(puffer, ende);
}

std::string n(int zahl) {
    return std::to_string(zahl);
}

std::string element(const Rechteck& r) {
    return "<rect x=\"" + n(std::min(r.x1, r.x2)) + "\" y=\"" + n(std::min(r.y1, r.y2)) + "\" width=\"" +
           n(std::abs(r.x2 - r.x1)) + "\" height=\"" + n(std::abs(r.y2 - r.y1)) + "\" fill=\"" +
           hexFarbe(r.farbe) + "\"/>";
}

std::string element(const Linie& l) {
    return "<line x1=\"" + n(l.x1) + "\" y1=\"" + n(l.y1) + "\" x2=\"" + n(l.x2) + "\" y2=\"" + n(l.y2) +
           "\" stroke=\"" + hexFarbe(l.farbe) +
           "\" stroke-width=\"1\" vector-effect=\"non-scaling-stroke\"/>";
}

std::string element(const Text& t) {
    int x = t.x;
    const char* anker = "start";
    if (t.breite > 0 && t.ausrichtung == Ausrichtung::Mitte) {
        x += t.breite / 2;
        anker = "middle";
    } else if (t.breite > 0 && t.ausrichtung == Ausrichtung::Rechts) {
        x += t.breite;
        anker = "end";
    }
    const char* familie = gattung(t.schrift) == Gattung::Serifen ? "serif" : "sans-serif";
    return "<text x=\"" + n(x) + "\" y=\"" + n(t.y) + "\" fill=\"" + hexFarbe(t.farbe) +
           "\" font-family=\"'" + xmlMaskiert(t.schrift) + "', " + familie + "\" font-size=\"" +
           n(t.groesse * 20) + "\" font-weight=\"" + (t.fett ? "bold" : "normal") + "\" text-anchor=\"" +
           anker + "\" dominant-baseline=\"text-before-edge\" xml:space=\"preserve\">" + xmlMaskiert(t.text) +
           "</text>";
}

}  // namespace

std::string hexFarbe(Farbe farbe) {
    const auto wert = static_cast<std::uint32_t>(druckfarbe(farbe));
    const char* ziffern = "0123456789ABCDEF";
    std::string hex = "#";
    for (const int verschiebung : {0, 8, 16}) {
        const auto byte = (wert >> verschiebung) & 0xFFu;
        hex += ziffern[byte >> 4];
        hex += ziffern[byte & 0xFu];
    }
    return hex;
}

std::string alsSvg(const Zeichnung& zeichnung) {
    std::string svg =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
        punkte(zeichnung.breite) + "pt\" height=\"" + punkte(zeichnung.hoehe) + "pt\" viewBox=\"0 0 " +
        n(zeichnung.breite) + ' ' + n(zeichnung.hoehe) + "\">\n";
    for (const Primitiv& teil : zeichnung.teile)
        svg += std::visit([](const auto& t) { return element(t); }, teil) + '\n';
    return svg + "</svg>\n";
}

}  // namespace kalimbo::grafik
