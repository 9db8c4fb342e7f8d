#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "spielstand.h"

namespace kalimbo {

// The ten coach-change periods of a game.
using Trainerwechseldaten = decltype(Dateiinhalt::Trainerwechsel);

// A coach-change file holds, from its first byte, exactly what a game file's last field holds:
// ten records of i16 Aktiv, string Name (i16 byte count and Windows-1252 bytes), i16 VonSpieltag,
// i16 BisSpieltag. Any file is read this way; bytes after the tenth record are ignored unread.

// Reads the ten records. Throws Dateifehler naming `name` when the data end inside the records,
// a name has a negative length, or an active record names a matchday index outside 0..37
// (BisSpieltag 99, "up to the current matchday", is allowed). Inactive records are taken as they
// are: they are neither shown nor selectable.
Trainerwechseldaten leseTrainerdatei(std::istream& ein, const std::string& name);

// Opens and reads the file at `pfad`; a missing or unreadable file is a Dateifehler too.
Trainerwechseldaten ladeTrainerdatei(const std::filesystem::path& pfad);

}  // namespace kalimbo
