#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace kalimbo::app {

// kalimbo --pdf AUSGABE.pdf [--spieltag N] [--art auswertung|live|tippabgabe] SPIEL.tip: writes the
// sheet of matchday N (1-based, default the last selected one) of the game as the window shows it
// as a one-page PDF, without any window. Needs a running QGuiApplication. Every error, wrong use
// included, gives a German message on `fehler` and 1; the output file is then left as it was.
// Returns 0 on success.
int schreibePdf(const std::vector<std::string>& argumente, std::ostream& fehler);

// The whole program for a --pdf command line: chooses the offscreen platform before the
// application exists, so that no display is needed, and runs schreibePdf.
int pdfProgramm(int argc, char** argv);

}  // namespace kalimbo::app
