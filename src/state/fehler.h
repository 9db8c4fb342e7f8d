#pragma once

#include <stdexcept>
#include <string>

namespace kalimbo {

// Runtime error of a game operation: an overflowing 16-bit figure, an index outside its array,
// a division by zero. Carries the classic error number and its German text; the windows show
// both at the event boundary and keep running.
class Laufzeitfehler : public std::runtime_error {
  public:
    enum Code : int { Ueberlauf = 6, Index = 9, DivisionDurchNull = 11 };

    explicit Laufzeitfehler(Code code);
    // With a German phrase naming what the error concerns, appended to the text:
    // "Überlauf" + " bei den Gesamtpunkten von Spieler 2 („Bernd“)".
    Laufzeitfehler(Code code, const std::string& wobei);
    Code code() const { return m_code; }

  private:
    Code m_code;
};

// A file that cannot be read as a game, or cannot be written. The message is complete German
// text naming the file and what is wrong; nothing in memory or on disk has been changed.
class Dateifehler : public std::runtime_error {
  public:
    explicit Dateifehler(const std::string& meldung) : std::runtime_error(meldung) {}
};

// The German reason for an error number of the operating system that reading and writing files
// share (no space, a name too long, a loop of links, ...), as a sentence.
std::string systemgrund(int nummer);

// The German message for any exception that ends an operation: the text of the game's own errors;
// for a lack of memory and for failures of the libraries underneath, whose texts are English,
// a German sentence instead.
std::string deutscheMeldung(const std::exception& e);

}  // namespace kalimbo
