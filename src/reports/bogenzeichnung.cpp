#include "bogenzeichnung.h"

#include <algorithm>

#include "graph/textbreite.h"

namespace kalimbo {

namespace {

using grafik::Ausrichtung;

constexpr const char* Schrift = "Arial";
constexpr Farbe Schwarz = rgb(0, 0, 0);
constexpr int Polster = 120;                              // between a cell's edge and its text
constexpr int StrichBreite = 300;                         // the dash between home and away
constexpr int GroessteSchrift = 10, KleinsteSchrift = 6;  // points, of the grid
constexpr int Abstand = 120;                              // between the matches and the sums

// Column widths of the grid in twips for font size `groesse`, each the widest text it holds plus
// the padding on both sides.
struct Spalten {
    int groesse = GroessteSchrift;
    int heim = 0, gast = 0, ergebnis = 0, spieler = 0;
    int zeilenhoehe = 0;
    std::size_t anzahlSpieler = 0;

    int vorErgebnis() const { return heim + StrichBreite + gast; }
    int vorSpielern() const { return vorErgebnis() + ergebnis; }
    int breite() const { return vorSpielern() + static_cast<int>(anzahlSpieler) * spieler; }
};

Spalten miss(const Spieltagsbogen& b, int groesse) {
    auto breite = [groesse](const std::string& text, bool fett) {
        return grafik::geschaetzteTextbreite(text, groesse, fett) + 2 * Polster;
    };
    Spalten s;
    s.groesse = groesse;
    s.zeilenhoehe = groesse * 42;
    s.anzahlSpieler = b.spieler.size();
    const int ergebnis = breite("10:10", false);
    s.heim = breite("Heim", true);
    s.gast = breite("Gast", true);
    for (const auto& spiel : b.spiele) {
        s.heim = std::max(s.heim, breite(spiel.heim, false));
        s.gast = std::max(s.gast, breite(spiel.gast, false));
    }
    for (const auto& summe : b.summen)
        s.heim = std::max(s.heim, breite(summe.titel, true) - StrichBreite - s.gast);
    s.ergebnis = std::max(ergebnis, breite("Ergebnis", true));
    s.spieler = ergebnis;
    for (const auto& sp : b.spieler)
        s.spieler = std::max(s.spieler, breite(sp.name, true));
    return s;
}

// Collects the primitives by layer, so that fills lie under the lines and the lines under the texts.
class Maler {
  public:
    void flaeche(int x, int y, int breite, int hoehe, Farbe farbe) {
        m_flaechen.push_back(grafik::Rechteck{x, y, x + breite, y + hoehe, farbe});
    }
    void linie(int x1, int y1, int x2, int y2) { m_linien.push_back(grafik::Linie{x1, y1, x2, y2, Schwarz}); }
    // `text` vertically centred in a box of `hoehe`, aligned within x..x+breite; left and right
    // aligned texts keep the padding from the edge.
    void text(int x, int y, int breite, int hoehe, const std::string& text, int groesse, bool fett,
              Farbe farbe, Ausrichtung ausrichtung) {
        if (text.empty()) return;
        if (ausrichtung != Ausrichtung::Mitte) {
            x += Polster;
            breite -= 2 * Polster;
        }
        const int oben = y + (hoehe - groesse * 24) / 2;  // a line of text is about 1.2 em high
        m_texte.push_back(grafik::Text{x, oben, farbe, Schrift, groesse, fett, text, breite, ausrichtung});
    }
    void zelle(int x, int y, int breite, int hoehe, const Bogenzelle& z, int groesse) {
        if (z.hintergrund != Weiss) flaeche(x, y, breite, hoehe, z.hintergrund);
        text(x, y, breite, hoehe, z.text, groesse, false, Schwarz, Ausrichtung::Mitte);
    }
    grafik::Zeichnung zeichnung(int breite, int hoehe) && {
        grafik::Zeichnung z{breite, hoehe, {}};
        z.teile.reserve(m_flaechen.size() + m_linien.size() + m_texte.size());
        z.teile.insert(z.teile.end(), m_flaechen.begin(), m_flaechen.end());
        z.teile.insert(z.teile.end(), m_linien.begin(), m_linien.end());
        z.teile.insert(z.teile.end(), m_texte.begin(), m_texte.end());
        return z;
    }

