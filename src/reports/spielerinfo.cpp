#include "spielerinfo.h"

#include <array>

#include "blatt.h"
#include "state/zahlformat.h"

namespace kalimbo {

namespace {

// zaehler / nenner in double precision; a zero divisor is a runtime error, also for 0 / 0.
double teile(i16 zaehler, i16 nenner) {
    if (nenner == 0) throw Laufzeitfehler(Laufzeitfehler::DivisionDurchNull);
    return static_cast<double>(zaehler) / nenner;
}

void kopf(Blatt& b, const Spielstand& s, int p, const SpielerAuswertung& r) {
    const i16 tag = s.getAktSpieltag();
    b.zeile("  ", s.getSpielerName(p)).zeile("  -").zeile();
    b.zeile("  Gesamtpunkte: \t", r.GesamtPunkte, " [", plus16(r.Platz, 1), "]");
    b.zeile("  ", plus16(tag, 1), ".Spieltag: \t\t", r.SpieltagPunkte[tag], "  [",
            plus16(r.SptgPlatz[tag], 1), "]");
    b.zeile();
    // "richtiges Ergebnis: " fills the tab on its own, so its figure follows without one.
    b.zeile("  Punkte durch")
        .zeile("    richtiges Ergebnis: ", r.PunkteNachArt[0])
        .zeile("    Höhe des Sieges: \t", r.PunkteNachArt[1])
        .zeile("    richtige Tendenz: \t", r.PunkteNachArt[2])
        .zeile();
}

void durchschnitte(Blatt& b, const Spielstand& s, const SpielerAuswertung& r, std::string_view trenner) {
    const auto pro = [&](i16 anzahl) { return formatiereZahl(teile(r.GesamtPunkte, anzahl), 1, 2, trenner); };
    b.zeile("  Punkte pro")
        .zeile("    Spiel: \t", pro(AnzGewerteteSpiele(s)))
        .zeile("    Spieltag: \t", pro(AnzGewerteteSpieltage(s)))
        .zeile();
}

void platzierungenUndTeams(Blatt& b, const Spielstand& s, const SpielerAuswertung& r) {
    for (int k = 0; k < MaxSpieler; ++k)
        b.zeile("  ", k + 1, ".Platz: \t", r.Platzierungen[k], " mal");
    // In team index order on purpose, as the heading says.
    b.zeile().zeile("  Punkte nach Mannschaften").zeile("  [unsortiert]").zeile("  -");
    for (int t = 0; t <= s.getAnzTeams(); ++t)
        b.zeile("  ", s.getTeamNameKurz(t), "\t", r.TeamPunkte[t], "\t", r.TeamPunkteKorrekt[t], "-",
                r.TeamPunkteDiff[t], "-", r.TeamPunkteTendenz[t]);
}

// " (1:0)": the player's tip of a match.
std::string tipp(const Spielstand& s, int p, int spieltag, int spiel) {
    return " (" + std::to_string(s.getTipp(p, spieltag, spiel, 0)) + ":" +
           std::to_string(s.getTipp(p, spieltag, spiel, 1)) + ")";
}

// The matches of matchdays 0..AktSpieltagGlobal scored with hit kind `art`. The lists rely on
// Korrekt being -1 on every match that was not scored; they do not look at the selection.
void trefferliste(Blatt& b, const Spielstand& s, int p, const SpielerAuswertung& r, i16 art,
                  std::string_view trenner) {
    static constexpr std::array<const char*, 3> Ueberschrift{
        "  Die richtigen Tipps [", "  Spiele mit richtiger Sieghöhe [", "  Spiele mit richtiger Tendenz ["};
    const i16 punkte = s.getModusPunkte(art);
    // A fraction when the rule's points changed since the evaluation.
    const double anzahl = teile(r.PunkteNachArt[art], punkte);
    b.zeile().zeile(Ueberschrift[static_cast<std::size_t>(art)], allgemeineZahl(anzahl, trenner), "x]");
    b.zeile("  [jeweils ", punkte, art == 2 ? " Punkt(e)]" : " Punkte]").zeile("  -");
    for (int m = 0; m <= s.getAktSpieltagGlobal(); ++m)
        for (int k = 0; k <= s.getAnzSpiele(); ++k) {
            if (r.Korrekt[m][k] != art) continue;
            // A fully correct tip equals the result and is not repeated.
            b.zeile("  ", paarungMitErgebnis(s, m, k), art == 0 ? std::string() : tipp(s, p, m, k));
        }
}

void alleSpiele(Blatt& b, const Spielstand& s, int p) {
    // Counts the matches per matchday twice over (10 matchdays of 9 matches give 810); that is the
    // figure the sheet has always shown.
    const i16 anzahl = mal16(plus16(s.getAnzSpiele(), 1), AnzGewerteteSpiele(s));
    b.zeile().zeile().zeile("  Alle ", anzahl, " Spiele").zeile("  -");
    for (int m = 0; m <= s.getAktSpieltagGlobal(); ++m) {
        if (s.getSptgAuswerten(m) != 1) continue;
        b.zeile().zeile("  Spieltag ", m + 1);
        for (int k = 0; k <= s.getAnzSpiele(); ++k)
            b.zeile("  ", paarungMitErgebnis(s, m, k), tipp(s, p, m, k));
    }
}

}  // namespace

i16 AnzGewerteteSpieltage(const Spielstand& s) {
    i16 anzahl = 0;
    for (int m = 0; m <= s.getAnzSpieltage(); ++m)
        if (s.getSptgAuswerten(m) == 1) addiere(anzahl, 1);
    return anzahl;
}

i16 AnzGewerteteSpiele(const Spielstand& s) {
    return mal16(AnzGewerteteSpieltage(s), plus16(s.getAnzSpiele(), 1));
}

std::optional<std::string> SpielerInfoText(const Spielstand& s, int spieler, std::string_view trenner) {
    if (s.getAktSpieltagGlobal() == KeinAktuellerSpieltag) return std::nullopt;
    const SpielerAuswertung& r = s.Auswertung[spieler];
    Blatt b;
    kopf(b, s, spieler, r);
    durchschnitte(b, s, r, trenner);
    platzierungenUndTeams(b, s, r);
    for (i16 art = 0; art < 3; ++art)
        trefferliste(b, s, spieler, r, art, trenner);
    alleSpiele(b, s, spieler);
    return std::move(b).text();
}

}  // namespace kalimbo
