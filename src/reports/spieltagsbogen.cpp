#include "spieltagsbogen.h"

#include <array>
#include <ctime>

namespace kalimbo {

namespace {

struct Artname {
    Bogenart art;
    std::string_view name;   // on the command line
    std::string_view titel;  // on the sheet
};

constexpr std::array<Artname, 3> Arten{{
    {Bogenart::Auswertung, "auswertung", "Auswertung"},
    {Bogenart::Live, "live", "Live-Spiel"},
    {Bogenart::Tippabgabe, "tippabgabe", "Tippabgabe"},
}};

const Artname& zuArt(Bogenart art) {
    return Arten[static_cast<std::size_t>(art)];
}

std::string ergebnisText(i16 heim, i16 gast) {
    return std::to_string(heim) + ':' + std::to_string(gast);
}

std::vector<Spieltagsbogen::Summe> summen(const Spielstand& s, int spieltag,
                                          const std::vector<int>& spieler) {
    std::vector<Spieltagsbogen::Summe> zeilen{
        {"Punkte Spieltag", {}}, {"Platz Spieltag", {}}, {"Punkte gesamt", {}}, {"Platz gesamt", {}}};
    for (const int p : spieler) {
        const SpielerAuswertung& a = s.Auswertung[p];
        zeilen[0].werte.push_back(std::to_string(a.SpieltagPunkte[spieltag]));
        zeilen[1].werte.push_back(std::to_string(a.SptgPlatz[spieltag] + 1));
        zeilen[2].werte.push_back(std::to_string(a.GesamtPunkte));
        zeilen[3].werte.push_back(std::to_string(a.Platz + 1));
    }
    return zeilen;
}

}  // namespace

std::string_view bogenartName(Bogenart art) {
    return zuArt(art).name;
}

std::optional<Bogenart> bogenartAusName(std::string_view name) {
    for (const Artname& a : Arten)
        if (a.name == name) return a.art;
    return std::nullopt;
}

Spieltagsbogen erstelleBogen(const Spielstand& s, int spieltag, Bogenart art, std::string datum) {
    if (spieltag > s.AnzSpieltage) throw Laufzeitfehler(Laufzeitfehler::Index);
    pruefeIndex(spieltag, MaxSpieltage);
    Spieltagsbogen bogen;
    bogen.liga = s.getLigaInfo();
    bogen.titel = "Spieltag " + std::to_string(spieltag + 1);
    bogen.art = zuArt(art).titel;
    bogen.fussnote = s.getFussnote();
    bogen.datum = std::move(datum);

    std::vector<int> teilnehmer;
    for (int p = 0; p < MaxSpieler; ++p)
        if (s.getTeilnehmer(p) == 1) {
            teilnehmer.push_back(p);
            bogen.spieler.push_back({s.getSpielerName(p), druckfarbe(s.getSpielerFarbe(p))});
        }
    for (int k = 0; k <= s.AnzSpiele; ++k) {
        Spieltagsbogen::Spiel spiel;
        spiel.heim = s.getTeamName(s.getPaarung(spieltag, k, 0));
        spiel.gast = s.getTeamName(s.getPaarung(spieltag, k, 1));
        if (art == Bogenart::Auswertung)
            spiel.ergebnis.text = ergebnisText(s.getErgebnis(spieltag, k, 0), s.getErgebnis(spieltag, k, 1));
        for (const int p : teilnehmer) {
            Bogenzelle& tipp = spiel.tipps.emplace_back();
            if (art != Bogenart::Tippabgabe)
                tipp.text = ergebnisText(s.getTipp(p, spieltag, k, 0), s.getTipp(p, spieltag, k, 1));
            if (art == Bogenart::Auswertung) tipp.hintergrund = druckfarbe(s.getSpielFarbe(p, spieltag, k));
        }
        bogen.spiele.push_back(std::move(spiel));
    }
    if (art == Bogenart::Auswertung) bogen.summen = summen(s, spieltag, teilnehmer);
    return bogen;
}

std::string heutigesDatum() {
    const std::time_t jetzt = std::time(nullptr);
    std::tm zeit{};
    localtime_r(&jetzt, &zeit);
    char text[16];
    std::strftime(text, sizeof text, "%d.%m.%Y", &zeit);
    return text;
}

}  // namespace kalimbo
