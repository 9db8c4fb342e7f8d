#include "fehler.h"

namespace kalimbo {

namespace {
const char* text(Laufzeitfehler::Code code) {
    switch (code) {
        case Laufzeitfehler::Ueberlauf:
            return "Überlauf";
        case Laufzeitfehler::Index:
            return "Index außerhalb des gültigen Bereichs";
        case Laufzeitfehler::DivisionDurchNull:
            return "Division durch Null";
    }
    return "Unbekannter Fehler";
}
}  // namespace

Laufzeitfehler::Laufzeitfehler(Code code) : std::runtime_error(text(code)), m_code(code) {}

}  // namespace kalimbo
