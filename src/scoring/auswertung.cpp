#include "auswertung.h"

#include <algorithm>
#include <array>

#include "tabelle.h"
#include "tippwertung.h"

namespace kalimbo {

namespace {

void setzeAuswertungZurueck(Spielstand& s) {
    static const Feld<SpielerAuswertung, MaxSpieler> leer = [] {
        Feld<SpielerAuswertung, MaxSpieler> records;
        for (int p = 0; p < MaxSpieler; ++p)
            records[p] = SpielerAuswertung::leer(p);
        return records;
    }();
    s.Auswertung = leer;
}

// Ranks the nine slots on every matchday and overall at once. Lane j < 38 holds matchday j's
// points, lane 38 the totals. A slot's position is the number of slots ahead of it: those with
// more points and those with as many points and a lower slot number; its place counts only the
// first kind, so equal points share the best of their positions (7, 5, 5, 3 -> 0, 1, 1, 3). This
// is the order a stable sort gives, and counted lane by lane it needs no branch.
void rangiereSpieler(Spielstand& s) {
    constexpr int Bahnen = 40, Gesamt = MaxSpieltage;
    using Zeile = std::array<i16, Bahnen>;
    std::array<Zeile, MaxSpieler> punkte{}, besser{}, gleichDavor{};
    for (int p = 0; p < MaxSpieler; ++p) {
        std::copy(s.Auswertung[p].SpieltagPunkte.begin(), s.Auswertung[p].SpieltagPunkte.end(),
                  punkte[p].begin());
        punkte[p][Gesamt] = s.Auswertung[p].GesamtPunkte;
    }
    for (int p = 0; p < MaxSpieler; ++p) {
        for (int q = 0; q < MaxSpieler; ++q) {
            for (int j = 0; j < Bahnen; ++j)
                besser[p][j] += punkte[q][j] > punkte[p][j];
            if (q < p)
                for (int j = 0; j < Bahnen; ++j)
                    gleichDavor[p][j] += punkte[q][j] == punkte[p][j];
        }
    }
    for (int p = 0; p < MaxSpieler; ++p) {
        SpielerAuswertung& a = s.Auswertung[p];
        for (int tag = 0; tag <= s.AnzSpieltage; ++tag) {
            if (s.SptgAuswerten[tag] != 1) continue;  // keeps the slot number from the reset
            a.SptgSortierplatz[tag] = static_cast<i16>(besser[p][tag] + gleichDavor[p][tag]);
            a.SptgPlatz[tag] = besser[p][tag];
            addiere(a.Platzierungen[besser[p][tag]], 1);
        }
        a.Sortierplatz = static_cast<i16>(besser[p][Gesamt] + gleichDavor[p][Gesamt]);
        a.Platz = besser[p][Gesamt];
    }
}

}  // namespace

void werteAus(Spielstand& s, bool sonntagsspieleAuslassen) {
    try {
        setzeAuswertungZurueck(s);
        Saisonplan plan;
        erstelleSaisonplan(s, sonntagsspieleAuslassen, plan);
        for (int p = 0; p < MaxSpieler; ++p)
            werteTippsAus(s, plan, p);
        zaehleTabelle(s, plan);
        rangiereSpieler(s);
    } catch (...) {
        setzeAuswertungZurueck(s);
        setzeTabelleZurueck(s);
        throw;
    }
}

i16 spielerAufPlatz(const Spielstand& s, int position) {
    i16 spieler = 0;
    for (int p = 0; p < MaxSpieler; ++p)
        if (s.Auswertung[p].Sortierplatz == position) spieler = static_cast<i16>(p);
    return spieler;
}

i16 spielerAufSpieltagsplatz(const Spielstand& s, int spieltag, int position) {
    pruefeIndex(spieltag, MaxSpieltage);
    i16 spieler = 0;
    for (int p = 0; p < MaxSpieler; ++p)
        if (s.Auswertung[p].SptgSortierplatz[spieltag] == position) spieler = static_cast<i16>(p);
    return spieler;
}

void markiereNichtteilnehmer(Spielstand& s) {
    const int tag = static_cast<int>(pruefeIndex(s.AktSpieltag, MaxSpieltage));
    for (int p = 0; p < MaxSpieler; ++p)
        if (s.Teilnehmer[p] != 1) s.Auswertung[p].SpieltagPunkte[tag] = -1;
}

}  // namespace kalimbo
