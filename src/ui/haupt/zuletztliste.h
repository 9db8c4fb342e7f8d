#pragma once

#include <QString>
#include <array>

namespace kalimbo::ui {

// The three game files used last, newest first, each with the name shown in the menu. Kept in
// the settings store under "zorb 5.0" / "Letzten Dateien": paths as "Datei1".."Datei3", names as
// "Datei1b".."Datei3b".
struct ZuletztListe {
    struct Eintrag {
        QString pfad, titel;
        friend bool operator==(const Eintrag&, const Eintrag&) = default;
    };
    std::array<Eintrag, 3> eintraege;

    // Reads the six keys; a missing key reads as "".
    void laden();
    // Puts the file at the head of the list (a file already second or third moves up and keeps
    // its stored name); schreiben() stores it.
    void hinzufuegen(const QString& pfad, const QString& titel);
    // Writes all six keys.
    void schreiben() const;
};

}  // namespace kalimbo::ui
