#include "abweichung.h"

#include <algorithm>
#include <cmath>

#include "reports/blatt.h"
#include "state/zahlformat.h"

namespace kalimbo {

namespace {

i16 betrag(i16 d) {
    return d < 0 ? minus16(0, d) : d;
}

// " 7" or "12": a blank pads single digits so the numbers line up.
std::string ausgerichtet(i16 d) {
    const i16 b = betrag(d);
    return (b < 10 ? " " : "") + std::to_string(b);
}

// Count and sums of one group of teams in single precision, rounded after every addition.
struct Gruppe {
    float anzahl = 0, summe = 0, quadrate = 0;

    void zaehle(i16 b, i16 quadrat) {
        anzahl += 1.0f;
        summe += static_cast<float>(b);
        quadrate += static_cast<float>(quadrat);
    }
};

// After two empty lines: the variance, its square root (taken in double precision) and the average
// deviation, each in the form "0.00".
void kennzahlen(Blatt& b, double varianz, double durchschnitt, std::string_view trenner) {
    const auto f = [&](double wert) { return formatiereZahl(wert, 2, 2, trenner); };
    b.zeile()
        .zeile()
        .zeile(" Varianz: \t\t\t", f(varianz))
        .zeile(" Standardabweichung: \t\t", f(std::sqrt(varianz)))
        .zeile(" Durchschnittsabweichung: \t", f(durchschnitt));
}

// Writes the heading of the over- or under-rated teams and those teams in team order ("   " + padded
// absolute deviation + " " + name); returns their count and sums.
Gruppe gruppe(Blatt& b, const Spielstand& s, const Abweichungen& a, bool ueber) {
    b.zeile()
        .zeile()
        .zeile(ueber ? " Überschätzte Mannschaften [unsortiert]" : " Unterschätzte Mannschaften [unsortiert]")
        .zeile(" -");
    Gruppe g;
    for (int t = 0; t <= s.getAnzTeams(); ++t) {
        const i16 d = a.PunkteDiff[t];
        if (ueber ? d <= 0 : d >= 0) continue;
        b.zeile("   ", ausgerichtet(d), " ", s.getTeamName(t));
        g.zaehle(betrag(d), mal16(d, d));
    }
    return g;
}

}  // namespace

Abweichungen berechneAbweichungen(const Spielstand& s, const Tabellenzeilen& vorhersage) {
    Abweichungen a;
    for (int t = 0; t <= s.getAnzTeams(); ++t) {
        a.PunkteDiff[t] = minus16(vorhersage[t].Punkte, std::get<i16>(s.getTabInfo(t, 2)));
        a.reihenfolge.push_back(static_cast<i16>(t));
    }
    std::vector<i16> betraege;
    for (const i16 t : a.reihenfolge)
        betraege.push_back(betrag(a.PunkteDiff[t]));
    std::stable_sort(a.reihenfolge.begin(), a.reihenfolge.end(), [&](i16 x, i16 y) {
        return betraege[static_cast<std::size_t>(x)] > betraege[static_cast<std::size_t>(y)];
    });
    return a;
}

std::string abweichungsbericht(const Spielstand& s, int spieler, const Tabellenzeilen& vorhersage,
                               std::string_view trenner) {
    const Abweichungen a = berechneAbweichungen(s, vorhersage);
    Blatt b;
    b.zeile(" Spieler: ", s.getSpielerName(spieler)).zeile();
    b.zeile(" Die punktemäßigen Abweichungen").zeile(" [betragsmäßig sortiert]").zeile(" -");
    i16 summeBetrag = 0, summeQuadrat = 0;
    for (const i16 t : a.reihenfolge) {
        const i16 d = a.PunkteDiff[t];
        b.zeile("   ", d > 0 ? "+" : d == 0 ? " " : "-", ausgerichtet(d), "\t", s.getTeamName(t));
        addiere(summeBetrag, betrag(d));
        addiere(summeQuadrat, mal16(d, d));
    }
    const double n = s.getAnzTeams() + 1;
    kennzahlen(b, summeQuadrat / n, summeBetrag / n, trenner);

    b.zeile().zeile().zeile().zeile(" Richtig eingeschätzte Mannschaften").zeile(" -");
    for (int t = 0; t <= s.getAnzTeams(); ++t)
        if (a.PunkteDiff[t] == 0) b.zeile("   ", s.getTeamName(t));
    for (const bool ueber : {true, false}) {
        const Gruppe g = gruppe(b, s, a, ueber);
        if (g.anzahl > 0) {
            // The group's quotients stay in single precision.
            const float varianz = g.quadrate / g.anzahl;
            const float durchschnitt = g.summe / g.anzahl;
            kennzahlen(b, varianz, durchschnitt, trenner);
        }
    }
    return std::move(b).text();
}

}  // namespace kalimbo
