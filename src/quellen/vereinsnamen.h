#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kalimbo {

// A name folded for comparison: lower case, accents and umlauts as their base letter (ü = ue =
// u, ß = ss), apostrophes dropped, other punctuation as a space; words separated by single
// spaces. "1. FC Köln" gives "1 fc koln", "FC Koeln" gives "fc koln".
std::string gefaltet(std::string_view name);

// The folded name without the words that so many club names carry that they tell nothing (FC, 1.,
// SV, VfB, ...) and without numbers such as a founding year, unless nothing else is left:
// "1. FC Köln" and "FC Koeln" both give "koln".
std::string namenskern(std::string_view name);

// The clubs lists of openfootball: every club with its canonical name and its other names.
class Vereinsnamen {
  public:
    // Adds the clubs of one list: a club begins with its canonical name before the first comma
    // ("Bayern München, 1900, @ Allianz Arena, München"), lines beginning with "|" give other
    // names separated by "|" (a tag such as " [en]" is dropped), "ii)" begins the reserve team,
    // "#" begins a comment, "=" a heading, other indented lines are addresses.
    void lies(std::string_view liste);
    // The clubs one of whose names folds (`gefaltet`) as `name` does, as numbers in the order read.
    std::set<int> vereine(std::string_view name) const;

  private:
    std::map<std::string, std::set<int>> m_vereine;  // folded name -> clubs
    int m_anzahl = 0;
};

// Every list (*.txt) in `ordner`, read in the order of their names; none when the folder does not
// exist. Throws Dateifehler when a list cannot be read or exceeds 1 MiB.
Vereinsnamen ladeVereinsnamen(const std::filesystem::path& ordner);

// The folder of the clubs lists: $KALIMBO_VEREINE when set; else share/kalimbo/vereine beside
// the program's folder (as installed); else data/vereine of the source tree it was built from.
std::filesystem::path vereinsordner();

}  // namespace kalimbo
