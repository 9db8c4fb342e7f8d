#include "schlichte_auswertung.h"

#include <array>
#include <string>
#include <tuple>

#include "scoring/fehlerort.h"

namespace kalimbo::test {

namespace {

using Zahl = long long;

// `wert` if it fits in 16 bits, else the overflow error that `wobei()` names.
template <class Wobei>
i16 in16(Zahl wert, Wobei wobei) {
    if (wert < -32768 || wert > 32767) throw Laufzeitfehler(Laufzeitfehler::Ueberlauf, wobei());
    return static_cast<i16>(wert);
}

void pruefeBereich(Zahl wert, Zahl grenze) {
    if (wert < 0 || wert >= grenze) throw Laufzeitfehler(Laufzeitfehler::Index);
}

// 0 fully correct, 1 correct margin of a match that was not drawn, 2 correct tendency, -1 none.
int trefferArt(Zahl tippHeim, Zahl tippAus, Zahl heim, Zahl aus) {
    if (tippHeim == heim && tippAus == aus) return 0;
    if (tippHeim - tippAus == heim - aus && heim != aus) return 1;
    const auto tendenz = [](Zahl a, Zahl b) { return (a > b) - (a < b); };
    return tendenz(tippHeim, tippAus) == tendenz(heim, aus) ? 2 : -1;
}

bool gewertet(const Spielstand& s, bool sonntagsspieleAuslassen, int tag, int spiel) {
    const bool sonntag = sonntagsspieleAuslassen && tag == s.AktSpieltagGlobal &&
                         (spiel == s.SonntagSpiele[0] || spiel == s.SonntagSpiele[1]);
    return s.SptgAuswerten[tag] == 1 && !sonntag;
}

void werteSpielerAus(Spielstand& s, bool sonntag, int p) {
    SpielerAuswertung& a = s.Auswertung[p];
    const std::string spieler = spielerImText(s, p);
    Zahl tagPunkte[MaxSpieltage][3] = {}, teamPunkte[MaxTeams][3] = {};
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
        for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel) {
            if (s.Teilnehmer[p] != 1 || !gewertet(s, sonntag, tag, spiel)) {
                a.SpielFarbe[tag][spiel] = Schaltflaechenfarbe;
                continue;
            }
            const auto &tipp = s.Tipp[p][tag][spiel], &ergebnis = s.Ergebnis[tag][spiel];
            in16(Zahl{tipp[0]} - tipp[1], [&] {
                return "beim Tipp von " + spieler + " für das " + std::to_string(spiel + 1) + ". Spiel " +
                       amSpieltag(tag);
            });
            const int art = trefferArt(tipp[0], tipp[1], ergebnis[0], ergebnis[1]);
            if (art < 0) continue;
            a.Korrekt[tag][spiel] = static_cast<i16>(art);
            a.SpielFarbe[tag][spiel] = s.ModusFarbe[art];
            tagPunkte[tag][art] += s.ModusPunkte[art];
            for (const i16 team : s.Paarung[tag][spiel])
                teamPunkte[team][art] += s.ModusPunkte[art];
        }
    if (s.Teilnehmer[p] != 1) return;

    Zahl gesamt = 0, nachArt[3] = {};
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        const auto wobei = [&] { return "bei den Punkten von " + spieler + " " + amSpieltag(tag); };
        for (int art = 0; art < 3; ++art) {
            in16(tagPunkte[tag][art], wobei);
            nachArt[art] += tagPunkte[tag][art];
        }
        a.SpieltagPunkte[tag] = in16(tagPunkte[tag][0] + tagPunkte[tag][1] + tagPunkte[tag][2], wobei);
        gesamt += a.SpieltagPunkte[tag];
    }
    a.GesamtPunkte = in16(gesamt, [&] { return "bei den Gesamtpunkten von " + spieler; });
    const char* const artText[3] = {"für ganz richtige Tipps", "für richtige Tordifferenzen",
                                    "für richtige Tendenzen"};
    for (int art = 0; art < 3; ++art)
        a.PunkteNachArt[art] =
            in16(nachArt[art], [&] { return "bei den Punkten von " + spieler + " " + artText[art]; });
    for (int t = 0; t < MaxTeams; ++t) {
        const Zahl* punkte = teamPunkte[t];
        const auto wobei = [&] {
            return "bei den Punkten von " + spieler + " aus Spielen von " + teamImText(s.Teamname[t], t);
        };
        a.TeamPunkteKorrekt[t] = in16(punkte[0], wobei);
        a.TeamPunkteDiff[t] = in16(punkte[1], wobei);
        a.TeamPunkteTendenz[t] = in16(punkte[2], wobei);
        a.TeamPunkte[t] = in16(punkte[0] + punkte[1] + punkte[2], wobei);
    }
}

