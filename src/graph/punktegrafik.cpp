#include "punktegrafik.h"

#include <algorithm>
#include <vector>

namespace kalimbo::grafik {

namespace {

constexpr Farbe SpalteGerade = rgb(224, 224, 224);
constexpr Farbe SpalteUngerade = rgb(239, 239, 239);
constexpr Farbe Gitterfarbe = rgb(244, 244, 244);
constexpr Farbe Skalenfarbe = rgb(174, 174, 174);

constexpr i16 Grundlinie = 7665;       // y of zero points
constexpr i16 Skalenhoehe = 7715;      // twips the total view shares out between the points
constexpr i16 Spieltagsschritt = 480;  // one point of the matchday view, also the grid step
constexpr i16 Kopfraum = 3;            // points of head room above the highest total
constexpr i16 Markenhalb = 50;         // half the side of a total view mark
constexpr i16 Quadrathalb = 150;       // half the side of a matchday view square

const char* const Zahlenschrift = "MS Serif";
const char* const Quadratschrift = "MS Sans Serif";

// Appends in place: a temporary variant holding a string makes g++ 12 warn falsely.
template <class T>
void anhaengen(Zeichnung& z, T teil) {
    z.teile.emplace_back(std::in_place_type<T>, std::move(teil));
}

bool gezeichnet(const Spielstand& spiel, const Ansicht& ansicht, int spieler) {
    return ansicht.LinieZeigen[static_cast<std::size_t>(spieler)] && spiel.getTeilnehmer(spieler) == 1;
}

// The matchday columns: column i spans i * breite .. (i + 1) * breite, its centre lies at
// i * breite + breite / 2 (an odd width puts the centre half a twip to the left).
struct Spalten {
    i16 breite;

    i16 links(int i) const { return mal16(auf16(i), breite); }
    i16 mitte(int i) const { return plus16(links(i), auf16(breite / 2)); }
};

void totalansicht(const Spielstand& spiel, i16 spieltage, const Ansicht& ansicht, Spalten spalten,
                  Zeichnung& z) {
    const i16 schritt = quotient16(Skalenhoehe, plus16(skalenspitze(spiel, spieltage), Kopfraum));
    std::vector<i16> hoehen;  // running total times the scale, per matchday
    for (int p = 0; p < MaxSpieler; ++p) {
        if (!gezeichnet(spiel, ansicht, p)) continue;
        const Farbe farbe = spiel.getSpielerFarbe(p);
        hoehen.clear();
        i16 summe = 0;
        for (int i = 0; i <= spieltage; ++i) {
            addiere(summe, spiel.getSpieltagPunkte(p, i));
            const i16 h = mal16(summe, schritt);
            const i16 x = spalten.mitte(i);
            const i16 oben = minus16(Grundlinie - Markenhalb, h);
            anhaengen(z, Rechteck{minus16(x, Markenhalb), minus16(Grundlinie + Markenhalb, h),
                                  plus16(x, Markenhalb), oben, farbe});
            if (ansicht.PunkteZeigen[static_cast<std::size_t>(p)])
                anhaengen(z, Text{plus16(x, Markenhalb), oben, farbe, Zahlenschrift, 8, false,
                                  std::to_string(summe)});
            hoehen.push_back(h);
        }
        for (int i = 0; i < spieltage; ++i)
            anhaengen(z, Linie{spalten.mitte(i), minus16(Grundlinie, hoehen[i]), spalten.mitte(i + 1),
                               minus16(Grundlinie, hoehen[i + 1]), farbe});
    }
}

void spieltagsansicht(const Spielstand& spiel, i16 spieltage, const Ansicht& ansicht, Spalten spalten,
                      Zeichnung& z) {
    for (int p = 0; p < MaxSpieler; ++p) {
        if (!gezeichnet(spiel, ansicht, p)) continue;
        const Farbe farbe = spiel.getSpielerFarbe(p);
        for (int i = 0; i <= spieltage; ++i) {
            const i16 punkte = spiel.getSpieltagPunkte(p, i);
            const i16 h = mal16(Spieltagsschritt, punkte);
            const i16 x = spalten.mitte(i);
            const i16 oben = minus16(Grundlinie - Quadrathalb, h);
            anhaengen(z, Rechteck{minus16(x, Quadrathalb), minus16(Grundlinie + Quadrathalb, h),
                                  plus16(x, Quadrathalb), oben, farbe});
            // Starting 260 (one digit) or 320 (two digits) left of the square's right edge centres
            // the number in the square.
            const i16 einzug = punkte < 10 ? 260 : 320;
            anhaengen(z, Text{minus16(plus16(x, Quadrathalb), einzug), oben, Weiss, Quadratschrift, 10, true,
                              std::to_string(punkte)});
        }
    }
    for (int k = 0; k <= 15; ++k)
        anhaengen(z, Text{11200, Grundlinie - 120 - Spieltagsschritt * k, Skalenfarbe, Quadratschrift, 10,
                          false, std::to_string(k)});
}

}  // namespace

Ansicht ersteAnsicht(const Spielstand& spiel) {
    Ansicht a;
    for (int p = 0; p < MaxSpieler; ++p)
        a.LinieZeigen[static_cast<std::size_t>(p)] = spiel.getTeilnehmer(p) == 1;
    return a;
}

i16 skalenspitze(const Spielstand& spiel, i16 spieltage) {
    i16 hoechste = INT16_MIN;
    for (int p = 0; p < MaxSpieler; ++p) {
        i16 summe = 0;
        for (int d = 0; d <= spieltage; ++d)
            addiere(summe, spiel.getSpieltagPunkte(p, d));
        hoechste = std::max(hoechste, summe);
    }
    return hoechste == 0 ? i16{1} : hoechste;
}

Zeichnung punktegrafik(const Spielstand& spiel, i16 spieltage, const Ansicht& ansicht) {
    Zeichnung z;
    z.breite = GrafikBreite;
    z.hoehe = GrafikHoehe;
    const Spalten spalten{quotient16(GrafikBreite, plus16(spieltage, 1))};
    for (int i = 0; i <= spieltage; ++i)
        anhaengen(z, Rechteck{spalten.links(i), GrafikHoehe, spalten.links(i + 1), 0,
                              i % 2 == 0 ? SpalteGerade : SpalteUngerade});
    for (int k = 0; k <= 16; ++k) {
        const int y = Grundlinie - Spieltagsschritt * k;
        anhaengen(z, Linie{0, y, GrafikBreite, y, Gitterfarbe});
    }
    if (ansicht.Darstellung == Gesamtpunkte)
        totalansicht(spiel, spieltage, ansicht, spalten, z);
    else if (ansicht.Darstellung == Spieltagspunkte)
        spieltagsansicht(spiel, spieltage, ansicht, spalten, z);
    return z;
}

std::array<Legendenzeile, MaxSpieler> legende(const Spielstand& spiel) {
    std::array<Legendenzeile, MaxSpieler> zeilen;
    for (int p = 0; p < MaxSpieler; ++p) {
        Legendenzeile& z = zeilen[static_cast<std::size_t>(p)];
        if (spiel.getTeilnehmer(p) == 1)
            z = {spiel.getSpielerName(p) + "  ", spiel.getSpielerFarbe(p),
                 std::to_string(spiel.getGesamtPunkte(p)),
                 std::to_string(spiel.getSpieltagPunkte(p, Legendenspieltag))};
        else
            z = {"      ---", std::nullopt, "-", "-"};
    }
    return zeilen;
}

}  // namespace kalimbo::grafik
