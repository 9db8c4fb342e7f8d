#pragma once

#include <QGroupBox>
#include <optional>
#include <string>

#include "state/spielstand.h"
#include "ui/bausteine/aenderung.h"

class QPlainTextEdit;

namespace kalimbo::ui {

class Dialoge;

// The information box under the tables: the sheet of a player or a team. It keeps the sheet's
// exact text (line ends included) for the text export.
class Infobox : public QGroupBox {
    Q_OBJECT
  public:
    explicit Infobox(QWidget* eltern);

    // The sheet of player slot `spieler`, numbers with the user's decimal separator; the caption
    // names him. While the game has no current matchday the text stays as it was; a core error
    // (a division by zero) is thrown with the caption changed and the text as it was.
    void zeigeSpieler(const Spielstand& spiel, int spieler);
    // The sheet of the team on row `zeile` of the league table, likewise.
    void zeigeTeam(const Spielstand& spiel, int zeile);
    // Follows the game: after another game took its place, player 0's sheet (the text cleared
    // while the game has no current matchday); after an evaluation, the sheet shown built afresh,
    // likewise. So the box never shows, nor exports, another game's or an old evaluation's sheet.
    void folge(const Spielstand& spiel, const Aenderung& art);
    // The text shown, exactly as the core built it (UTF-8, CR LF).
    const std::string& text() const { return m_text; }
    // Saves the text shown as a text file chosen in a dialog, with the footer and the date and time
    // ("24.11.2026, 01:01"). Cancelling writes nothing; a write error is a Dateifehler and an
    // existing file stays as it was.
    void exportiere(Dialoge& dialoge, const std::string& fussnote);
    // Frame and text heights in twips.
    void setzeHoehen(int rahmen, int textfeld);

  private:
    // Whose sheet is shown: a player slot or a team index.
    struct Thema {
        bool team = false;
        int index = 0;
    };
    // The sheet of m_thema with its caption; where none can be built the text stays, or with
    // `leeren` is cleared together with the name in the caption.
    void zeigeThema(const Spielstand& spiel, bool leeren);
    void setzeText(const std::string& text);
    // The caption without a name and no text.
    void leere();
    QString ueberschrift() const;

    Thema m_thema;

    QPlainTextEdit* txtTeamInfo;
    std::string m_text;
};

}  // namespace kalimbo::ui
