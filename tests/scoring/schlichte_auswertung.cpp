#include "schlichte_auswertung.h"

#include <string>

#include "scoring/fehlerort.h"

namespace kalimbo::test {

namespace {

using Zahl = long long;

constexpr int KeinTreffer = -1;

// Throws the overflow error `wobei()` names unless `wert` fits in 16 bits.
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
    const bool beideUnentschieden = tippHeim == tippAus && heim == aus;
    const bool beideHeimsiege = tippHeim > tippAus && heim > aus;
    const bool beideAuswaertssiege = tippHeim < tippAus && heim < aus;
    if (beideUnentschieden || beideHeimsiege || beideAuswaertssiege) return 2;
    return KeinTreffer;
}

struct Regeln {
    const Spielstand& s;
    bool sonntagsspieleAuslassen;

    bool gewertet(int tag, int spiel) const {
        const bool sonntag = sonntagsspieleAuslassen && tag == s.AktSpieltagGlobal &&
                             (spiel == s.SonntagSpiele[0] || spiel == s.SonntagSpiele[1]);
        return s.SptgAuswerten[tag] == 1 && !sonntag;
    }
};

void setzeZurueck(Spielstand& s) {
    for (int p = 0; p < MaxSpieler; ++p) {
        SpielerAuswertung a;
        a.Sortierplatz = a.Platz = static_cast<i16>(p);
        for (int tag = 0; tag < MaxSpieltage; ++tag) {
            a.SptgSortierplatz[tag] = a.SptgPlatz[tag] = static_cast<i16>(p);
            for (int spiel = 0; spiel < MaxSpiele; ++spiel) {
                a.SpielFarbe[tag][spiel] = Weiss;
                a.Korrekt[tag][spiel] = KeinTreffer;
            }
        }
        for (int t = 0; t < MaxTeams; ++t)
            a.TeamSortierung[t] = static_cast<i16>(t);
        s.Auswertung[p] = a;
    }
    for (int t = 0; t <= MaxTeams; ++t) {
        s.Tabelle[t] = Tabellenzeile{};
        s.Tabelle[t].Name = t < MaxTeams ? s.Teamname[t] : "";
        s.Tabelle[t].Tabellenplatz = static_cast<i16>(t);
    }
}

void pruefeSpiele(const Spielstand& s, const Regeln& r) {
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
        for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel) {
            if (!r.gewertet(tag, spiel)) continue;
            in16(Zahl{s.Ergebnis[tag][spiel][0]} - s.Ergebnis[tag][spiel][1], [&] {
                return "beim Ergebnis des " + std::to_string(spiel + 1) + ". Spiels " + amSpieltag(tag);
            });
            pruefeBereich(s.Paarung[tag][spiel][0], MaxTeams);
            pruefeBereich(s.Paarung[tag][spiel][1], MaxTeams);
        }
}

