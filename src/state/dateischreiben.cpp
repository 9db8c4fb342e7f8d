#include "dateischreiben.h"

#include <cstdio>
#include <memory>
#include <string>
#include <system_error>

#include "fehler.h"

namespace kalimbo {

namespace {

namespace fs = std::filesystem;

struct DateiSchliessen {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using DateiZeiger = std::unique_ptr<std::FILE, DateiSchliessen>;

[[noreturn]] void scheitern(const fs::path& ziel, const std::string& grund) {
    throw Dateifehler("Die Datei „" + ziel.string() + "“ konnte nicht gespeichert werden: " + grund);
}

// Creates a temporary file that did not exist before (mode "x"), beside the target.
std::pair<DateiZeiger, fs::path> neueTemporaereDatei(const fs::path& ziel) {
    for (int versuch = 0; versuch < 100; ++versuch) {
        fs::path kandidat = ziel;
        kandidat += ".tmp" + std::to_string(versuch);
        if (std::FILE* f = std::fopen(kandidat.c_str(), "wbx")) return {DateiZeiger(f), kandidat};
        if (errno != EEXIST) break;
    }
    scheitern(ziel, "Der Ordner existiert nicht oder ist schreibgeschützt.");
}

}  // namespace

void schreibeDateiAtomar(const fs::path& zielAngabe, std::string_view bytes) {
    std::error_code ec;
    // Saving through a link replaces the file it points to, not the link.
    const fs::path ziel = fs::is_symlink(zielAngabe, ec) ? fs::canonical(zielAngabe, ec) : zielAngabe;
    if (fs::is_directory(ziel, ec)) scheitern(zielAngabe, "Unter diesem Namen gibt es einen Ordner.");

    auto [datei, temp] = neueTemporaereDatei(ziel);
    const bool geschrieben = std::fwrite(bytes.data(), 1, bytes.size(), datei.get()) == bytes.size() &&
                             std::fflush(datei.get()) == 0;
    const bool geschlossen = std::fclose(datei.release()) == 0;
    if (!geschrieben || !geschlossen) {
        fs::remove(temp, ec);
        scheitern(zielAngabe, "Schreibfehler (ist der Datenträger voll?).");
    }
    if (fs::exists(ziel, ec)) fs::permissions(temp, fs::status(ziel, ec).permissions(), ec);
    fs::rename(temp, ziel, ec);
    if (ec) {
        fs::remove(temp, ec);
        scheitern(zielAngabe, "Die vorhandene Datei kann nicht ersetzt werden.");
    }
}

}  // namespace kalimbo
