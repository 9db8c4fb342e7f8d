#include "infobox.h"

#include <QFontDatabase>
#include <QPlainTextEdit>

#include "ui/bausteine/elemente.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

Infobox::Infobox(QWidget* eltern) : QGroupBox(eltern) {
    setObjectName(QStringLiteral("fraTeamInfo"));
    txtTeamInfo =
        element<QPlainTextEdit>(this, QStringLiteral("txtTeamInfo"), rechteck(120, 360, 4920, 4815));
    txtTeamInfo->setReadOnly(true);
    txtTeamInfo->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QFont fest = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    txtTeamInfo->setFont(fest);
    // The sheets align their columns with tabs at every eighth character.
    txtTeamInfo->setTabStopDistance(8 * QFontMetricsF(fest).horizontalAdvance(QLatin1Char(' ')));
}

void Infobox::setzeText(const std::string& text) {
    m_text = text;
    txtTeamInfo->setPlainText(QString::fromStdString(text));
}

void Infobox::setzeHoehen(int rahmen, int textfeld) {
    resize(width(), px(rahmen));
    txtTeamInfo->resize(txtTeamInfo->width(), px(textfeld));
}

}  // namespace kalimbo::ui
