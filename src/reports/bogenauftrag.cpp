#include "bogenauftrag.h"

#include <charconv>

#include "scoring/anzeige.h"

namespace kalimbo {

namespace {

Bogenart artAus(const std::optional<std::string>& name) {
    if (!name) return Bogenart::Auswertung;
    const auto art = bogenartAusName(*name);
    if (!art) throw FalscheAngabe("--art erwartet auswertung, live oder tippabgabe, nicht „" + *name + "“.");
    return *art;
}

// The matchday index of `nummer` (1 .. highest index + 1); the last selected one when none is given.
int spieltagAus(const std::optional<std::string>& nummer, const Spielstand& spiel) {
    if (!nummer) return spiel.getAktSpieltag();
    const int hoechste = spiel.getAnzSpieltage() + 1;
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(nummer->data(), nummer->data() + nummer->size(), wert);
    if (fehler != std::errc{} || ende != nummer->data() + nummer->size() || wert < 1 || wert > hoechste)
        throw FalscheAngabe("--spieltag muss eine ganze Zahl von 1 bis " + std::to_string(hoechste) +
                            " sein, nicht „" + *nummer + "“.");
    return wert - 1;
}

}  // namespace

Spieltagsbogen erstelleBogen(const Bogenauftrag& auftrag) {
    const Bogenart art = artAus(auftrag.art);
    const Spielstand spiel = ladeWieGezeigt(auftrag.spiel);
    return erstelleBogen(spiel, spieltagAus(auftrag.spieltag, spiel), art, heutigesDatum());
}

}  // namespace kalimbo
