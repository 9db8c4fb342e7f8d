// The result files of football-data.co.uk: a header naming the columns
// (Div,Date,Time,HomeTeam,AwayTeam,FTHG,FTAG,..., in older files Home,Away,HG,AG), one played
// match a line, dates as dd/mm/yy or dd/mm/yyyy, dozens of odds columns after the results.
#include <algorithm>
#include <charconv>

#include "csvzeilen.h"
#include "quelle.h"
#include "state/fehler.h"

namespace kalimbo {

namespace {

[[noreturn]] void fehlerInZeile(int nummer, const std::string& was) {
    throw Dateifehler("Zeile " + std::to_string(nummer) + ": " + was);
}

// The column named by the first of `namen` the header holds; -1 when it holds none.
int spalte(const std::vector<std::string>& kopf, std::initializer_list<const char*> namen) {
    for (const char* name : namen) {
        const auto it = std::find(kopf.begin(), kopf.end(), name);
        if (it != kopf.end()) return static_cast<int>(it - kopf.begin());
    }
    return -1;
}

// A whole number made of 1..`stellen` digits only.
std::optional<int> ziffern(std::string_view text, std::size_t stellen) {
    int wert = 0;
    if (text.empty() || text.size() > stellen) return std::nullopt;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc() || ende != text.data() + text.size() || wert < 0) return std::nullopt;
    return wert;
}

// "dd/mm/yy" or "dd/mm/yyyy"; two-digit years from 90 on are 1990s (the files start in 1993),
// the others 20yy.
std::optional<Datum> datum(const std::string& text) {
    const std::string_view t = text;
    const auto a = t.find('/');
    const auto b = a == t.npos ? a : t.find('/', a + 1);
    if (b == t.npos) return std::nullopt;
    const auto tag = ziffern(t.substr(0, a), 2);
    const auto monat = ziffern(t.substr(a + 1, b - a - 1), 2);
    const std::string_view jahrText = t.substr(b + 1);
    auto jahr = ziffern(jahrText, 4);
    if (!tag || !monat || !jahr || (jahrText.size() != 2 && jahrText.size() != 4)) return std::nullopt;
    if (jahrText.size() == 2) *jahr += *jahr >= 90 ? 1900 : 2000;
    return gueltigesDatum(*jahr, *monat, *tag);
}

}  // namespace

Quelle leseFootballData(std::string_view bytes) {
    const std::vector<CsvZeile> zeilen = csvZeilen(alsUtf8(bytes));
    if (zeilen.empty()) throw Dateifehler("Die Datei enthält keine Zeilen.");
    const auto& kopf = zeilen[0].felder;
    const int heim = spalte(kopf, {"HomeTeam", "Home"}), gast = spalte(kopf, {"AwayTeam", "Away"});
    const int heimTore = spalte(kopf, {"FTHG", "HG"}), gastTore = spalte(kopf, {"FTAG", "AG"});
    const int tag = spalte(kopf, {"Date"});
    if (heim < 0 || gast < 0 || heimTore < 0 || gastTore < 0)
        fehlerInZeile(
            zeilen[0].nummer,
            "Der Kopfzeile fehlen die Spalten der Mannschaften und Tore (HomeTeam,AwayTeam,FTHG,FTAG "
            "oder Home,Away,HG,AG).");
    Quelle quelle;
    quelle.format = Quellformat::FootballData;
    for (std::size_t i = 1; i < zeilen.size(); ++i) {
        const auto& f = zeilen[i].felder;
        const int nummer = zeilen[i].nummer;
        if (std::all_of(f.begin(), f.end(), [](const std::string& feld) { return feld.empty(); })) continue;
        if (f.size() < kopf.size())
            fehlerInZeile(nummer, "Die Zeile hat " + std::to_string(f.size()) + " Felder, die Kopfzeile " +
                                      std::to_string(kopf.size()) + ".");
        QuellSpiel s{nummer, f[heim], f[gast], std::nullopt, std::nullopt, std::nullopt};
        if (s.heim.empty() || s.gast.empty()) fehlerInZeile(nummer, "Der Name einer Mannschaft fehlt.");
        if (s.heim == s.gast) fehlerInZeile(nummer, "„" + s.heim + "“ kann nicht gegen sich selbst spielen.");
        if (!f[heimTore].empty() || !f[gastTore].empty()) {
            const auto h = ziffern(f[heimTore], 2), g = ziffern(f[gastTore], 2);
            if (!h || !g)
                fehlerInZeile(nummer, "„" + f[heimTore] + ":" + f[gastTore] +
                                          "“ ist kein Ergebnis (Tore sind ganze Zahlen von 0 bis 99).");
            s.tore = {{static_cast<i16>(*h), static_cast<i16>(*g)}};
        }
        if (tag >= 0 && !f[tag].empty()) {
            s.datum = datum(f[tag]);
            if (!s.datum)
                fehlerInZeile(nummer, "„" + f[tag] + "“ ist kein Datum (TT/MM/JJ oder TT/MM/JJJJ).");
        }
        quelle.spiele.push_back(std::move(s));
    }
    return quelle;
}

}  // namespace kalimbo
