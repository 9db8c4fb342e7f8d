#include "programmaufruf.h"

#include <string_view>

namespace kalimbo::app {

const char* const Programmhilfe =
    "Aufruf: kalimbo [SPIEL.tip]\n"
    "        kalimbo --pdf AUSGABE.pdf [--spieltag N] [--art auswertung|live|tippabgabe] SPIEL.tip\n"
    "  SPIEL.tip        öffnet das Tippspiel im Fenster (ohne Angabe ein leeres Spiel)\n"
    "  --pdf AUSGABE    schreibt den Bogen eines Spieltags als PDF, ohne Fenster (N ab 1; ohne Angabe\n"
    "                   der letzte ausgewählte Spieltag; ohne --art die Auswertung)\n"
    "  --help, -h       zeigt diese Hilfe\n"
    "  --version        zeigt die Version\n";

Programmaufruf leseProgrammaufruf(int argc, char** argv) {
    Programmaufruf aufruf;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--pdf") return {Programmaufruf::Pdf, {}, {}};
        if (argument == "--help" || argument == "-h") return {Programmaufruf::Hilfe, {}, {}};
        if (argument == "--version") return {Programmaufruf::Version, {}, {}};
        if (argument.starts_with("-"))
            return {Programmaufruf::Falsch, {}, "Unbekannte Option " + std::string(argument) + "."};
        if (!aufruf.spiel.empty())
            return {Programmaufruf::Falsch, {}, "Es kann nur ein Tippspiel geöffnet werden."};
        aufruf.spiel = argument;
    }
    return aufruf;
}

}  // namespace kalimbo::app
