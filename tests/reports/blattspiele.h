#pragma once

#include "state/spielstand.h"

namespace kalimbo::test {

// The games behind the golden sheets, evaluated and with the matchday view's marks, as the main window holds
// them.

// 20 teams, 3-2-1 rule; results and tips on matchdays 0-2, all three selected; current and shown matchday 2.
// Anna tips a mix of every hit kind, Bernd always 1:0, Carl 0:0, Dora 2:1.
Spielstand blattspiel20();

// 18 teams, 3-point rule; results and Anna's tips on matchdays 0-2, but matchday 1 is not selected; current
// matchday 2, shown matchday 0. Dora does not take part.
Spielstand blattspiel18();

}  // namespace kalimbo::test
