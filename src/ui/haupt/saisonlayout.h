#pragma once

#include <optional>

#include "ui/bausteine/saisonform.h"

namespace kalimbo::ui {

// Where the lower part of the main window lies for a season of 38 matchdays of ten matches or of
// 34 of nine (twips): the tenth match line comes and goes and the frames below follow the length
// of the table.
struct Saisonlayout {
    bool zehnSpiele;
    int rahmen;        // height of the three lower frames
    int infotext;      // height of the information text
    int linienende;    // lower end of the line between results and tips
    int spieltagOben;  // top of each player's matchday points and place
    int gesamtOben;    // top of each player's total points and place

    // The layout for a season of 38 or 34 matchdays; none for any other (the layout stays).
    static std::optional<Saisonlayout> fuer(Saisonform form) {
        if (form.laenge == Saisonform::Lang) return Saisonlayout{true, 5295, 4815, 4320, 3840, 4080};
        if (form.laenge == Saisonform::Kurz) return Saisonlayout{false, 4815, 4335, 3960, 3480, 3740};
        return std::nullopt;
    }
};

}  // namespace kalimbo::ui
