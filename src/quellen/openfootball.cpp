// The football.json files of openfootball: {"name": ..., "matches": [{"round": "Matchday 1",
// "date": "2021-08-13", "team1": ..., "team2": ..., "score": {"ft": [1, 1]}}, ...]}. A match not
// yet played has no score, an empty one, or no "ft".
#include <algorithm>
#include <charconv>
#include <iterator>
#include <nlohmann/json.hpp>

#include "quelle.h"
#include "state/fehler.h"

namespace kalimbo {

namespace {

using json = nlohmann::json;

[[noreturn]] void fehlerInZeile(int nummer, const std::string& was) {
    throw Dateifehler("Zeile " + std::to_string(nummer) + ": " + was);
}

// Hands the bytes to the parser and remembers the last one it read, so that each match can be
// named by the line its object starts on.
class Lesezeiger {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Lesezeiger(const char* zeiger, const char** gelesen) : m_zeiger(zeiger), m_gelesen(gelesen) {}
    reference operator*() const {
        *m_gelesen = m_zeiger;
        return *m_zeiger;
    }
    Lesezeiger& operator++() {
        ++m_zeiger;
        return *this;
    }
    Lesezeiger operator++(int) {
        Lesezeiger vorher = *this;
        ++m_zeiger;
        return vorher;
    }
    bool operator==(const Lesezeiger& andere) const { return m_zeiger == andere.m_zeiger; }

