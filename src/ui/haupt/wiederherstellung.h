#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

#include "state/spielstand.h"

namespace kalimbo::ui {

// The recovery copy of a game with unsaved changes, kept in the user's data folder so that a crash
// or a kill loses at most the last change: the game as a game file, with the file it belongs to
// and the time it was written.
class Wiederherstellung {
  public:
    struct Kopie {
        Dateiinhalt inhalt;
        QString pfad, titel;  // the game's file, proposed when the copy is saved
        QDateTime zeit;
    };

    // Writes the copy, replacing the one before, each file through a temporary file. Throws
    // Dateifehler when the folder cannot be written.
    void sichere(const Dateiinhalt& inhalt, const QString& pfad, const QString& titel) const;
    // The copy left by an earlier run; none when there is none or it cannot be read.
    std::optional<Kopie> vorhandene() const;
    void verwerfe() const;

  private:
    static QString ordner();
};

}  // namespace kalimbo::ui
