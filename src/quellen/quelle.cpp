#include "quelle.h"

#include <algorithm>

#include "csvzeilen.h"
#include "state/dateilesen.h"
#include "state/fehler.h"

namespace kalimbo {

namespace {

std::string zweistellig(int zahl) {
    return (zahl < 10 ? "0" : "") + std::to_string(zahl);
}

// A football-data.co.uk file names its columns of teams and goals in the header line.
bool istFootballData(std::string_view bytes) {
    const auto zeilen = csvZeilen(bytes.substr(0, bytes.find('\n')));
    if (zeilen.empty()) return false;
    const auto& kopf = zeilen[0].felder;
    auto hat = [&](const char* spalte) { return std::find(kopf.begin(), kopf.end(), spalte) != kopf.end(); };
    return (hat("HomeTeam") && hat("FTHG")) || (hat("Home") && hat("HG"));
}

// "de1-2005-06.matches.csv" -> "de1-2005-06".
std::string ligaAusDateiname(const std::string& datei) {
    std::string name = std::filesystem::path(datei).stem().string();
    const std::string zusatz = ".matches";
    if (name.size() > zusatz.size() && name.ends_with(zusatz)) name.resize(name.size() - zusatz.size());
    return name;
}

}  // namespace

std::string datumText(const Datum& datum) {
    return zweistellig(datum.tag) + "." + zweistellig(datum.monat) + "." + std::to_string(datum.jahr);
}

std::optional<Datum> gueltigesDatum(int jahr, int monat, int tag) {
    static constexpr int Tage[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (jahr < 1 || jahr > 9999 || monat < 1 || monat > 12 || tag < 1) return std::nullopt;
    const bool schaltjahr = (jahr % 4 == 0 && jahr % 100 != 0) || jahr % 400 == 0;
    if (tag > Tage[monat - 1] + (monat == 2 && schaltjahr ? 1 : 0)) return std::nullopt;
    return Datum{jahr, monat, tag};
}

std::vector<std::string> Quelle::mannschaften() const {
    std::vector<std::string> namen;
    for (const QuellSpiel& s : spiele)
        for (const std::string* name : {&s.heim, &s.gast})
            if (std::find(namen.begin(), namen.end(), *name) == namen.end()) namen.push_back(*name);
    return namen;
}

Quelle leseQuelle(std::string_view bytes, const std::string& datei) {
    Quelle quelle;
    try {
        const auto erstes = bytes.find_first_not_of(" \t\r\n", bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0);
        if (erstes == std::string_view::npos) throw Dateifehler("Die Datei ist leer.");
        if (bytes[erstes] == '{' || bytes[erstes] == '[')
            quelle = leseOpenfootball(bytes);
        else if (istFootballData(bytes))
            quelle = leseFootballData(bytes);
        else
            quelle = leseSaisontabelle(bytes);
    } catch (const Dateifehler& e) {
        throw Dateifehler(datei.empty() ? e.what() : datei + ": " + e.what());
    }
    quelle.datei = datei;
    if (quelle.liga.empty()) quelle.liga = ligaAusDateiname(datei);
    return quelle;
}

Quelle ladeQuelle(const std::filesystem::path& pfad) {
    const Dateianfang anfang = leseDateianfang(pfad, GroessteSaisondatei);
    if (anfang.mehr)
        throw Dateifehler(pfad.string() + ": Die Datei ist größer als jede Saison (höchstens " +
                          std::to_string(GroessteSaisondatei / (1024 * 1024)) + " MiB).");
    return leseQuelle(anfang.bytes, pfad.string());
}

}  // namespace kalimbo
