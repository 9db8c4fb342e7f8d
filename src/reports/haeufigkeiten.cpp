#include "haeufigkeiten.h"

namespace kalimbo {

namespace {

bool imRaster(i16 tore) {
    return tore >= 0 && tore <= MaxToreImRaster;
}

std::string ergebnisText(i16 heim, i16 gast) {
    return std::to_string(heim) + ':' + std::to_string(gast);
}

std::string anzahlText(std::size_t anzahl, const char* einzahl, const char* mehrzahl) {
    return std::to_string(anzahl) + ' ' + (anzahl == 1 ? einzahl : mehrzahl);
}

void schreibeSpiele(std::string& text, const Spielstand& s, const std::vector<Begegnung>& spiele) {
    for (const Begegnung& b : spiele)
        text += "Spieltag " + std::to_string(b.spieltag + 1) + '\t' + begegnungText(s, b) + '\n';
}

// Mixes `von` and `nach` channel by channel; `anteil` 0 gives `von`, 1 gives `nach`.
Farbe mische(Farbe von, Farbe nach, double anteil) {
    Farbe ergebnis = 0;
    for (int verschiebung = 0; verschiebung <= 16; verschiebung += 8) {
        const int a = (von >> verschiebung) & 0xFF, b = (nach >> verschiebung) & 0xFF;
        const int kanal = a + static_cast<int>((b - a) * anteil + (b >= a ? 0.5 : -0.5));
        ergebnis |= kanal << verschiebung;
    }
    return ergebnis;
}

// The class with the longest match list, the lowest on a tie; -1 when all are empty.
int haeufigste(const Feld<std::vector<Begegnung>, AnzErgebnisklassen>& klassen) {
    int beste = -1;
    std::size_t besteAnzahl = 0;
    for (int k = 0; k < AnzErgebnisklassen; ++k)
        if (klassen[k].size() > besteAnzahl) {
            beste = k;
            besteAnzahl = klassen[k].size();
        }
    return beste;
}

}  // namespace

int ergebnisklasse(i16 heim, i16 gast) {
    if (!imRaster(heim) || !imRaster(gast)) return KlasseAndere;
    return heim * (MaxToreImRaster + 1) + gast;
}

std::string klassenName(int klasse) {
    pruefeIndex(klasse, AnzErgebnisklassen);
    if (klasse == KlasseAndere) return "andere";
    return ergebnisText(static_cast<i16>(klasse / (MaxToreImRaster + 1)),
                        static_cast<i16>(klasse % (MaxToreImRaster + 1)));
}

int Haeufigkeiten::haeufigsterTipp(int spieler) const {
    return haeufigste(tipps[spieler]);
}

int Haeufigkeiten::haeufigstesErgebnis() const {
    return haeufigste(ergebnisse);
}

int Haeufigkeiten::hoechsteAnzahl() const {
    const int klasse = haeufigstesErgebnis();
    return klasse < 0 ? 0 : anzahl(klasse);
}

Haeufigkeiten zaehleHaeufigkeiten(const Spielstand& s) {
    Haeufigkeiten h;
    for (int tag = 0; tag <= s.AnzSpieltage; ++tag) {
        if (s.getSptgAuswerten(tag) != 1) continue;
        for (int spiel = 0; spiel <= s.AnzSpiele; ++spiel) {
            const Begegnung b{tag, spiel};
            const i16 heim = s.getErgebnis(tag, spiel, 0), gast = s.getErgebnis(tag, spiel, 1);
            h.ergebnisse[ergebnisklasse(heim, gast)].push_back(b);
            for (int p = 0; p < MaxSpieler; ++p) {
                const i16 tippHeim = s.getTipp(p, tag, spiel, 0), tippGast = s.getTipp(p, tag, spiel, 1);
                h.tipps[p][ergebnisklasse(tippHeim, tippGast)].push_back(b);
                if (tippHeim == heim && tippGast == gast) ++h.treffer[p];
            }
        }
    }
    return h;
}

std::string begegnungText(const Spielstand& s, const Begegnung& b) {
    return s.getTeamNameKurz(s.getPaarung(b.spieltag, b.spiel, 0)) + " - " +
           s.getTeamNameKurz(s.getPaarung(b.spieltag, b.spiel, 1)) + ' ' +
           ergebnisText(s.getErgebnis(b.spieltag, b.spiel, 0), s.getErgebnis(b.spieltag, b.spiel, 1));
}

std::string spielliste(const Spielstand& s, const Haeufigkeiten& h, int klasse) {
    const auto& ergebnisse = h.ergebnisse[klasse];
    std::string text = klasse == KlasseAndere ? "Andere Ergebnisse" : "Ergebnis " + klassenName(klasse);
    text += ": " + anzahlText(ergebnisse.size(), "Spiel", "Spiele") + '\n';
    schreibeSpiele(text, s, ergebnisse);
    for (int p = 0; p < MaxSpieler; ++p) {
        if (s.getTeilnehmer(p) != 1) continue;
        const auto& getippt = h.tipps[p][klasse];
        text += '\n' + s.getSpielerName(p) + ": " + anzahlText(getippt.size(), "Tipp", "Tipps") + '\n';
        schreibeSpiele(text, s, getippt);
    }
    return text;
}

Farbe schattierung(int anzahl, int hoechste) {
    if (anzahl <= 0 || hoechste <= 0) return Weiss;
    return mische(Weiss, rgb(30, 90, 190), static_cast<double>(anzahl) / hoechste);
}

Farbe schriftfarbeAuf(Farbe hintergrund) {
    const int rot = hintergrund & 0xFF, gruen = (hintergrund >> 8) & 0xFF, blau = (hintergrund >> 16) & 0xFF;
    // Perceived brightness with the usual weights 299/587/114 per mille.
    return rot * 299 + gruen * 587 + blau * 114 >= 128000 ? rgb(0, 0, 0) : Weiss;
}

}  // namespace kalimbo