  private:
    std::vector<grafik::Rechteck> m_flaechen;
    std::vector<grafik::Linie> m_linien;
    std::vector<grafik::Text> m_texte;
};

// The lines of a grid of `zeilen` rows from (x, y): every row boundary across the whole width,
// and the column boundaries at the offsets `spalten` from x (the outer edges included).
void gitter(Maler& m, int x, int y, int zeilen, int zeilenhoehe, const std::vector<int>& spalten) {
    const int unten = y + zeilen * zeilenhoehe;
    for (int z = 0; z <= zeilen; ++z)
        m.linie(x, y + z * zeilenhoehe, x + spalten.back(), y + z * zeilenhoehe);
    for (const int s : spalten)
        m.linie(x + s, y, x + s, unten);
}

// The offsets of the column boundaries from `erste` on: the player columns and the right edge.
std::vector<int> grenzen(std::initializer_list<int> erste, const Spalten& s) {
    std::vector<int> g(erste);
    for (std::size_t p = 0; p <= s.anzahlSpieler; ++p)
        g.push_back(s.vorSpielern() + static_cast<int>(p) * s.spieler);
    return g;
}

}  // namespace

grafik::Zeichnung zeichneBogen(const Spieltagsbogen& b) {
    Spalten s = miss(b, GroessteSchrift);
    for (int groesse = GroessteSchrift - 1;
         groesse >= KleinsteSchrift && s.breite() > A4Lang - 2 * Seitenrand; --groesse)
        s = miss(b, groesse);
    const bool quer = s.breite() > A4Schmal - 2 * Seitenrand;
    const int seitenbreite = quer ? A4Lang : A4Schmal, seitenhoehe = quer ? A4Schmal : A4Lang;
    const int innen = seitenbreite - 2 * Seitenrand;

    Maler m;
    m.text(Seitenrand - Polster, Seitenrand, innen + 2 * Polster, 480, b.liga, 16, true, Schwarz,
           Ausrichtung::Links);
    m.text(Seitenrand - Polster, Seitenrand + 480, innen + 2 * Polster, 480, b.titel, 13, true, Schwarz,
           Ausrichtung::Links);
    m.text(Seitenrand - Polster, Seitenrand + 480, innen + 2 * Polster, 480, b.art, 13, false, Schwarz,
           Ausrichtung::Rechts);

    const int x = (seitenbreite - s.breite()) / 2, h = s.zeilenhoehe, g = s.groesse;
    int y = Seitenrand + 1080;
    m.text(x, y, s.heim, h, "Heim", g, true, Schwarz, Ausrichtung::Rechts);
    m.text(x + s.heim + StrichBreite, y, s.gast, h, "Gast", g, true, Schwarz, Ausrichtung::Links);
    m.text(x + s.vorErgebnis(), y, s.ergebnis, h, "Ergebnis", g, true, Schwarz, Ausrichtung::Mitte);
    for (std::size_t p = 0; p < b.spieler.size(); ++p)
        m.text(x + s.vorSpielern() + static_cast<int>(p) * s.spieler, y, s.spieler, h, b.spieler[p].name, g,
               true, b.spieler[p].farbe, Ausrichtung::Mitte);
    for (std::size_t k = 0; k < b.spiele.size(); ++k) {
        const auto& spiel = b.spiele[k];
        const int oben = y + static_cast<int>(k + 1) * h;
        m.text(x, oben, s.heim, h, spiel.heim, g, false, Schwarz, Ausrichtung::Rechts);
        m.text(x + s.heim, oben, StrichBreite, h, "–", g, false, Schwarz, Ausrichtung::Mitte);
        m.text(x + s.heim + StrichBreite, oben, s.gast, h, spiel.gast, g, false, Schwarz, Ausrichtung::Links);
        m.zelle(x + s.vorErgebnis(), oben, s.ergebnis, h, spiel.ergebnis, g);
        for (std::size_t p = 0; p < spiel.tipps.size(); ++p)
            m.zelle(x + s.vorSpielern() + static_cast<int>(p) * s.spieler, oben, s.spieler, h, spiel.tipps[p],
                    g);
    }
    const int spielzeilen = static_cast<int>(b.spiele.size()) + 1;
    gitter(m, x, y, spielzeilen, h, grenzen({0, s.vorErgebnis()}, s));

    if (!b.summen.empty()) {
        y += spielzeilen * h + Abstand;
        for (std::size_t r = 0; r < b.summen.size(); ++r) {
            const int oben = y + static_cast<int>(r) * h;
            m.text(x, oben, s.vorSpielern(), h, b.summen[r].titel, g, true, Schwarz, Ausrichtung::Rechts);
            for (std::size_t p = 0; p < b.summen[r].werte.size(); ++p)
                m.text(x + s.vorSpielern() + static_cast<int>(p) * s.spieler, oben, s.spieler, h,
                       b.summen[r].werte[p], g, false, Schwarz, Ausrichtung::Mitte);
        }
        gitter(m, x, y, static_cast<int>(b.summen.size()), h, grenzen({0}, s));
    }

    const int fuss = seitenhoehe - Seitenrand - 240;
    m.text(Seitenrand - Polster, fuss, innen + 2 * Polster, 240, b.fussnote, 8, false, Schwarz,
           Ausrichtung::Links);
    m.text(Seitenrand - Polster, fuss, innen + 2 * Polster, 240, b.datum, 8, false, Schwarz,
           Ausrichtung::Rechts);
    return std::move(m).zeichnung(seitenbreite, seitenhoehe);
}

}  // namespace kalimbo
