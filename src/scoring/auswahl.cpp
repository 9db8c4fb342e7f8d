#include "auswahl.h"

namespace kalimbo {

namespace {

using Flaggen = Feld<i16, MaxSpieltage>;

void setze(Flaggen& flaggen, int von, int bis, i16 wert) {
    for (int tag = von; tag <= bis; ++tag)
        flaggen[tag] = wert;
}

// Applies `waehle` to a copy of the flags and takes the copy over only when it went through, so a
// choice that runs out of the 38 matchdays leaves the selection as it was.
template <class Waehle>
Auswahlergebnis aendere(Spielstand& s, Waehle waehle) {
    Flaggen neu = s.SptgAuswerten;
    waehle(neu);
    Auswahlergebnis ergebnis;
    for (int tag = 0; tag < MaxSpieltage; ++tag)
        ergebnis.geaendert[tag] = neu[tag] != s.SptgAuswerten[tag];
    s.SptgAuswerten = neu;
    return ergebnis;
}

Auswahlergebnis abgelehnt(std::string text) {
    return {std::move(text), {}};
}

// Why the current matchday cannot be used to choose from, or "" when it can.
std::string ohneAktuellenSpieltag(const Spielstand& s) {
    if (s.AktSpieltagGlobal == KeinAktuellerSpieltag) return "Es ist kein aktueller Spieltag gesetzt.";
    if (s.AktSpieltagGlobal < 0 || s.AktSpieltagGlobal > s.AnzSpieltage)
        return "Der aktuelle Spieltag " + std::to_string(s.AktSpieltagGlobal) +
               " liegt außerhalb der Saison (0 bis " + std::to_string(s.AnzSpieltage) + ").";
    return {};
}

}  // namespace

Auswahlergebnis schalteSpieltag(Spielstand& s, int spieltag) {
    return aendere(s, [&](Flaggen& f) { f[spieltag] = f[spieltag] == 1 ? 0 : 1; });
}

Auswahlergebnis waehleAlle(Spielstand& s) {
    return aendere(s, [&](Flaggen& f) { setze(f, 0, s.AnzSpieltage, 1); });
}

Auswahlergebnis waehleKeine(Spielstand& s) {
    return aendere(s, [](Flaggen& f) { setze(f, 0, MaxSpieltage - 1, 0); });
}

// The half-season choices count a half as 2M+1 matchdays, from the matches per matchday.
Auswahlergebnis waehleHinrunde(Spielstand& s) {
    const int halb = 2 * s.AnzSpiele;
    return aendere(s, [&](Flaggen& f) {
        setze(f, 0, halb, 1);
        setze(f, halb + 1, 2 * halb + 1, 0);
    });
}

Auswahlergebnis waehleRueckrunde(Spielstand& s) {
    const int halb = 2 * s.AnzSpiele;
    return aendere(s, [&](Flaggen& f) {
        setze(f, 0, halb, 0);
        setze(f, halb + 1, 2 * halb + 1, 1);
    });
}

Auswahlergebnis waehleAlleAbsolvierten(Spielstand& s) {
    if (auto grund = ohneAktuellenSpieltag(s); !grund.empty()) return abgelehnt(std::move(grund));
    const int aktuell = s.AktSpieltagGlobal;
    return aendere(s, [&](Flaggen& f) {
        setze(f, 0, aktuell, 1);
        setze(f, aktuell + 1, s.AnzSpieltage, 0);
    });
}

// Unlike the half-season choices, this one finds the second half from the number of matchdays.
Auswahlergebnis waehleAbsolvierteRueckrunde(Spielstand& s) {
    if (auto grund = ohneAktuellenSpieltag(s); !grund.empty()) return abgelehnt(std::move(grund));
    const int letzter = s.AnzSpieltage;
    return aendere(s, [&](Flaggen& f) {
        setze(f, 0, letzter, 0);
        setze(f, letzter / 2 + 1, s.AktSpieltagGlobal, 1);
    });
}

Auswahlergebnis waehleLetzte(Spielstand& s, int anzahl) {
    const int aktuell = s.AktSpieltagGlobal;
    if (aktuell <= anzahl - 2 || aktuell == KeinAktuellerSpieltag)
        return abgelehnt("Es wurden noch keine " + std::to_string(anzahl) + " Spieltage absolviert.");
    if (auto grund = ohneAktuellenSpieltag(s); !grund.empty()) return abgelehnt(std::move(grund));
    return aendere(s, [&](Flaggen& f) {
        setze(f, 0, aktuell - anzahl, 0);
        setze(f, aktuell - anzahl + 1, aktuell, 1);
        setze(f, aktuell + 1, s.AnzSpieltage, 0);
    });
}

Auswahlergebnis waehleTrainerperiode(Spielstand& s, int trainer) {
    const Trainerdaten& periode = s.Trainerwechsel[trainer];
    const bool offen = periode.BisSpieltag == KeinAktuellerSpieltag;
    if (offen) {
        if (auto grund = ohneAktuellenSpieltag(s); !grund.empty()) return abgelehnt(std::move(grund));
    }
    const int bis = offen ? s.AktSpieltagGlobal : periode.BisSpieltag;
    if (periode.VonSpieltag < 0 || bis >= MaxSpieltage)
        return abgelehnt("Der Trainerwechsel „" + periode.Name + "“ nennt Spieltage außerhalb der Saison.");
    return aendere(s, [&](Flaggen& f) {
        setze(f, 0, s.AnzSpieltage, 0);
        setze(f, periode.VonSpieltag, bis, 1);
    });
}

i16 letzterAusgewaehlterSpieltag(const Spielstand& s) {
    for (int tag = MaxSpieltage - 1; tag > 0; --tag)
        if (s.SptgAuswerten[tag] == 1) return static_cast<i16>(tag);
    return 0;
}

std::string spieltagsbereiche(const std::vector<int>& tage) {
    std::string text;
    for (std::size_t i = 0; i < tage.size(); ++i) {
        std::size_t ende = i;
        while (ende + 1 < tage.size() && tage[ende + 1] == tage[ende] + 1)
            ++ende;
        text += (text.empty() ? "" : ", ") + std::to_string(tage[i] + 1);
        if (ende > i) text += "-" + std::to_string(tage[ende] + 1);
        i = ende;
    }
    return text.empty() ? "keine" : text;
}

}  // namespace kalimbo
