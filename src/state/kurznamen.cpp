#include "kurznamen.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "utf8.h"

namespace kalimbo {

namespace {

using Zeichen = std::u32string;

Zeichen dekodiere(const std::string& utf8) {
    Zeichen z;
    for (std::size_t i = 0; i < utf8.size();) {
        if (const auto c = naechstesZeichen(utf8, i)) {
            z += *c;
        } else {
            ++i;  // skip a stray byte
        }
    }
    return z;
}

std::string kodiere(const Zeichen& z) {
    std::string s;
    for (char32_t c : z)
        haengeUtf8An(s, c);
    return s;
}

bool istBuchstabe(char32_t c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           (c >= 0xC0 && c <= 0xFF && c != 0xD7 && c != 0xF7);
}
bool istGross(char32_t c) {
    return (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
}
char32_t gross(char32_t c) {
    if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 0x20;
    return c;
}

// Words that tell a team apart: at least three letters, not an abbreviation such as "Bor.",
// "HSV" or "VfB" (a capital after the first letter, or a final dot).
std::vector<Zeichen> kennwoerter(const std::string& name) {
    std::vector<Zeichen> woerter;
    std::istringstream ein(name);
    std::string wort;
    while (ein >> wort) {
        const Zeichen w = dekodiere(wort);
        if (w.empty()) continue;  // nothing but bytes that are not UTF-8
        const bool abkuerzung =
            w.back() == '.' || std::any_of(w.begin() + 1, w.end(), [](char32_t c) { return istGross(c); });
        Zeichen buchstaben;
        for (char32_t c : w)
            if (istBuchstabe(c)) buchstaben += gross(c);
        if (!abkuerzung && buchstaben.size() >= 3) woerter.push_back(buchstaben);
    }
    if (woerter.empty()) {  // nothing distinctive: use all letters of the name
        Zeichen alle;
        for (char32_t c : dekodiere(name))
            if (istBuchstabe(c)) alle += gross(c);
        while (alle.size() < 3)
            alle += 'X';
        woerter.push_back(alle);
    }
    return woerter;
}

// Indices of the teams grouped by the candidate each one currently has.
template <class F>
std::map<Zeichen, std::vector<std::size_t>> gruppen(std::size_t anzahl, F kandidat) {
    std::map<Zeichen, std::vector<std::size_t>> g;
    for (std::size_t i = 0; i < anzahl; ++i)
        g[kandidat(i)].push_back(i);
    return g;
}

// Gives every name that is still not unique, in team order, the first free name made of its first
// letters and a number: "BLA1" … "BLA9", "BL10" … "BL99", "B100" …; never one already in use. The
// names so far are made of letters only, so a numbered one can only meet another numbered one.
void nummeriereDoppelte(std::vector<Zeichen>& kurz) {
    std::map<Zeichen, int> anzahl;
    for (const auto& k : kurz)
        ++anzahl[k];
    std::set<Zeichen> vergeben;
    for (const auto& k : kurz)
        if (anzahl[k] == 1) vergeben.insert(k);
    for (auto& k : kurz) {
        if (anzahl[k] == 1) continue;
        const Zeichen stamm = k.substr(0, 3);
        for (int nummer = 1;; ++nummer) {
            const std::string ziffern = std::to_string(nummer);
            Zeichen kandidat = stamm.substr(0, ziffern.size() < 4 ? 4 - ziffern.size() : 0);
            kandidat.append(ziffern.begin(), ziffern.end());
            if (vergeben.insert(kandidat).second) {
                k = kandidat;
                break;
            }
        }
    }
}

}  // namespace

std::vector<std::string> kurznamen(const std::vector<std::string>& namen) {
    std::vector<std::vector<Zeichen>> woerter;
    for (const auto& n : namen)
        woerter.push_back(kennwoerter(n));
    std::vector<Zeichen> kurz;
    for (const auto& w : woerter)
        kurz.push_back(w[0].substr(0, 3));

    // Each step rewrites only the names that still collide, using more of the team's name.
    auto entzerre = [&](auto schritt) {
        for (auto& [k, teams] : gruppen(kurz.size(), [&](std::size_t i) { return kurz[i]; })) {
            if (teams.size() > 1)
                for (std::size_t i : teams)
                    kurz[i] = schritt(i, teams);
        }
    };
    entzerre([&](std::size_t i, const std::vector<std::size_t>&) {
        return woerter[i].size() > 1 ? woerter[i][0].substr(0, 2) + woerter[i][1][0] : kurz[i];
    });
    entzerre([&](std::size_t i, const std::vector<std::size_t>& teams) {
        // The first letter (after the third) where this name differs from its rivals'.
        const Zeichen& eigen = woerter[i][0];
        for (std::size_t pos = 3; pos < eigen.size(); ++pos) {
            const bool anders = std::all_of(teams.begin(), teams.end(), [&](std::size_t j) {
                return j == i || woerter[j][0].size() <= pos || woerter[j][0][pos] != eigen[pos];
            });
            if (anders) return kurz[i] + eigen[pos];
        }
        return kurz[i];
    });
    nummeriereDoppelte(kurz);

    std::vector<std::string> ergebnis;
    for (const auto& k : kurz)
        ergebnis.push_back(kodiere(k));
    return ergebnis;
}

}  // namespace kalimbo