// Wins, draws, losses, goals and goals against of one team on one side.
using Bilanz = std::array<Zahl, 5>;

void zaehle(Bilanz& b, Zahl eigene, Zahl andere) {
    b = {b[0] + (eigene > andere), b[1] + (eigene == andere), b[2] + (eigene < andere), b[3] + eigene,
         b[4] + andere};
}

// Points (3 for a win, 1 for a draw) and the five counts into the six figures of one side.
void schreibe(const Bilanz& b, std::array<i16*, 6> ziel, const std::string& team) {
    const Zahl werte[6] = {3 * b[0] + b[1], b[0], b[1], b[2], b[3], b[4]};
    for (int i = 0; i < 6; ++i)
        *ziel[static_cast<std::size_t>(i)] =
            in16(werte[i], [&] { return "in der Tabellenzeile von " + team; });
}

void zaehleTabelle(Spielstand& s, bool sonntag) {
    Bilanz heim[MaxTeams] = {}, auswaerts[MaxTeams] = {};
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
        for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel) {
            if (!gewertet(s, sonntag, tag, spiel)) continue;
            const Zahl h = s.Ergebnis[tag][spiel][0], g = s.Ergebnis[tag][spiel][1];
            zaehle(heim[s.Paarung[tag][spiel][0]], h, g);
            zaehle(auswaerts[s.Paarung[tag][spiel][1]], g, h);
        }
    for (int t = 0; t < MaxTeams; ++t) {
        Tabellenzeile& z = s.Tabelle[t];
        const std::string team = teamImText(z.Name, t);
        const Bilanz &h = heim[t], &a = auswaerts[t];
        schreibe(h,
                 {&z.HeimPunkte, &z.HeimSiege, &z.HeimUnentschieden, &z.HeimNiederlagen, &z.HeimTore,
                  &z.HeimGegentore},
                 team);
        schreibe(a,
                 {&z.AuswPunkte, &z.AuswSiege, &z.AuswUnentschieden, &z.AuswNiederlagen, &z.AuswTore,
                  &z.AuswGegentore},
                 team);
        schreibe({h[0] + a[0], h[1] + a[1], h[2] + a[2], h[3] + a[3], h[4] + a[4]},
                 {&z.Punkte, &z.Siege, &z.Unentschieden, &z.Niederlagen, &z.Tore, &z.Gegentore}, team);
    }
}

int teamAuf(const Spielstand& s, int platz) {
    int team = 0;
    for (int t = 0; t <= s.AnzTeams; ++t)
        if (s.Tabelle[t].Tabellenplatz == platz) team = t;
    return team;
}

