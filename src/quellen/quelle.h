#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/zahl16.h"

namespace kalimbo {

// The largest season file read: far more than any season's match list needs, little enough for
// the memory.
constexpr std::size_t GroessteSaisondatei = 8 * 1024 * 1024;

// A calendar date.
struct Datum {
    int jahr = 0;
    int monat = 0;
    int tag = 0;

    friend auto operator<=>(const Datum&, const Datum&) = default;
};

// "13.08.2021".
std::string datumText(const Datum& datum);

// The date of `jahr`, `monat`, `tag`, or nothing when there is no such day.
std::optional<Datum> gueltigesDatum(int jahr, int monat, int tag);

// One match of a fixture list or a result file, as the file gives it.
struct QuellSpiel {
    int zeile = 0;  // the line of the file it starts on, 1-based, for messages
    std::string heim, gast;
    std::optional<std::array<i16, 2>> tore;  // the full-time result; none while not played
    std::optional<Datum> datum;
    std::optional<int> runde;  // the matchday, 1-based; none in a file without rounds
};

enum class Quellformat { Saisontabelle, Openfootball, FootballData };

// What a fixture list or result file holds, whatever its format.
struct Quelle {
    std::string datei;  // names the file in messages; empty for text that came from no file
    Quellformat format = Quellformat::Saisontabelle;
    std::string liga;  // the league named in the file, else the file's name without its extension
    std::vector<QuellSpiel> spiele;

    // The team names in order of first appearance.
    std::vector<std::string> mannschaften() const;
    // "DATEI: " for a message about the file; "" for text from no file.
    std::string vorsatz() const { return datei.empty() ? "" : datei + ": "; }
};

// Reads a fixture list or result file of any of the three formats, told apart by content: a
// football.json of openfootball, a CSV of football-data.co.uk, or the project's own season CSV
// (matchday,home,away,home_goals,away_goals). `datei` names it in messages. Throws Dateifehler
// beginning with "DATEI: " and naming the line when the bytes are empty or do not fit the format.
Quelle leseQuelle(std::string_view bytes, const std::string& datei);

// The same from the file at `pfad`: a regular file of at most GroessteSaisondatei bytes; a folder,
// a device or a pipe is refused at once.
Quelle ladeQuelle(const std::filesystem::path& pfad);

// The readers of the three formats, as leseQuelle uses them. They throw Dateifehler with a
// German message beginning "Zeile N: " where the line is known.
Quelle leseSaisontabelle(std::string_view bytes);
Quelle leseOpenfootball(std::string_view bytes);
Quelle leseFootballData(std::string_view bytes);

}  // namespace kalimbo
