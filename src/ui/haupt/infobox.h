#pragma once

#include <QGroupBox>
#include <string>

class QPlainTextEdit;

namespace kalimbo::ui {

// The information box under the tables: the sheet of a player or a team. It keeps the sheet's
// exact text (line ends included) for the text export.
class Infobox : public QGroupBox {
    Q_OBJECT
  public:
    explicit Infobox(QWidget* eltern);

    // Replaces the shown text; `text` is the sheet as the core built it (UTF-8, CR LF).
    void setzeText(const std::string& text);
    const std::string& text() const { return m_text; }
    // Frame and text heights in twips.
    void setzeHoehen(int rahmen, int textfeld);

  private:
    QPlainTextEdit* txtTeamInfo;
    std::string m_text;
};

}  // namespace kalimbo::ui
