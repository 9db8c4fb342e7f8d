#include "beispielspiel.h"

#include <array>
#include <random>

#include "scoring/regeln.h"

namespace kalimbo::beispiel {

namespace {

using Tipp = std::array<i16, 2>;

// Typical tips of each tendency: home win, draw, away win.
const std::array<std::vector<Tipp>, 3> TypischeTipps{{
    {{1, 0}, {2, 0}, {2, 1}, {3, 1}, {3, 0}, {1, 0}, {2, 1}},
    {{0, 0}, {1, 1}, {1, 1}, {2, 2}},
    {{0, 1}, {1, 2}, {0, 2}, {1, 3}, {0, 1}},
}};

int tendenz(i16 heim, i16 gast) {
    return heim > gast ? 0 : heim == gast ? 1 : 2;
}

// std::mt19937's sequence is fixed by the standard; the distributions are not, so numbers are
// drawn with plain modulo to keep the sample games identical on every machine.
class Wuerfel {
  public:
    explicit Wuerfel(std::uint32_t startwert) : m_zufall(startwert) {}
    int bis(int n) { return static_cast<int>(m_zufall() % static_cast<std::uint32_t>(n)); }

  private:
    std::mt19937 m_zufall;
};

Tipp tippe(Wuerfel& w, i16 heim, i16 gast, int trefferquote) {
    const int wurf = w.bis(100);
    if (wurf < trefferquote / 4) return {heim, gast};
    const int t = wurf < trefferquote ? tendenz(heim, gast) : w.bis(3);
    const auto& auswahl = TypischeTipps[static_cast<std::size_t>(t)];
    return auswahl[static_cast<std::size_t>(w.bis(static_cast<int>(auswahl.size())))];
}

}  // namespace

const std::vector<Vorgabe>& vorgaben() {
    static const std::vector<Vorgabe> alle{
        {"de1-2005-06",
         "bundesliga-2005-06.tip",
         "1. Bundesliga 2005/06",
         {"Jürgen", "Bärbel", "Özlem", "Timo", "Grete"},
         {58, 64, 52, 55, 47},
         25,
         2,
         2005},
        {"en1-2010-11",
         "premier-league-2010-11.tip",
         "Premier League 2010/11",
         {"Käthe", "Björn", "Lütfiye", "Anaïs", "Sören", "Maik"},
         {60, 54, 57, 50, 62, 45},
         30,
         1,
         2010},
    };
    return alle;
}

Dateiinhalt baue(const Dateiinhalt& saison, const Vorgabe& v) {
    Dateiinhalt d = saison;
    d.LigaInfo[0] = v.liga;
    Wuerfel wuerfel(v.startwert);
    for (int p = 0; p < MaxSpieler; ++p) {
        const bool spielt = p < static_cast<int>(v.spieler.size());
        d.Spielername[p] = spielt ? v.spieler[static_cast<std::size_t>(p)] : "";
        d.Teilnehmer[p] = spielt ? 1 : 0;
        if (!spielt) continue;
        for (int tag = 0; tag <= d.AnzSpieltage; ++tag)
            for (int k = 0; k <= d.AnzSpiele; ++k) {
                const auto& e = saison.ErgebnisDatei[tag][k];
                const Tipp t = tippe(wuerfel, e[0], e[1], v.trefferquote[static_cast<std::size_t>(p)]);
                d.TippDatei[p][tag][k] = {{t[0], t[1]}};
            }
    }
    const int aktuell = v.aktuellerSpieltag - 1;
    for (int tag = 0; tag < MaxSpieltage; ++tag) {
        d.SptgAuswerten[tag] = tag <= aktuell ? 1 : 0;
        if (tag > aktuell) d.ErgebnisDatei[tag] = {};
    }
    d.AktSpieltagGlobal = static_cast<i16>(aktuell);
    d.SonntagSpiele = {{static_cast<i16>(d.AnzSpiele - 1), d.AnzSpiele}};
    const FesteRegel& regel = FesteRegeln[static_cast<std::size_t>(v.modus)];
    d.Modus = v.modus;
    for (int art = 0; art < 3; ++art) {
        d.ModusPunkte[art] = regel.punkte[static_cast<std::size_t>(art)];
        d.ModusFarbe[art] = regel.farben[static_cast<std::size_t>(art)];
    }
    return d;
}

}  // namespace kalimbo::beispiel
