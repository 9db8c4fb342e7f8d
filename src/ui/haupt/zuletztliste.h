#pragma once

#include <QString>
#include <array>

namespace kalimbo::ui {

// The three game files used last: slots 0..2 hold full paths (newest first), slots 3..5 their
// display names. Kept in the settings store under "zorb 5.0" / "Letzten Dateien".
class ZuletztListe {
  public:
    std::array<QString, 6> eintraege;

    // Reads the six keys "Datei1".."Datei3", "Datei1b".."Datei3b"; a missing key reads as "".
    void laden();
    // Puts the file at the head of the list (a file already in slot 1 or 2 moves up and keeps
    // its stored display name) and writes all six keys.
    void hinzufuegen(const QString& pfad, const QString& name);

  private:
    void schreiben() const;
};

}  // namespace kalimbo::ui
