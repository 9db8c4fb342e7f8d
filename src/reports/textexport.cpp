#include "textexport.h"

#include "state/cp1252.h"
#include "state/dateischreiben.h"

namespace kalimbo {

std::string berichtsdatei(std::string_view text, std::string_view fussnote, std::string_view datum,
                          std::string_view zeit) {
    std::string inhalt(text);
    inhalt += "\r\n  - \r\n  ";
    inhalt += fussnote;
    inhalt += " [";
    inhalt += datum;
    inhalt += ", ";
    inhalt += zeit;
    inhalt += "]\r\n";
    return textNachCp1252(inhalt);
}

void speichereBericht(const std::filesystem::path& ziel, std::string_view text, std::string_view fussnote,
                      std::string_view datum, std::string_view zeit) {
    schreibeDateiAtomar(ziel, berichtsdatei(text, fussnote, datum, zeit));
}

}  // namespace kalimbo