void werteSpielerAus(Spielstand& s, const Regeln& r, int p) {
    SpielerAuswertung& a = s.Auswertung[p];
    if (s.Teilnehmer[p] != 1) {
        for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
            for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel)
                a.SpielFarbe[tag][spiel] = Schaltflaechenfarbe;
        return;
    }
    const std::string spieler = spielerImText(s, p);
    Zahl tagPunkte[MaxSpieltage][3] = {};
    Zahl teamPunkte[MaxTeams][3] = {};
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
        for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel) {
            if (!r.gewertet(tag, spiel)) {
                a.SpielFarbe[tag][spiel] = Schaltflaechenfarbe;
                continue;
            }
            const auto& tipp = s.Tipp[p][tag][spiel];
            const auto& ergebnis = s.Ergebnis[tag][spiel];
            in16(Zahl{tipp[0]} - tipp[1], [&] {
                return "beim Tipp von " + spieler + " für das " + std::to_string(spiel + 1) + ". Spiel " +
                       amSpieltag(tag);
            });
            const int art = trefferArt(tipp[0], tipp[1], ergebnis[0], ergebnis[1]);
            if (art == KeinTreffer) continue;
            a.Korrekt[tag][spiel] = static_cast<i16>(art);
            a.SpielFarbe[tag][spiel] = s.ModusFarbe[art];
            const Zahl punkte = s.ModusPunkte[art];
            tagPunkte[tag][art] += punkte;
            teamPunkte[s.Paarung[tag][spiel][0]][art] += punkte;
            teamPunkte[s.Paarung[tag][spiel][1]][art] += punkte;
        }

    Zahl gesamt = 0, nachArt[3] = {};
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        const auto wobei = [&] { return "bei den Punkten von " + spieler + " " + amSpieltag(tag); };
        Zahl summe = 0;
        for (int art = 0; art < 3; ++art) {
            in16(tagPunkte[tag][art], wobei);
            summe += tagPunkte[tag][art];
            nachArt[art] += tagPunkte[tag][art];
        }
        a.SpieltagPunkte[tag] = in16(summe, wobei);
        gesamt += summe;
    }
    a.GesamtPunkte = in16(gesamt, [&] { return "bei den Gesamtpunkten von " + spieler; });
    const char* const artText[3] = {"für ganz richtige Tipps", "für richtige Tordifferenzen",
                                    "für richtige Tendenzen"};
    for (int art = 0; art < 3; ++art)
        a.PunkteNachArt[art] =
            in16(nachArt[art], [&] { return "bei den Punkten von " + spieler + " " + artText[art]; });
    for (int t = 0; t < MaxTeams; ++t) {
        const auto wobei = [&] {
            return "bei den Punkten von " + spieler + " aus Spielen von " + teamImText(s.Teamname[t], t);
        };
        a.TeamPunkteKorrekt[t] = in16(teamPunkte[t][0], wobei);
        a.TeamPunkteDiff[t] = in16(teamPunkte[t][1], wobei);
        a.TeamPunkteTendenz[t] = in16(teamPunkte[t][2], wobei);
        a.TeamPunkte[t] = in16(teamPunkte[t][0] + teamPunkte[t][1] + teamPunkte[t][2], wobei);
    }
}

// Wins, draws, losses, goals and goals against of one team on one side, and its points.
struct Bilanz {
    Zahl siege = 0, unentschieden = 0, niederlagen = 0, tore = 0, gegentore = 0;
    Zahl punkte() const { return 3 * siege + unentschieden; }
};

void schreibe(const Bilanz& b, i16& punkte, i16& siege, i16& unentschieden, i16& niederlagen, i16& tore,
              i16& gegentore, const std::string& team) {
    const auto wobei = [&] { return "in der Tabellenzeile von " + team; };
    punkte = in16(b.punkte(), wobei);
    siege = in16(b.siege, wobei);
    unentschieden = in16(b.unentschieden, wobei);
    niederlagen = in16(b.niederlagen, wobei);
    tore = in16(b.tore, wobei);
    gegentore = in16(b.gegentore, wobei);
}

void zaehleTabelle(Spielstand& s, const Regeln& r) {
    Bilanz heim[MaxTeams + 1], auswaerts[MaxTeams + 1];
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag)
        for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel) {
            if (!r.gewertet(tag, spiel)) continue;
            const Zahl h = s.Ergebnis[tag][spiel][0], g = s.Ergebnis[tag][spiel][1];
            Bilanz& H = heim[s.Paarung[tag][spiel][0]];
            Bilanz& A = auswaerts[s.Paarung[tag][spiel][1]];
            if (h > g) {
                H.siege += 1;
                A.niederlagen += 1;
            } else if (h == g) {
                H.unentschieden += 1;
                A.unentschieden += 1;
            } else {
                A.siege += 1;
                H.niederlagen += 1;
            }
            H.tore += h;
            H.gegentore += g;
            A.tore += g;
            A.gegentore += h;
        }
    for (int t = 0; t <= MaxTeams; ++t) {
        Tabellenzeile& z = s.Tabelle[t];
        const std::string team = teamImText(z.Name, t);
        const Bilanz& h = heim[t];
        const Bilanz& a = auswaerts[t];
        const Bilanz summe{h.siege + a.siege, h.unentschieden + a.unentschieden,
                           h.niederlagen + a.niederlagen, h.tore + a.tore, h.gegentore + a.gegentore};
        schreibe(h, z.HeimPunkte, z.HeimSiege, z.HeimUnentschieden, z.HeimNiederlagen, z.HeimTore,
                 z.HeimGegentore, team);
        schreibe(a, z.AuswPunkte, z.AuswSiege, z.AuswUnentschieden, z.AuswNiederlagen, z.AuswTore,
                 z.AuswGegentore, team);
        schreibe(summe, z.Punkte, z.Siege, z.Unentschieden, z.Niederlagen, z.Tore, z.Gegentore, team);
    }
}