  private:
    const char* m_zeiger;
    const char** m_gelesen;
};

int zeileBei(std::string_view bytes, std::size_t stelle) {
    return 1 + static_cast<int>(
                   std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(stelle), '\n'));
}

// The JSON document and the line on which each element of its "matches" starts (the parser's
// callback sees the elements at depth 2, after the key of the top-level object).
std::pair<json, std::vector<int>> parse(std::string_view bytes) {
    const char* gelesen = bytes.data();
    std::vector<int> zeilen;
    std::string schluessel;
    const char* bisher = bytes.data();
    int zeile = 1;
    auto merke = [&](int tiefe, json::parse_event_t ereignis, json& wert) {
        if (tiefe == 1 && ereignis == json::parse_event_t::key) {
            schluessel = wert.get<std::string>();
            if (schluessel == "matches") zeilen.clear();  // the last of two lists counts
        }
        const bool anfang = ereignis == json::parse_event_t::object_start ||
                            ereignis == json::parse_event_t::array_start ||
                            ereignis == json::parse_event_t::value;
        if (tiefe == 2 && anfang && schluessel == "matches") {
            zeile += static_cast<int>(std::count(bisher, gelesen, '\n'));
            bisher = gelesen;
            zeilen.push_back(zeile);
        }
        return true;
    };
    try {
        json dokument = json::parse(Lesezeiger(bytes.data(), &gelesen),
                                    Lesezeiger(bytes.data() + bytes.size(), &gelesen), merke);
        return {std::move(dokument), std::move(zeilen)};
    } catch (const json::parse_error& e) {
        if (std::string_view(e.what()).find("unexpected end of input") != std::string_view::npos)
            fehlerInZeile(zeileBei(bytes, bytes.size()),
                          "Die JSON-Daten brechen mitten in einem Wert ab; die Datei ist unvollständig.");
        const std::size_t stelle = e.byte == 0 ? 0 : e.byte - 1;
        const std::size_t zeilenanfang = bytes.rfind('\n', stelle);
        const std::size_t zeichen =
            zeilenanfang == std::string_view::npos ? stelle + 1 : stelle - zeilenanfang;
        fehlerInZeile(zeileBei(bytes, stelle), "Zeichen " + std::to_string(zeichen) +
                                                   ": Hier sind die Daten kein gültiges JSON (in UTF-8).");
    }
}

const json* feld(const json& objekt, const char* name) {
    const auto it = objekt.find(name);
    return it == objekt.end() || it->is_null() ? nullptr : &*it;
}

std::string mannschaft(const json& spiel, const char* name, int zeile) {
    const json* wert = feld(spiel, name);
    if (!wert) fehlerInZeile(zeile, std::string("Dem Spiel fehlt das Feld „") + name + "“.");
    if (!wert->is_string() || wert->get<std::string>().empty())
        fehlerInZeile(zeile, std::string("„") + name + "“ ist kein Mannschaftsname.");
    return wert->get<std::string>();
}

// The number in a round's name, whatever its language: "Matchday 3", "3. Spieltag".
std::optional<int> runde(const json& spiel) {
    const json* wert = feld(spiel, "round");
    if (!wert || !wert->is_string()) return std::nullopt;
    const std::string& text = wert->get_ref<const std::string&>();
    const auto ziffer = text.find_first_of("0123456789");
    if (ziffer == std::string::npos) return std::nullopt;
    int nummer = 0;
    const auto [ende, fehler] = std::from_chars(text.data() + ziffer, text.data() + text.size(), nummer);
    if (fehler != std::errc() || nummer < 1) return std::nullopt;
    return nummer;
}

std::optional<Datum> datum(const json& spiel, int zeile) {
    const json* wert = feld(spiel, "date");
    if (!wert) return std::nullopt;
    const std::string text = wert->is_string() ? wert->get<std::string>() : wert->dump();
    int teile[3] = {};
    const char* p = text.data();
    const char* ende = text.data() + text.size();
    bool form = text.size() == 10 && text[4] == '-' && text[7] == '-';
    for (int i = 0; form && i < 3; ++i) {
        const auto [weiter, fehler] = std::from_chars(p, ende, teile[i]);
        form = fehler == std::errc() && weiter == p + (i == 0 ? 4 : 2);
        p = weiter + 1;
    }
    const auto d = form ? gueltigesDatum(teile[0], teile[1], teile[2]) : std::nullopt;
    if (!d) fehlerInZeile(zeile, "„" + text + "“ ist kein Datum (JJJJ-MM-TT).");
    return d;
}

std::optional<std::array<i16, 2>> tore(const json& spiel, int zeile) {
    const json* ergebnis = feld(spiel, "score");
    if (!ergebnis) return std::nullopt;
    if (!ergebnis->is_object()) fehlerInZeile(zeile, "„score“ ist kein Objekt.");
    const json* ft = feld(*ergebnis, "ft");
    if (!ft) return std::nullopt;
    auto tor = [](const json& t) {
        return t.is_number_integer() && t.get<std::int64_t>() >= 0 && t.get<std::int64_t>() <= 99;
    };
    if (!ft->is_array() || ft->size() != 2 || !tor((*ft)[0]) || !tor((*ft)[1]))
        fehlerInZeile(zeile,
                      "„" + ft->dump() + "“ ist kein Ergebnis (zwei Tore, ganze Zahlen von 0 bis 99).");
    return std::array<i16, 2>{{(*ft)[0].get<i16>(), (*ft)[1].get<i16>()}};
}

}  // namespace

Quelle leseOpenfootball(std::string_view bytes) {
    const auto [dokument, zeilen] = parse(bytes);
    const json* spiele = dokument.is_object() ? feld(dokument, "matches") : nullptr;
    if (!spiele || !spiele->is_array())
        throw Dateifehler("Der Datei fehlt die Liste der Spiele („matches“).");
    Quelle quelle;
    quelle.format = Quellformat::Openfootball;
    if (const json* name = feld(dokument, "name"); name && name->is_string())
        quelle.liga = name->get<std::string>();
    for (std::size_t i = 0; i < spiele->size(); ++i) {
        const json& spiel = (*spiele)[i];
        const int zeile = i < zeilen.size() ? zeilen[i] : 0;
        if (!spiel.is_object())
            fehlerInZeile(zeile, "In der Liste „matches“ steht etwas anderes als ein Spiel.");
        QuellSpiel s{zeile,
                     mannschaft(spiel, "team1", zeile),
                     mannschaft(spiel, "team2", zeile),
                     tore(spiel, zeile),
                     datum(spiel, zeile),
                     runde(spiel)};
        if (s.heim == s.gast) fehlerInZeile(zeile, "„" + s.heim + "“ kann nicht gegen sich selbst spielen.");
        quelle.spiele.push_back(std::move(s));
    }
    return quelle;
}

}  // namespace kalimbo