// By points, goal difference and goals, as the literal bubble sort over the positions.
void sortiereTabelle(Spielstand& s) {
    pruefeBereich(s.AnzTeams, MaxTeams + 1);
    Zahl differenz[MaxTeams + 1] = {};
    for (int t = 0; t <= s.AnzTeams; ++t)
        differenz[t] = in16(Zahl{s.Tabelle[t].Tore} - s.Tabelle[t].Gegentore,
                            [&] { return "bei der Tordifferenz von " + teamImText(s.Tabelle[t].Name, t); });
    for (int durchgang = 0; durchgang < s.AnzTeams; ++durchgang)
        for (int n = 0; n < s.AnzTeams; ++n) {
            const int ta = teamAuf(s, n), tb = teamAuf(s, n + 1);
            Tabellenzeile &a = s.Tabelle[ta], &b = s.Tabelle[tb];
            if (std::tuple(a.Punkte, differenz[ta], a.Tore) < std::tuple(b.Punkte, differenz[tb], b.Tore))
                std::swap(a.Tabellenplatz, b.Tabellenplatz);
        }
}

// Sorts the nine slots by `punkte` into `sortierplatz` (8 passes, swaps on strictly fewer points) and gives
// each the first position holding its points as `platz`.
template <class Punkte, class Sortierplatz, class Platz>
void rangiere(Spielstand& s, Punkte punkte, Sortierplatz sortierplatz, Platz platz) {
    auto aufPosition = [&](int n) {
        int spieler = 0;
        for (int p = 0; p < MaxSpieler; ++p)
            if (sortierplatz(s.Auswertung[p]) == n) spieler = p;
        return spieler;
    };
    for (int durchgang = 0; durchgang < 8; ++durchgang)
        for (int n = 0; n < 8; ++n) {
            SpielerAuswertung &a = s.Auswertung[aufPosition(n)], &b = s.Auswertung[aufPosition(n + 1)];
            if (punkte(a) < punkte(b)) std::swap(sortierplatz(a), sortierplatz(b));
        }
    for (int p = 0; p < MaxSpieler; ++p)
        for (int n = MaxSpieler - 1; n >= 0; --n)
            if (punkte(s.Auswertung[aufPosition(n)]) == punkte(s.Auswertung[p]))
                platz(s.Auswertung[p]) = static_cast<i16>(n);
}

void rangiereSpieler(Spielstand& s) {
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag) {
        if (s.SptgAuswerten[tag] != 1) continue;
        rangiere(
            s, [&](SpielerAuswertung& a) { return a.SpieltagPunkte[tag]; },
            [&](SpielerAuswertung& a) -> i16& { return a.SptgSortierplatz[tag]; },
            [&](SpielerAuswertung& a) -> i16& { return a.SptgPlatz[tag]; });
        for (SpielerAuswertung& a : s.Auswertung)
            a.Platzierungen[a.SptgPlatz[tag]] += 1;
    }
    rangiere(
        s, [](SpielerAuswertung& a) { return a.GesamtPunkte; },
        [](SpielerAuswertung& a) -> i16& { return a.Sortierplatz; },
        [](SpielerAuswertung& a) -> i16& { return a.Platz; });
}

}  // namespace

void werteSchlichtAus(Spielstand& s, bool sonntagsspieleAuslassen) {
    s.verwirfAuswertung();
    for (int t = 0; t < MaxTeams; ++t)
        s.Tabelle[t].Name = s.Teamname[t];
    // A negative count leaves no matchday (or match) to evaluate; one past the arrays is an error.
    if (s.AnzSpieltage >= MaxSpieltage || s.AnzSpiele >= MaxSpiele)
        throw Laufzeitfehler(Laufzeitfehler::Index);
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
        for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel) {
            if (!gewertet(s, sonntagsspieleAuslassen, tag, spiel)) continue;
            in16(Zahl{s.Ergebnis[tag][spiel][0]} - s.Ergebnis[tag][spiel][1], [&] {
                return "beim Ergebnis des " + std::to_string(spiel + 1) + ". Spiels " + amSpieltag(tag);
            });
            for (const i16 team : s.Paarung[tag][spiel])
                pruefeBereich(team, MaxTeams);
        }
    for (int p = 0; p < MaxSpieler; ++p)
        werteSpielerAus(s, sonntagsspieleAuslassen, p);
    zaehleTabelle(s, sonntagsspieleAuslassen);
    sortiereTabelle(s);
    rangiereSpieler(s);
}

}  // namespace kalimbo::test
