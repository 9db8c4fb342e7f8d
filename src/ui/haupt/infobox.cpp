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
#include "ui/bausteine/uebersetzung.h"

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
    txtTeamInfo->setPlainText(QString::fromStdString(m_text));
}

QString Infobox::ueberschrift() const {
    return m_thema.team ? QStringLiteral("Mannschaftsinformationen: ")
                        : QStringLiteral("Spielerinformationen: ");
}

void Infobox::zeigeThema(const Spielstand& spiel, bool leeren) {
    const int i = m_thema.index;
    setTitle(ueberschrift() +
             kalimbo::ui::text(m_thema.team ? spiel.getTeamName(i) : spiel.getSpielerName(i)));
    const auto blatt = m_thema.team ? TeamInfoText(spiel, i)
                                    : SpielerInfoText(spiel, i, QLocale().decimalPoint().toStdString());
    if (blatt)
        setzeText(*blatt);
    else if (leeren)
        leere();
}

void Infobox::leere() {
    setTitle(ueberschrift());
    setzeText({});
}

void Infobox::zeigeSpieler(const Spielstand& spiel, int spieler) {
    m_thema = {false, spieler};
    zeigeThema(spiel, false);
}

// Every team on that row in turn, as the table has always been looked up; the last one stays.
void Infobox::zeigeTeam(const Spielstand& spiel, int zeile) {
    for (const i16 team : teamsAufTabellenplatz(spiel, zeile)) {
        m_thema = {true, team};
        zeigeThema(spiel, false);
    }
}

// A sheet that cannot be built for the new figures (a division by zero) is not reported here, as it
// is on a click: the box is cleared.
void Infobox::folge(const Spielstand& spiel, const Aenderung& art) {
    if (art.ersetzt)
        m_thema = {};
    else if (!art.zahlen)
        return;
    try {
        zeigeThema(spiel, true);
    } catch (const Laufzeitfehler&) {
        leere();
    }
}

void Infobox::setzeHoehen(int rahmen, int textfeld) {
    resize(width(), px(rahmen));
    txtTeamInfo->resize(txtTeamInfo->width(), px(textfeld));
}

void Infobox::exportiere(Dialoge& dialoge, const std::string& fussnote) {
    const QString pfad = waehleBerichtsdatei(dialoge, window());
    if (pfad.isEmpty()) return;
    speichereBericht(QFile::encodeName(pfad).toStdString(), m_text, fussnote,
                     deutschesDatum(QDate::currentDate()).toStdString(),
                     deutscheUhrzeit(QTime::currentTime()).toStdString());
}

}  // namespace kalimbo::ui
