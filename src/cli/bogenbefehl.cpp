#include "bogenbefehl.h"

#include <ostream>

#include "aufruf.h"
#include "reports/bogenauftrag.h"
#include "reports/bogenhtml.h"

namespace kalimbo::cli {

namespace {

std::optional<std::string> option(const Aufruf& a, const std::string& name) {
    const auto wert = a.optionen.find(name);
    if (wert == a.optionen.end()) return std::nullopt;
    return wert->second;
}

}  // namespace

int html(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Aufruf a = zerlege(argumente, {"--spieltag", "--art"});
    erwarteWerte(a, 1);
    try {
        aus << bogenAlsHtml(
            erstelleBogen(Bogenauftrag{a.werte[0], option(a, "--spieltag"), option(a, "--art")}));
    } catch (const FalscheAngabe& f) {
        throw Gebrauchsfehler(f.what());
    }
    return 0;
}

}  // namespace kalimbo::cli
