#pragma once

// The byte layout of the game file, shared by its reader and writer and by the coach-change file
// (which holds exactly the game file's last field). Internal to src/state.

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "spielstand.h"

namespace kalimbo::datei {

// What is wrong with the bytes, as the end of a German sentence naming the file.
struct Schaden {
    std::string grund;
};
// The bytes end before the field being read.
struct DatenEnde {};

// Reads little-endian numbers and Windows-1252 strings from the front of `daten`. Throws
// DatenEnde at the end of the data and Schaden for a negative string length.
class Leser {
  public:
    explicit Leser(std::string_view daten) : m_daten(daten) {}

    void zahl(i16& z);
    void farbe(Farbe& f);
    void text(std::string& s);

  private:
    std::uint32_t bytes(std::size_t anzahl);
    void pruefeRest(std::size_t anzahl) const;

    std::string_view m_daten;
    std::size_t m_pos = 0;
};

// Appends little-endian numbers and Windows-1252 strings. Throws Dateifehler for a text that
// Windows-1252 cannot hold or that is longer than 32767 bytes.
class Schreiber {
  public:
    void zahl(i16 z) { bytes(static_cast<std::uint16_t>(z), 2); }
    void farbe(Farbe f) { bytes(static_cast<std::uint32_t>(f), 4); }
    void text(const std::string& s);
    std::string& ergebnis() { return m_bytes; }

  private:
    void bytes(std::uint32_t wert, std::size_t anzahl);

    std::string m_bytes;
};

// Adds up the largest number of bytes the visited fields can take: every string at 32767 bytes.
class Groesstmass {
  public:
    void zahl(i16) { m_bytes += 2; }
    void farbe(Farbe) { m_bytes += 4; }
    void text(const std::string&) { m_bytes += 2 + 32767; }
    std::size_t ergebnis() const { return m_bytes; }

  private:
    std::size_t m_bytes = 0;
};

// Calls f(matchday, match, side) for every element of a matchday x match x side array in file
// order: the matchday varies fastest, then the match, then the side.
template <class F>
void jedesSpielfeld(F f) {
    for (int seite = 0; seite < 2; ++seite)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel)
            for (int tag = 0; tag < MaxSpieltage; ++tag)
                f(tag, spiel, seite);
}

// One field through a reader, writer or measure: a number, a colour, a text, or a one-dimensional
// array of them in index order.
template <class V, class T>
void feld(V& v, T& wert) {
    using Wert = std::remove_const_t<T>;
    if constexpr (std::is_same_v<Wert, i16>)
        v.zahl(wert);
    else if constexpr (std::is_same_v<Wert, Farbe>)
        v.farbe(wert);
    else if constexpr (std::is_same_v<Wert, std::string>)
        v.text(wert);
    else
        for (auto& element : wert)
            feld(v, element);
}

// One coach-change record: Aktiv, Name, VonSpieltag, BisSpieltag.
template <class T, class V>
void trainerdatensatz(T& t, V& v) {
    feld(v, t.Aktiv);
    feld(v, t.Name);
    feld(v, t.VonSpieltag);
    feld(v, t.BisSpieltag);
}

// Visits every field in file order. `D` is Dateiinhalt or const Dateiinhalt; the reader, the
// writer and the measure see exactly the same sequence, so the layout is defined in this one place.
template <class D, class V>
void besucheFelder(D& d, V& v) {
    feld(v, d.Teamname);
    feld(v, d.TeamnameKurz);
    feld(v, d.Spielername);
    jedesSpielfeld([&](int tag, int spiel, int seite) { feld(v, d.Paarung[tag][spiel][seite]); });
    feld(v, d.AnzSpieltage);
    feld(v, d.AnzSpiele);
    feld(v, d.AnzTippfelder);
    feld(v, d.AnzTeams);  // stored before AnzSpieler
    feld(v, d.AnzSpieler);
    feld(v, d.TabFarbe);
    jedesSpielfeld([&](int tag, int spiel, int seite) { feld(v, d.ErgebnisDatei[tag][spiel][seite]); });
    jedesSpielfeld([&](int tag, int spiel, int seite) {  // the player varies fastest of all
        for (int spieler = 0; spieler < MaxSpieler; ++spieler)
            feld(v, d.TippDatei[spieler][tag][spiel][seite]);
    });
    feld(v, d.SptgAuswerten);
    feld(v, d.AktSpieltagGlobal);
    feld(v, d.SonntagSpiele);
    feld(v, d.Teilnehmer);
    feld(v, d.Spielerfarbe);
    feld(v, d.LigaInfo);
    feld(v, d.Modus);
    feld(v, d.ModusPunkte);
    feld(v, d.ModusFarbe);
    for (auto& t : d.Trainerwechsel)
        trainerdatensatz(t, v);
}

}  // namespace kalimbo::datei
