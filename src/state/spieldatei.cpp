#include "spieldatei.h"

#include "dateifelder.h"
#include "dateilesen.h"
#include "dateischreiben.h"

namespace kalimbo {

namespace {

using datei::Schaden;

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

// The largest game file: every text at its 16-bit maximum. Bytes that an older, longer file left
// behind the end of a shorter one never take a file past this size.
std::size_t groessteSpieldatei() {
    static const std::size_t groesse = [] {
        const Dateiinhalt leer;
        datei::Groesstmass mass;
        besucheFelder(leer, mass);
        return mass.ergebnis();
    }();
    return groesse;
}

[[noreturn]] void beschaedigt(const std::string& name, const std::string& grund) {
    throw Dateifehler("Die Datei „" + name + "“ ist beschädigt oder keine Tippspiel-Datei: " + grund);
}

Dateiinhalt ausBytes(const Dateianfang& anfang, const std::string& name) {
    if (anfang.mehr) {
        beschaedigt(name, "sie ist größer als jede Tippspiel-Datei (höchstens " +
                              std::to_string(groessteSpieldatei()) + " Bytes).");
    }
    Dateiinhalt inhalt;
    try {
        datei::Leser leser(anfang.bytes);
        besucheFelder(inhalt, leser);
        pruefeGrenzen(inhalt);
    } catch (const datei::DatenEnde&) {
        beschaedigt(name, "sie endet vor dem Ende der Spieldaten.");
    } catch (const Schaden& s) {
        beschaedigt(name, s.grund);
    }
    return inhalt;
}

}  // namespace

Dateiinhalt leseSpieldatei(std::istream& ein, const std::string& name) {
    return ausBytes(leseDateianfang(ein, groessteSpieldatei(), name), name);
}

Dateiinhalt ladeSpieldatei(const std::filesystem::path& pfad) {
    return ausBytes(leseDateianfang(pfad, groessteSpieldatei()), pfad.string());
}

std::string kodiereSpieldatei(const Dateiinhalt& inhalt) {
    datei::Schreiber schreiber;
    besucheFelder(inhalt, schreiber);
    return std::move(schreiber.ergebnis());
}

void speichereSpieldatei(const std::filesystem::path& pfad, const Dateiinhalt& inhalt) {
    schreibeDateiAtomar(pfad, kodiereSpieldatei(inhalt));
}

}  // namespace kalimbo
