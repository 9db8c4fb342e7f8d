#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "spielstand.h"

namespace kalimbo {

// The game file: fields 1..22 in fixed order, little-endian, strings as an i16 byte count plus
// Windows-1252 bytes, multi-dimensional arrays with the first index varying fastest. No header.

// Reads a game file. Bytes after the last field are ignored. Throws Dateifehler naming `name`
// when the data end early, a string length is negative, a count lies outside the fixed limits,
// a pairing names a team outside 0..19, or the stream holds more bytes than the largest game file
// can have (every text at 32767 bytes): no more than that is ever read, so an endless source
// cannot fill the memory. Nothing outside the returned value is touched.
Dateiinhalt leseSpieldatei(std::istream& ein, const std::string& name);

// Opens and reads the file at `pfad`; a missing or unreadable file is a Dateifehler too.
Dateiinhalt ladeSpieldatei(const std::filesystem::path& pfad);

// The bytes of a game file. Throws Dateifehler, before producing anything, when a text cannot
// be stored in Windows-1252 or is longer than 32767 bytes.
std::string kodiereSpieldatei(const Dateiinhalt& inhalt);

// Writes the game file to `pfad` through a temporary file in the same folder that replaces the
// target only once it is complete: a failed save leaves an existing file as it was.
void speichereSpieldatei(const std::filesystem::path& pfad, const Dateiinhalt& inhalt);

}  // namespace kalimbo
