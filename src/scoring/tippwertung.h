#pragma once

#include "saisonplan.h"
#include "state/spielstand.h"

namespace kalimbo {

// Scores the tips of player slot `spieler` under the active rule into its freshly reset record:
// SpielFarbe, Korrekt, SpieltagPunkte, GesamtPunkte, PunkteNachArt and the four team arrays.
// A player not taking part (Teilnehmer not 1) gets only the colour of unscored tips. Every figure
// is checked against the 16-bit range (Laufzeitfehler::Ueberlauf), and so is every scored tip's
// difference.
void werteTippsAus(Spielstand& s, const Saisonplan& plan, int spieler);

}  // namespace kalimbo
