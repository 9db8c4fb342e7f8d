#pragma once

namespace kalimbo::ui {

// What changed about the game, as the main window announces it to every window that shows it.
// Showing another matchday is no change.
struct Aenderung {
    bool ersetzt = false;  // another game took its place: opened, recovered or made anew
    bool daten = false;    // what a save writes: results, tips, players, rule, selection, ...
    bool zahlen = false;   // the figures: an evaluation ran
};

}  // namespace kalimbo::ui
