#include "fehler.h"

#include <cerrno>
#include <new>

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

Laufzeitfehler::Laufzeitfehler(Code code, const std::string& wobei)
    : std::runtime_error(text(code) + (" " + wobei)), m_code(code) {}

std::string systemgrund(int nummer) {
    switch (nummer) {
        case EROFS:
            return "Der Datenträger ist schreibgeschützt.";
        case ENOSPC:
        case EDQUOT:
            return "Der Datenträger ist voll.";
        case EFBIG:
            return "Die Datei wäre größer, als erlaubt ist.";
        case ENAMETOOLONG:
            return "Der Name ist zu lang.";
        case ELOOP:
            return "Zu viele symbolische Verknüpfungen hintereinander (eine Schleife?).";
        case EIO:
            return "Ein-/Ausgabefehler des Datenträgers.";
        default:
            return "Das Betriebssystem meldet Fehler Nr. " + std::to_string(nummer) + ".";
    }
}

std::string deutscheMeldung(const std::exception& e) {
    if (dynamic_cast<const Laufzeitfehler*>(&e) || dynamic_cast<const Dateifehler*>(&e)) return e.what();
    if (dynamic_cast<const std::bad_alloc*>(&e))
        return "Nicht genug Arbeitsspeicher; der Vorgang wurde abgebrochen.";
    return "Unerwarteter Fehler im Programm; der Vorgang wurde abgebrochen.";
}

}  // namespace kalimbo
