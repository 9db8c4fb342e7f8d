#include "regeln.h"

namespace kalimbo {

std::string regelName(i16 modus) {
    if (modus >= 0 && modus < static_cast<i16>(FesteRegeln.size())) return FesteRegeln[modus].name;
    if (modus == ModusEigeneRegel) return "Eigene Regel";
    return "unbekannte Regel " + std::to_string(modus);
}

EigeneRegel regelInKraft(const Spielstand& s) {
    EigeneRegel regel{};
    for (int art = 0; art < 3; ++art) {
        regel.punkte[static_cast<std::size_t>(art)] = s.getModusPunkte(art);
        regel.farben[static_cast<std::size_t>(art)] = s.getModusFarbe(art);
    }
    return regel;
}

void setzeEigeneRegel(Spielstand& s, const EigeneRegel& regel) {
    for (int art = 0; art < 3; ++art) {
        s.setModus(art, regel.punkte[static_cast<std::size_t>(art)]);
        s.setFarbeMod(art, regel.farben[static_cast<std::size_t>(art)]);
    }
}

void waehleRegel(Spielstand& s, i16 modus) {
    if (modus == ModusEigeneRegel) {
        s.Modus = modus;
        return;
    }
    const FesteRegel& regel = FesteRegeln[pruefeIndex(modus, FesteRegeln.size())];
    s.Modus = modus;
    for (int art = 0; art < 3; ++art) {
        s.ModusPunkte[art] = regel.punkte[art];
        s.ModusFarbe[art] = regel.farben[art];
    }
}

}  // namespace kalimbo
