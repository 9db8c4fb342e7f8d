#include "infobox.h"

#include <QDate>
#include <QFile>
#include <QFontDatabase>
#include <QLocale>
#include <QPlainTextEdit>
#include <QTime>

#include "reports/spielerinfo.h"
#include "reports/teaminfo.h"
#include "reports/textexport.h"
#include "ui/bausteine/dialoge.h"

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

void Infobox::setzeText(const std::optional<std::string>& text) {
    if (!text) return;
    m_text = *text;
    txtTeamInfo->setPlainText(QString::fromStdString(m_text));
}

void Infobox::zeigeSpieler(const Spielstand& spiel, int spieler) {
    setTitle(QStringLiteral("Spielerinformationen: ") + kalimbo::ui::text(spiel.getSpielerName(spieler)));
    setzeText(SpielerInfoText(spiel, spieler, QLocale().decimalPoint().toStdString()));
}

// Every team on that row in turn, as the table has always been looked up; the last one stays.
void Infobox::zeigeTeam(const Spielstand& spiel, int zeile) {
    for (const i16 team : teamsAufTabellenplatz(spiel, zeile)) {
        setTitle(QStringLiteral("Mannschaftsinformationen: ") + kalimbo::ui::text(spiel.getTeamName(team)));
        setzeText(TeamInfoText(spiel, team));
    }
}

void Infobox::setzeHoehen(int rahmen, int textfeld) {
    resize(width(), px(rahmen));
    txtTeamInfo->resize(txtTeamInfo->width(), px(textfeld));
}

void Infobox::exportiere(Dialoge& dialoge, const std::string& fussnote) {
    const QString pfad = waehleBerichtsdatei(dialoge, window());
    if (pfad.isEmpty()) return;
    const QLocale ort;
    speichereBericht(QFile::encodeName(pfad).toStdString(), m_text, fussnote,
                     ort.toString(QDate::currentDate(), QLocale::ShortFormat).toStdString(),
                     ort.toString(QTime::currentTime(), QLocale::ShortFormat).toStdString());
}

}  // namespace kalimbo::ui
