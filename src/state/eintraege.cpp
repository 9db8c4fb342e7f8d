#include "eintraege.h"

#include "zahltext.h"

namespace kalimbo {

bool uebernimmEintraege(Spielstand& spiel, const Spieltagseintraege& e) {
    const int tag = spiel.AktSpieltag;
    Feld<Feld<i16, 2>, MaxSpiele> ergebnis = spiel.Ergebnis[tag];
    Feld<Feld<Feld<i16, 2>, MaxSpiele>, MaxSpieler> tipp;
    for (int p = 0; p < MaxSpieler; ++p)
        tipp[p] = spiel.Tipp[p][tag];

    for (int k = 0; k <= spiel.AnzSpiele; ++k)
        ergebnis[k] = {{zahlAusText(e.heimErgebnis[static_cast<std::size_t>(k)]),
                        zahlAusText(e.ausErgebnis[static_cast<std::size_t>(k)])}};
    for (std::size_t i = 0; i < e.heimTipp.size(); ++i) {
        auto& t = tipp[static_cast<int>(i / MaxSpiele)][static_cast<int>(i % MaxSpiele)];
        if (e.heimTipp[i] != "X") t[0] = zahlAusText(e.heimTipp[i]);
        t[1] = zahlAusText(e.ausTipp[i]);
    }

    bool geaendert = spiel.Ergebnis[tag] != ergebnis;
    spiel.Ergebnis[tag] = ergebnis;
    for (int p = 0; p < MaxSpieler; ++p) {
        geaendert = geaendert || spiel.Tipp[p][tag] != tipp[p];
        spiel.Tipp[p][tag] = tipp[p];
    }
    return geaendert;
}

void zaehleTor(Spieltagseintraege& eintraege, int spiel, int seite) {
    auto& box = (seite == 0 ? eintraege.heimErgebnis : eintraege.ausErgebnis)[pruefeIndex(spiel, MaxSpiele)];
    box = std::to_string(plus16(zahlAusText(box), 1));
}

void uebernimmAktuellenSpieltag(Spielstand& spiel, std::string_view aktuell, std::string_view sonntag0,
                                std::string_view sonntag1) {
    const i16 tag = zahlAusText(aktuell);
    const Feld<i16, 2> sonntag{{zahlAusText(sonntag0), zahlAusText(sonntag1)}};
    spiel.AktSpieltagGlobal = tag;
    spiel.SonntagSpiele = sonntag;
}

}  // namespace kalimbo
