#include "grafik.h"

#include <ostream>

#include "aufruf.h"
#include "graph/punktegrafik.h"
#include "graph/svg.h"
#include "scoring/anzeige.h"

namespace kalimbo::cli {

namespace {

void schreibe(const grafik::Rechteck& r, std::ostream& aus) {
    aus << "rechteck\t" << r.x1 << '\t' << r.y1 << '\t' << r.x2 << '\t' << r.y2 << '\t'
        << grafik::hexFarbe(r.farbe);
}

void schreibe(const grafik::Linie& l, std::ostream& aus) {
    aus << "linie\t" << l.x1 << '\t' << l.y1 << '\t' << l.x2 << '\t' << l.y2 << '\t'
        << grafik::hexFarbe(l.farbe);
}

void schreibe(const grafik::Text& t, std::ostream& aus) {
    aus << "text\t" << t.x << '\t' << t.y << '\t' << grafik::hexFarbe(t.farbe) << '\t' << t.schrift << '\t'
        << t.groesse << '\t' << (t.fett ? "fett" : "normal") << '\t' << t.text;
}

}  // namespace

int zeigeGrafik(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Aufruf a = zerlege(argumente, {"--ansicht"}, {"--zahlen", "--svg"});
    erwarteWerte(a, 1);
    const Spielstand spiel = ladeWieGezeigt(a.werte[0]);
    grafik::Ansicht ansicht = grafik::ersteAnsicht(spiel);
    if (const auto wahl = a.option("--ansicht"))
        ansicht.Darstellung = static_cast<i16>(ganzeZahl(*wahl, 0, 1, "--ansicht"));
    if (a.hat("--zahlen")) ansicht.PunkteZeigen.fill(true);
    const grafik::Zeichnung zeichnung = grafik::punktegrafik(spiel, spiel.getAnzSpieltage(), ansicht);

    if (a.hat("--svg")) {
        aus << grafik::alsSvg(zeichnung);
        return 0;
    }
    for (const grafik::Primitiv& teil : zeichnung.teile) {
        std::visit([&aus](const auto& t) { schreibe(t, aus); }, teil);
        aus << '\n';
    }
    const auto zeilen = grafik::legende(spiel);
    for (std::size_t p = 0; p < zeilen.size(); ++p) {
        const grafik::Legendenzeile& z = zeilen[p];
        aus << "legende\t" << p << '\t' << z.spieler << '\t' << (z.farbe ? grafik::hexFarbe(*z.farbe) : "-")
            << '\t' << z.gesamtPunkte << '\t' << z.spieltagPunkte << '\n';
    }
    return 0;
}

}  // namespace kalimbo::cli
