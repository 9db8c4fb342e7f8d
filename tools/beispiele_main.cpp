// Writes the sample games into a folder: kalimbo-beispiele SAISON_ORDNER ZIEL_ORDNER
#include <filesystem>
#include <fstream>
#include <iostream>

#include "beispielspiel.h"
#include "quellen/spielplan.h"
#include "state/spieldatei.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Aufruf: kalimbo-beispiele SAISON_ORDNER ZIEL_ORDNER\n";
        return 2;
    }
    namespace fs = std::filesystem;
    try {
        for (const auto& v : kalimbo::beispiel::vorgaben()) {
            std::ifstream csv(fs::path(argv[1]) / (v.saison + ".matches.csv"));
            const auto saison = kalimbo::importiereSaison(csv, v.liga);
            const fs::path ziel = fs::path(argv[2]) / v.dateiname;
            kalimbo::speichereSpieldatei(ziel, kalimbo::beispiel::baue(saison, v));
            std::cout << ziel.string() << '\n';
        }
    } catch (const std::exception& e) {
        std::cerr << "Fehler: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
