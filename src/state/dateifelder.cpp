#include "dateifelder.h"

#include "cp1252.h"

namespace kalimbo::datei {

void Leser::zahl(i16& z) {
    z = static_cast<i16>(static_cast<std::uint16_t>(bytes(2)));
}

void Leser::farbe(Farbe& f) {
    f = static_cast<Farbe>(bytes(4));
}

void Leser::text(std::string& s) {
    i16 laenge = 0;
    zahl(laenge);
    if (laenge < 0) throw Schaden{"ein Text hat die negative Länge " + std::to_string(laenge) + "."};
    pruefeRest(static_cast<std::size_t>(laenge));
    s = vonCp1252(m_daten.substr(m_pos, static_cast<std::size_t>(laenge)));
    m_pos += static_cast<std::size_t>(laenge);
}

void Leser::pruefeRest(std::size_t anzahl) const {
    if (m_daten.size() - m_pos < anzahl) throw DatenEnde{};
}

// Little-endian unsigned value of the next `anzahl` bytes.
std::uint32_t Leser::bytes(std::size_t anzahl) {
    pruefeRest(anzahl);
    std::uint32_t wert = 0;
    for (std::size_t i = 0; i < anzahl; ++i)
        wert |= std::uint32_t{static_cast<unsigned char>(m_daten[m_pos + i])} << (8 * i);
    m_pos += anzahl;
    return wert;
}

void Schreiber::text(const std::string& s) {
    const std::string kodiert = nachCp1252(s);
    if (kodiert.size() > 32767)
        throw Dateifehler("Der Text „" + s.substr(0, 40) + "…“ ist zu lang für eine Tippspiel-Datei.");
    zahl(static_cast<i16>(kodiert.size()));
    m_bytes += kodiert;
}

void Schreiber::bytes(std::uint32_t wert, std::size_t anzahl) {
    for (std::size_t i = 0; i < anzahl; ++i)
        m_bytes += static_cast<char>((wert >> (8 * i)) & 0xFF);
}

}  // namespace kalimbo::datei
