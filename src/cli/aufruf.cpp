#include "aufruf.h"

#include <algorithm>
#include <charconv>

#include "state/spieldatei.h"
#include "tabellen.h"

namespace kalimbo::cli {

Aufruf zerlege(const std::vector<std::string>& argumente, const std::vector<std::string>& mitWert,
               const std::vector<std::string>& schalter) {
    Aufruf a;
    for (std::size_t i = 0; i < argumente.size(); ++i) {
        const std::string& arg = argumente[i];
        if (arg.rfind("--", 0) != 0) {
            a.werte.push_back(arg);
            continue;
        }
        if (std::find(schalter.begin(), schalter.end(), arg) != schalter.end()) {
            a.schalter.insert(arg);
            continue;
        }
        if (std::find(mitWert.begin(), mitWert.end(), arg) == mitWert.end())
            throw Gebrauchsfehler{"Unbekannte Option " + arg + "."};
        if (i + 1 >= argumente.size()) throw Gebrauchsfehler{"Der Option " + arg + " fehlt ihr Wert."};
        a.optionen.emplace(arg, argumente[++i]);
    }
    return a;
}

std::vector<std::string> Aufruf::alle(const std::string& name) const {
    std::vector<std::string> gegeben;
    for (auto [it, ende] = optionen.equal_range(name); it != ende; ++it)
        gegeben.push_back(it->second);
    return gegeben;
}

std::optional<std::string> Aufruf::option(const std::string& name) const {
    const auto wert = optionen.find(name);
    if (wert == optionen.end()) return std::nullopt;
    return wert->second;
}

void erwarteWerte(const Aufruf& a, std::size_t anzahl) {
    if (a.werte.size() != anzahl) throw Gebrauchsfehler{"Falsche Anzahl von Angaben."};
}

int ganzeZahl(const std::string& text, int minimum, int maximum, const std::string& was) {
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc{} || ende != text.data() + text.size() || wert < minimum || wert > maximum)
        throw Gebrauchsfehler{was + " muss eine ganze Zahl von " + std::to_string(minimum) + " bis " +
                              std::to_string(maximum) + " sein, nicht „" + text + "“."};
    return wert;
}

}  // namespace kalimbo::cli
