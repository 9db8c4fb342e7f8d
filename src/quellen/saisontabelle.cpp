// The project's own season CSV: "matchday,home,away,home_goals,away_goals", goals empty for a
// match not yet played.
#include <charconv>

#include "csvzeilen.h"
#include "quelle.h"
#include "state/fehler.h"

namespace kalimbo {

namespace {

[[noreturn]] void fehlerInZeile(int nummer, const std::string& was) {
    throw Dateifehler("Zeile " + std::to_string(nummer) + ": " + was);
}

std::optional<int> ganzzahl(const std::string& s) {
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(s.data(), s.data() + s.size(), wert);
    if (fehler != std::errc() || ende != s.data() + s.size()) return std::nullopt;
    return wert;
}

QuellSpiel leseSpiel(const CsvZeile& zeile) {
    const auto& f = zeile.felder;
    const int nummer = zeile.nummer;
    if (f.size() != 5) {
        fehlerInZeile(nummer,
                      "Es werden 5 Felder erwartet (matchday,home,away,home_goals,away_goals), gefunden " +
                          std::to_string(f.size()) + ".");
    }
    QuellSpiel s{nummer, f[1], f[2], std::nullopt, std::nullopt, ganzzahl(f[0])};
    if (!s.runde || *s.runde < 1) fehlerInZeile(nummer, "„" + f[0] + "“ ist keine gültige Spieltagsnummer.");
    if (s.heim.empty() || s.gast.empty()) fehlerInZeile(nummer, "Der Name einer Mannschaft fehlt.");
    if (s.heim == s.gast) fehlerInZeile(nummer, "„" + s.heim + "“ kann nicht gegen sich selbst spielen.");
    if (f[3].empty() != f[4].empty())
        fehlerInZeile(nummer, "Es sind nur die Tore einer Mannschaft eingetragen.");
    if (!f[3].empty()) {
        const auto heim = ganzzahl(f[3]);
        const auto gast = ganzzahl(f[4]);
        if (!heim || !gast || *heim < 0 || *gast < 0 || *heim > 999 || *gast > 999)
            fehlerInZeile(nummer, "„" + f[3] + ":" + f[4] + "“ ist kein gültiges Ergebnis.");
        s.tore = {{static_cast<i16>(*heim), static_cast<i16>(*gast)}};
    }
    return s;
}

}  // namespace

Quelle leseSaisontabelle(std::string_view bytes) {
    const std::vector<CsvZeile> zeilen = csvZeilen(bytes);
    const std::vector<std::string> kopf{"matchday", "home", "away", "home_goals", "away_goals"};
    if (!zeilen.empty() && zeilen[0].felder != kopf)
        fehlerInZeile(zeilen[0].nummer,
                      "Die Kopfzeile muss „matchday,home,away,home_goals,away_goals“ lauten.");
    Quelle quelle;
    for (std::size_t i = 1; i < zeilen.size(); ++i)
        quelle.spiele.push_back(leseSpiel(zeilen[i]));
    if (quelle.spiele.empty()) throw Dateifehler("Die Saisondatei enthält keine Spiele.");
    return quelle;
}

}  // namespace kalimbo
