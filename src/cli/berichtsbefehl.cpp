#include "berichtsbefehl.h"

#include <ostream>

#include "scoring/anzeige.h"
#include "state/cp1252.h"

namespace kalimbo::cli {

const std::vector<std::string>& textausgabeSchalter() {
    static const std::vector<std::string> schalter{"--cp1252", "--komma"};
    return schalter;
}

const char* const AusgabeGebrauch =
    "AUSGABE:\n"
    "  --cp1252   in Windows-1252 statt in UTF-8\n"
    "  --komma    mit Dezimalkomma statt Dezimalpunkt\n";

Textausgabe textausgabe(const Aufruf& a) {
    Textausgabe wie;
    wie.cp1252 = a.hat("--cp1252");
    if (a.hat("--komma")) wie.trenner = ",";
    return wie;
}

void gibAus(std::ostream& aus, const std::string& text, const Textausgabe& wie) {
    aus << (wie.cp1252 ? textNachCp1252(text) : text);
}

SpielUndIndex spielUndIndex(const Aufruf& a, int hoechsterIndex, const std::string& was) {
    erwarteWerte(a, 2);
    const int index = ganzeZahl(a.werte[1], 0, hoechsterIndex, was);
    return {ladeWieGezeigt(a.werte[0]), index};
}

int berichtsbefehl(const std::vector<std::string>& argumente, std::ostream& aus, int hoechsterIndex,
                   const std::string& was, const Berichtsbau& bau) {
    const Aufruf a = zerlege(argumente, {}, textausgabeSchalter());
    const Textausgabe wie = textausgabe(a);
    const auto [spiel, index] = spielUndIndex(a, hoechsterIndex, was);
    if (const auto text = bau(spiel, index, wie.trenner)) gibAus(aus, *text, wie);
    return 0;
}

}  // namespace kalimbo::cli
