#include "zuordnung.h"

#include <algorithm>
#include <numeric>

namespace kalimbo {

namespace {

// How alike two folded names are: the share of their letter pairs they have in common (Dice), 0..1.
double aehnlichkeit(const std::string& a, const std::string& b) {
    auto paare = [](const std::string& s) {
        std::vector<std::string> p;
        for (std::size_t i = 0; i + 1 < s.size(); ++i)
            p.push_back(s.substr(i, 2));
        std::sort(p.begin(), p.end());
        return p;
    };
    const auto pa = paare(a), pb = paare(b);
    std::vector<std::string> gemeinsam;
    std::set_intersection(pa.begin(), pa.end(), pb.begin(), pb.end(), std::back_inserter(gemeinsam));
    return pa.empty() && pb.empty()
               ? 0.0
               : 2.0 * static_cast<double>(gemeinsam.size()) / static_cast<double>(pa.size() + pb.size());
}

bool gleicherVerein(const std::string& a, const std::string& b, const Vereinsnamen& vereine) {
    const std::set<int> va = vereine.vereine(a), vb = vereine.vereine(b);
    return std::any_of(va.begin(), va.end(), [&](int v) { return vb.count(v) > 0; });
}

// The team of `teams` most like `name`, one of the same club first; -1 for none.
int aehnlichstes(const std::string& name, const std::vector<int>& teams, const Dateiinhalt& spiel,
                 const Vereinsnamen& vereine) {
    int bestes = -1;
    double wert = -1;
    for (const int t : teams) {
        const double w = aehnlichkeit(gefaltet(name), gefaltet(spiel.Teamname[t])) +
                         (gleicherVerein(name, spiel.Teamname[t], vereine) ? 1 : 0);
        if (w > wert) {
            bestes = t;
            wert = w;
        }
    }
    return bestes;
}

}  // namespace

Zuordnung ordneZu(const std::vector<std::string>& namen, const Dateiinhalt& spiel,
                  const Vereinsnamen& vereine, const std::map<std::string, int>& paare) {
    const int anzahl = spiel.AnzTeams + 1;
    Zuordnung z;
    std::vector<bool> vergeben(static_cast<std::size_t>(anzahl));
    for (const std::string& name : namen) {
        const auto paar = paare.find(name);
        int team = paar != paare.end() && paar->second >= 0 && paar->second < anzahl ? paar->second : -1;
        for (int t = 0; team < 0 && t < anzahl; ++t)
            if (spiel.Teamname[t] == name) team = t;
        if (team < 0) continue;
        z.team[name] = team;
        vergeben[static_cast<std::size_t>(team)] = true;
    }

    std::vector<int> frei;
    for (int t = 0; t < anzahl; ++t)
        if (!vergeben[static_cast<std::size_t>(t)]) frei.push_back(t);
    std::map<int, int> gewaehlt;  // team -> how many names fit only it
    for (const std::string& name : namen) {
        if (z.team.count(name)) continue;
        Zuordnung::Offen offen{name, {}, -1};
        for (const int t : frei) {
            const std::string& team = spiel.Teamname[t];
            if (gleicherVerein(name, team, vereine) || namenskern(name) == namenskern(team))
                offen.kandidaten.push_back(t);
        }
        if (offen.kandidaten.size() == 1) ++gewaehlt[offen.kandidaten[0]];
        z.offen.push_back(std::move(offen));
    }

    std::vector<Zuordnung::Offen> offen;
    for (auto& o : z.offen) {
        if (o.kandidaten.size() == 1 && gewaehlt[o.kandidaten[0]] == 1)
            z.team[o.name] = o.kandidaten[0];
        else
            offen.push_back(std::move(o));
    }
    z.offen = std::move(offen);

    std::vector<int> alle(static_cast<std::size_t>(anzahl));
    std::iota(alle.begin(), alle.end(), 0);
    int ohneTeam = 0;
    std::string ohneTeamNamen;
    for (auto& o : z.offen) {
        o.vorschlag = aehnlichstes(o.name, o.kandidaten.empty() ? alle : o.kandidaten, spiel, vereine);
        if (!o.kandidaten.empty()) continue;
        ++ohneTeam;
        ohneTeamNamen += (ohneTeamNamen.empty() ? "„" : ", „") + o.name + "“";
    }
    if (4 * ohneTeam > static_cast<int>(namen.size()))
        z.andereLiga = "Die Datei gehört zu einer anderen Liga: " + std::to_string(ohneTeam) + " ihrer " +
                       std::to_string(namen.size()) +
                       " Mannschaften passen zu keiner Mannschaft des Tippspiels (" + ohneTeamNamen + ").";
    return z;
}

}  // namespace kalimbo
