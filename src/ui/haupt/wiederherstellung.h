#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "state/spielstand.h"

namespace kalimbo::ui {

// The recovery copy of a game with unsaved changes, kept in the user's data folder so that a crash
// or a kill loses at most the last change: the game as a game file, with the file it belongs to
// and the time it was written. Every window has a copy of its own ("kopie-ID.tip" with its
// "kopie-ID.ini") and holds a lock on it ("kopie-ID.lock") from the first time it writes it until
// it ends, so that another window neither offers nor removes it. A copy whose lock is free belonged
// to a window that is gone (it quit with unsaved changes, crashed or was killed).
class Wiederherstellung {
  public:
    struct Kopie {
        Dateiinhalt inhalt;
        std::string pfad;  // the game's file (bytes as the file system has them), proposed for saving
        QDateTime zeit;
    };

    // A copy left by a window that is gone, locked by this one while the user decides on it.
    class Fund {
      public:
        // The copy's content. Throws Dateifehler when the game or its details cannot be read.
        Kopie lies() const;
        // The copy is not wanted: removed.
        void verwirf();
        // The copy cannot be read: moved into the folder "beschaedigt" beside it, where it is kept
        // under a name of its own. Returns the game file's new path.
        QString legeBeiseite();
        QString spielpfad() const;

      private:
        friend class Wiederherstellung;
        Fund(QString ordner, QString kennung, std::unique_ptr<QLockFile> sperre);
        QString m_ordner, m_kennung;
        std::unique_ptr<QLockFile> m_sperre;
    };

    // The copies of this window go to `ordner`, by default the user's data folder.
    explicit Wiederherstellung(QString ordner = standardOrdner());
    ~Wiederherstellung();

    // Writes this window's copy, replacing the one before, each file through a temporary file.
    // Throws Dateifehler when the folder cannot be written.
    void sichere(const Dateiinhalt& inhalt, const std::string& pfad);
    // Removes this window's copy.
    void verwerfe();
    // The copies of windows that are gone, newest first, each locked for this window.
    std::vector<Fund> verwaiste() const;
    // The found copy becomes this window's own (its own copy, if any, is removed first).
    void uebernimm(Fund&& fund);

    static QString standardOrdner();

  private:
    QString m_ordner;
    QString m_kennung;
    std::unique_ptr<QLockFile> m_sperre;  // held from the first copy on
};

}  // namespace kalimbo::ui
