#include "csvzeilen.h"

#include "state/cp1252.h"
#include "state/utf8.h"

namespace kalimbo {

namespace {

constexpr std::string_view Bom = "\xEF\xBB\xBF";

std::string ohneRand(const std::string& s) {
    const auto anfang = s.find_first_not_of(" \t");
    if (anfang == std::string::npos) return {};
    return s.substr(anfang, s.find_last_not_of(" \t") - anfang + 1);
}

bool istUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();)
        if (!naechstesZeichen(text, i)) return false;
    return true;
}

}  // namespace

std::vector<CsvZeile> csvZeilen(std::string_view text) {
    if (text.starts_with(Bom)) text.remove_prefix(Bom.size());
    std::vector<CsvZeile> zeilen;
    CsvZeile zeile{1, {""}};
    int nummer = 1;
    bool zitat = false;
    auto schliesse = [&] {
        for (auto& feld : zeile.felder)
            feld = ohneRand(feld);
        if (zeile.felder.size() > 1 || !zeile.felder[0].empty()) zeilen.push_back(std::move(zeile));
        zeile = CsvZeile{nummer, {""}};
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\n') ++nummer;
        if (zitat && c == '"' && i + 1 < text.size() && text[i + 1] == '"') {
            zeile.felder.back() += '"';
            ++i;
        } else if (c == '"') {
            zitat = !zitat;
        } else if (zitat) {
            zeile.felder.back() += c;
        } else if (c == ',') {
            zeile.felder.emplace_back();
        } else if (c == '\n') {
            if (zeile.felder.back().ends_with('\r')) zeile.felder.back().pop_back();
            schliesse();
        } else {
            zeile.felder.back() += c;
        }
    }
    if (zeile.felder.back().ends_with('\r')) zeile.felder.back().pop_back();
    schliesse();
    return zeilen;
}

std::string alsUtf8(std::string_view bytes) {
    if (bytes.starts_with(Bom)) bytes.remove_prefix(Bom.size());
    return istUtf8(bytes) ? std::string(bytes) : vonCp1252(bytes);
}

}  // namespace kalimbo
