#include "anzeige.h"

#include "scoring/auswahl.h"
#include "scoring/auswertung.h"
#include "scoring/regeln.h"
#include "state/spieldatei.h"

namespace kalimbo {

void zeigeSpieltag(Spielstand& s, int tag) {
    pruefeIndex(tag, MaxSpieltage);
    s.AktSpieltag = static_cast<i16>(tag);
    markiereNichtteilnehmer(s);
}

void werteAusWieGezeigt(Spielstand& s, bool sonntagsspieleAuslassen) {
    werteAus(s, sonntagsspieleAuslassen);
    markiereNichtteilnehmer(s);
}

void oeffneWieGezeigt(Spielstand& s, const Dateiinhalt& inhalt) {
    s.oeffne(inhalt);
    zeigeSpieltag(s, letzterAusgewaehlterSpieltag(s));
}

Spielstand ladeWieGezeigt(const std::filesystem::path& pfad, const Auswertungsoptionen& optionen) {
    Spielstand s;
    oeffneWieGezeigt(s, ladeSpieldatei(pfad));
    if (optionen.regel) waehleRegel(s, *optionen.regel);
    if (optionen.alle) waehleAlle(s);
    werteAusWieGezeigt(s, optionen.sonntag);
    return s;
}

}  // namespace kalimbo
