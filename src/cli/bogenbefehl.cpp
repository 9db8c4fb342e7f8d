#include "bogenbefehl.h"

#include <ostream>

#include "aufruf.h"
#include "reports/bogenauftrag.h"
#include "reports/bogenhtml.h"

namespace kalimbo::cli {

int html(const std::vector<std::string>& argumente, std::ostream& aus) {
    const Aufruf a = zerlege(argumente, {"--spieltag", "--art"});
    erwarteWerte(a, 1);
    try {
        aus << bogenAlsHtml(
            erstelleBogen(Bogenauftrag{a.werte[0], a.option("--spieltag"), a.option("--art")}));
    } catch (const FalscheAngabe& f) {
        throw Gebrauchsfehler(f.what());
    }
    return 0;
}

}  // namespace kalimbo::cli
