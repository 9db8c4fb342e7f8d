#include "vereinsnamen.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

#include "state/dateilesen.h"
#include "state/fehler.h"
#include "state/utf8.h"

namespace kalimbo {

namespace fs = std::filesystem;

namespace {

// Base letters of U+00C0..U+00FF ('*' for the two signs among them, × and ÷).
constexpr std::string_view Grundbuchstaben =
    "aaaaaaaceeeeiiiidnooooo*ouuuuytsaaaaaaaceeeeiiiidnooooo*ouuuuyty";

// Words that say only what kind of club it is.
constexpr std::array<std::string_view, 15> Vereinsarten{
    "fc", "afc", "sc", "bsc", "dsc", "sv", "ssv", "tsv", "fsv", "vfb", "vfl", "vfr", "tsg", "bv", "spvgg"};

void faltezeichen(char32_t c, std::string& ziel) {
    if (c >= 'A' && c <= 'Z') c += 'a' - 'A';
    if (c == U'ß') {
        ziel += "ss";
    } else if (c >= 0xC0 && c <= 0xFF && Grundbuchstaben[c - 0xC0] != '*') {
        ziel += Grundbuchstaben[c - 0xC0];
        if (c == U'Æ' || c == U'æ') ziel += 'e';
    } else if (c == '\'' || c == U'’' || c == '`') {
        // M'gladbach = Mgladbach
    } else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c >= 0x100) {
        haengeUtf8An(ziel, c);
    } else {
        ziel += ' ';
    }
}

bool nurZiffern(const std::string& wort) {
    return std::all_of(wort.begin(), wort.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string ohneRand(std::string_view s) {
    const auto anfang = s.find_first_not_of(" \t\r");
    if (anfang == std::string_view::npos) return {};
    return std::string(s.substr(anfang, s.find_last_not_of(" \t\r") - anfang + 1));
}

// "Bayern Munich [en]" -> "Bayern Munich".
std::string ohneSprachmarke(std::string name) {
    if (name.ends_with(']')) {
        if (const auto klammer = name.rfind(" ["); klammer != std::string::npos)
            name = ohneRand(name.substr(0, klammer));
    }
    return name;
}

// The words of the folded name.
std::vector<std::string> woerter(std::string_view name) {
    std::string zeichen;
    for (std::size_t i = 0; i < name.size();) {
        const auto c = naechstesZeichen(name, i);
        if (c)
            faltezeichen(*c, zeichen);
        else
            ++i;
    }
    std::vector<std::string> w;
    std::istringstream ein(zeichen);
    for (std::string wort; ein >> wort;) {
        for (const char* paar : {"ae", "oe", "ue"})
            for (auto pos = wort.find(paar); pos != std::string::npos; pos = wort.find(paar, pos + 1))
                wort.erase(pos + 1, 1);
        w.push_back(wort);
    }
    return w;
}

std::string verbunden(const std::vector<std::string>& woerter) {
    std::string text;
    for (const auto& wort : woerter)
        text += (text.empty() ? "" : " ") + wort;
    return text;
}

}  // namespace

std::string gefaltet(std::string_view name) {
    return verbunden(woerter(name));
}

std::string namenskern(std::string_view name) {
    const std::vector<std::string> alle = woerter(name);
    std::vector<std::string> bedeutend;
    for (const auto& wort : alle)
        if (!nurZiffern(wort) &&
            std::find(Vereinsarten.begin(), Vereinsarten.end(), wort) == Vereinsarten.end())
            bedeutend.push_back(wort);
    return verbunden(bedeutend.empty() ? alle : bedeutend);
}

void Vereinsnamen::lies(std::string_view liste) {
    bool imVerein = false;
    auto nimm = [&](const std::string& name) {
        if (const std::string f = gefaltet(name); !f.empty()) m_vereine[f].insert(m_anzahl - 1);
    };
    for (std::size_t anfang = 0; anfang < liste.size();) {
        const std::size_t ende = std::min(liste.find('\n', anfang), liste.size());
        std::string_view zeile = liste.substr(anfang, ende - anfang);
        anfang = ende + 1;
        zeile = zeile.substr(0, zeile.find('#'));
        const std::string text = ohneRand(zeile);
        if (text.empty() || text[0] == '=') continue;
        if (text[0] == '|') {
            std::istringstream namen(text);
            for (std::string name; std::getline(namen, name, '|');)
                if (imVerein) nimm(ohneSprachmarke(ohneRand(name)));
        } else if (zeile[0] != ' ' && zeile[0] != '\t') {
            ++m_anzahl;
            imVerein = true;
            nimm(ohneSprachmarke(
                ohneRand(std::string_view(text)
                             .substr(text.starts_with("ii)") ? 3 : 0)
                             .substr(0, text.find(',') - (text.starts_with("ii)") ? 3 : 0)))));
        }
    }
}

std::set<int> Vereinsnamen::vereine(std::string_view name) const {
    const auto it = m_vereine.find(gefaltet(name));
    return it == m_vereine.end() ? std::set<int>{} : it->second;
}

Vereinsnamen ladeVereinsnamen(const fs::path& ordner) {
    constexpr std::size_t Hoechstens = 1024 * 1024;
    Vereinsnamen namen;
    std::error_code fehler;
    std::vector<fs::path> listen;
    for (const auto& eintrag : fs::directory_iterator(ordner, fehler))
        if (eintrag.path().extension() == ".txt") listen.push_back(eintrag.path());
    std::sort(listen.begin(), listen.end());
    for (const auto& liste : listen) {
        const Dateianfang text = leseDateianfang(liste, Hoechstens);
        if (text.mehr) throw Dateifehler("Die Namensliste „" + liste.string() + "“ ist größer als 1 MiB.");
        namen.lies(text.bytes);
    }
    return namen;
}

fs::path vereinsordner() {
    if (const char* gesetzt = std::getenv("KALIMBO_VEREINE"); gesetzt && *gesetzt) return gesetzt;
    std::error_code fehler;
    const fs::path installiert =
        fs::read_symlink("/proc/self/exe", fehler).parent_path() / ".." / "share" / "kalimbo" / "vereine";
    if (!fehler && fs::is_directory(installiert, fehler)) return installiert.lexically_normal();
    return KALIMBO_VEREINE_QUELLE;
}

}  // namespace kalimbo
