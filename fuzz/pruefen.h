#pragma once

#include <cstdio>
#include <cstdlib>
#include <istream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "state/fehler.h"

// A property the fuzzed code broke: reported and ended as a crash, which libFuzzer records.
inline void pruefe(bool gilt, const char* was) {
    if (gilt) return;
    std::fprintf(stderr, "verletzt: %s\n", was);
    std::abort();
}

// What the reader `lies` (std::istream& -> value) makes of `bytes`; nothing when it refuses them,
// which it must do with a Dateifehler whose message begins with `ablehnung`.
template <class Lies>
auto angenommen(const std::string& bytes, Lies lies, std::string_view ablehnung)
    -> std::optional<decltype(lies(std::declval<std::istream&>()))> {
    std::istringstream ein(bytes);
    try {
        return lies(ein);
    } catch (const kalimbo::Dateifehler& e) {
        pruefe(std::string_view(e.what()).starts_with(ablehnung), "refused without its German message");
        return std::nullopt;
    }
}

// What a reader accepted must write back to the bytes it read (anything after them aside) and
// read back equal.
template <class Lies, class Wert>
void pruefeRueckweg(const std::string& bytes, const std::string& geschrieben, Lies lies,
                    const Wert& gelesen) {
    pruefe(bytes.compare(0, geschrieben.size(), geschrieben) == 0, "written bytes differ from those read");
    std::istringstream zurueck(geschrieben);
    pruefe(lies(zurueck) == gelesen, "read back differently");
}

// What a reader of fixture lists or result files accepted: two different team names, goals of
// 0..99, rounds from 1, lines from 1 in file order.
template <class Quelle>
void pruefeSpiele(const Quelle& quelle) {
    int zeile = 0;
    for (const auto& s : quelle.spiele) {
        pruefe(!s.heim.empty() && !s.gast.empty() && s.heim != s.gast, "team names empty or equal");
        pruefe(
            !s.tore || ((*s.tore)[0] >= 0 && (*s.tore)[0] <= 99 && (*s.tore)[1] >= 0 && (*s.tore)[1] <= 99),
            "goals outside 0..99");
        pruefe(!s.runde || *s.runde >= 1, "round below 1");
        pruefe(s.zeile >= 1 && s.zeile >= zeile, "lines not ascending");
        zeile = s.zeile;
    }
}