int teamAuf(const Spielstand& s, int platz) {
    int team = 0;
    for (int t = 0; t <= s.AnzTeams; ++t)
        if (s.Tabelle[t].Tabellenplatz == platz) team = t;
    return team;
}

void sortiereTabelle(Spielstand& s) {
    pruefeBereich(s.AnzTeams, MaxTeams + 1);
    Zahl differenz[MaxTeams + 1] = {};
    for (int t = 0; t <= s.AnzTeams; ++t)
        differenz[t] = in16(Zahl{s.Tabelle[t].Tore} - s.Tabelle[t].Gegentore,
                            [&] { return "bei der Tordifferenz von " + teamImText(s.Tabelle[t].Name, t); });
    for (int durchgang = 0; durchgang < s.AnzTeams; ++durchgang)
        for (int n = 0; n < s.AnzTeams; ++n) {
            const int ta = teamAuf(s, n), tb = teamAuf(s, n + 1);
            Tabellenzeile& a = s.Tabelle[ta];
            Tabellenzeile& b = s.Tabelle[tb];
            const bool schlechter =
                a.Punkte < b.Punkte || (a.Punkte == b.Punkte && differenz[ta] < differenz[tb]) ||
                (a.Punkte == b.Punkte && differenz[ta] == differenz[tb] && a.Tore < b.Tore);
            if (schlechter) std::swap(a.Tabellenplatz, b.Tabellenplatz);
        }
}

// Sorts the nine slots by `punkte` into `sortierplatz` (8 passes, swaps on strictly fewer points)
// and gives each the first position holding its points as `platz`.
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
            SpielerAuswertung& a = s.Auswertung[aufPosition(n)];
            SpielerAuswertung& b = s.Auswertung[aufPosition(n + 1)];
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
        for (int p = 0; p < MaxSpieler; ++p) {
            SpielerAuswertung& a = s.Auswertung[p];
            a.Platzierungen[a.SptgPlatz[tag]] += 1;
        }
    }
    rangiere(
        s, [](SpielerAuswertung& a) { return a.GesamtPunkte; },
        [](SpielerAuswertung& a) -> i16& { return a.Sortierplatz; },
        [](SpielerAuswertung& a) -> i16& { return a.Platz; });
}

}  // namespace

void werteSchlichtAus(Spielstand& s, bool sonntagsspieleAuslassen) {
    setzeZurueck(s);
    // A negative count leaves no matchday (or match) to evaluate; one past the arrays is an error.
    if (s.AnzSpieltage >= MaxSpieltage || s.AnzSpiele >= MaxSpiele)
        throw Laufzeitfehler(Laufzeitfehler::Index);
    const Regeln regeln{s, sonntagsspieleAuslassen};
    pruefeSpiele(s, regeln);
    for (int p = 0; p < MaxSpieler; ++p)
        werteSpielerAus(s, regeln, p);
    zaehleTabelle(s, regeln);
    sortiereTabelle(s);
    rangiereSpieler(s);
}

}  // namespace kalimbo::test
