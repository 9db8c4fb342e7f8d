#pragma once

#include <string>

namespace kalimbo::app {

// What the command line of the program asks for, read before anything of Qt exists.
struct Programmaufruf {
    enum Art { Fenster, Pdf, Hilfe, Version, Falsch } art = Fenster;
    std::string spiel;    // Fenster: the game file to open, if one is given
    std::string meldung;  // Falsch: what is wrong with the command line
};

Programmaufruf leseProgrammaufruf(int argc, char** argv);

// The program's usage, German, for "--help" and after a wrong command line.
extern const char* const Programmhilfe;

}  // namespace kalimbo::app
