#include "spieldatei.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <type_traits>

#include "cp1252.h"
#include "dateischreiben.h"

namespace kalimbo {

namespace {

// Calls f(matchday, match, side) for every element of a matchday x match x side array in file
// order: the matchday varies fastest, then the match, then the side.
template <class F>
void jedesSpielfeld(F f) {
    for (int seite = 0; seite < 2; ++seite)
        for (int spiel = 0; spiel < MaxSpiele; ++spiel)
            for (int tag = 0; tag < MaxSpieltage; ++tag)
                f(tag, spiel, seite);
}

// One field of the file through the reader or the writer: a number, a colour, a text, or a
// one-dimensional array of them in index order.
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

// Visits every field in file order. `D` is Dateiinhalt or const Dateiinhalt, `V` the reader or
// the writer; both see exactly the same sequence, so the layout is defined in this one place.
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
    for (auto& t : d.Trainerwechsel) {
        feld(v, t.Aktiv);
        feld(v, t.Name);
        feld(v, t.VonSpieltag);
        feld(v, t.BisSpieltag);
    }
}

// What is wrong with a file, as the end of the sentence "… ist beschädigt oder keine
// Tippspiel-Datei: …".
struct Schaden {
    std::string grund;
};

class Leser {
  public:
    explicit Leser(std::string_view daten) : m_daten(daten) {}

    void zahl(i16& z) { z = static_cast<i16>(static_cast<std::uint16_t>(bytes(2))); }
    void farbe(Farbe& f) { f = static_cast<Farbe>(static_cast<std::uint32_t>(bytes(4))); }
    void text(std::string& s) {
        i16 laenge = 0;
        zahl(laenge);
        if (laenge < 0) throw Schaden{"ein Text hat die negative Länge " + std::to_string(laenge) + "."};
        pruefeRest(static_cast<std::size_t>(laenge));
        s = vonCp1252(m_daten.substr(m_pos, static_cast<std::size_t>(laenge)));
        m_pos += static_cast<std::size_t>(laenge);
    }

  private:
    void pruefeRest(std::size_t anzahl) const {
        if (m_daten.size() - m_pos < anzahl) throw Schaden{"sie endet vor dem Ende der Spieldaten."};
    }
    // Little-endian unsigned value of the next `anzahl` bytes.
    std::uint32_t bytes(std::size_t anzahl) {
        pruefeRest(anzahl);
        std::uint32_t wert = 0;
        for (std::size_t i = 0; i < anzahl; ++i)
            wert |= std::uint32_t{static_cast<unsigned char>(m_daten[m_pos + i])} << (8 * i);
        m_pos += anzahl;
        return wert;
    }

    std::string_view m_daten;
    std::size_t m_pos = 0;
};

class Schreiber {
  public:
    void zahl(i16 z) { bytes(static_cast<std::uint16_t>(z), 2); }
    void farbe(Farbe f) { bytes(static_cast<std::uint32_t>(f), 4); }
    void text(const std::string& s) {
        const std::string kodiert = nachCp1252(s);
        if (kodiert.size() > 32767)
            throw Dateifehler("Der Text „" + s.substr(0, 40) + "…“ ist zu lang für eine Tippspiel-Datei.");
        zahl(static_cast<i16>(kodiert.size()));
        m_bytes += kodiert;
    }
    std::string& ergebnis() { return m_bytes; }

  private:
    void bytes(std::uint32_t wert, std::size_t anzahl) {
        for (std::size_t i = 0; i < anzahl; ++i)
            m_bytes += static_cast<char>((wert >> (8 * i)) & 0xFF);
    }

    std::string m_bytes;
};

void pruefeBereich(i16 wert, i16 hoechster, const char* was) {
    if (wert < 0 || wert > hoechster) {
        throw Schaden{"der höchste Index der " + std::string(was) + " ist " + std::to_string(wert) +
                      " (erlaubt sind 0 bis " + std::to_string(hoechster) + ")."};
    }
}

// Refuses values that the windows would later use as indices outside the fixed limits.
void pruefeGrenzen(const Dateiinhalt& d) {
    pruefeBereich(d.AnzTeams, MaxTeams - 1, "Mannschaften");
    pruefeBereich(d.AnzSpieltage, MaxSpieltage - 1, "Spieltage");
    pruefeBereich(d.AnzSpiele, MaxSpiele - 1, "Spiele");
    pruefeBereich(d.AnzSpieler, MaxSpieler - 1, "Spieler");
    for (int tag = 0; tag <= d.AnzSpieltage; ++tag)
        for (int spiel = 0; spiel <= d.AnzSpiele; ++spiel)
            for (int seite = 0; seite < 2; ++seite) {
                const i16 team = d.Paarung[tag][spiel][seite];
                if (team < 0 || team >= MaxTeams) {
                    throw Schaden{"Spiel " + std::to_string(spiel + 1) + " des " + std::to_string(tag + 1) +
                                  ". Spieltags nennt die Mannschaft " + std::to_string(team) +
                                  " (erlaubt sind 0 bis 19)."};
                }
            }
}

}  // namespace

Dateiinhalt leseSpieldatei(std::istream& ein, const std::string& name) {
    const std::string daten{std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    if (ein.bad()) throw Dateifehler("Die Datei „" + name + "“ konnte nicht gelesen werden.");
    Dateiinhalt inhalt;
    try {
        Leser leser(daten);
        besucheFelder(inhalt, leser);
        pruefeGrenzen(inhalt);
    } catch (const Schaden& s) {
        throw Dateifehler("Die Datei „" + name + "“ ist beschädigt oder keine Tippspiel-Datei: " + s.grund);
    }
    return inhalt;
}

Dateiinhalt ladeSpieldatei(const std::filesystem::path& pfad) {
    std::error_code ec;
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein || std::filesystem::is_directory(pfad, ec)) {
        throw Dateifehler("Die Datei „" + pfad.string() +
                          "“ konnte nicht geöffnet werden: Sie existiert nicht oder ist nicht lesbar.");
    }
    return leseSpieldatei(ein, pfad.string());
}

std::string kodiereSpieldatei(const Dateiinhalt& inhalt) {
    Schreiber schreiber;
    besucheFelder(inhalt, schreiber);
    return std::move(schreiber.ergebnis());
}

void speichereSpieldatei(const std::filesystem::path& pfad, const Dateiinhalt& inhalt) {
    schreibeDateiAtomar(pfad, kodiereSpieldatei(inhalt));
}

}  // namespace kalimbo
