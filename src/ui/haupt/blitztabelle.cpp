#include "blitztabelle.h"

#include <QLabel>
#include <QLocale>
#include <QTime>

#include "state/tabellenfarben.h"
#include "ui/bausteine/elemente.h"
#include "ui/bausteine/farben.h"
#include "ui/bausteine/klicklabel.h"
#include "ui/bausteine/ligatabelle.h"
#include "ui/bausteine/twips.h"

namespace kalimbo::ui {

namespace {

// The time of day with seconds in the user's format, without the time zone that Qt's long format
// adds.
QString uhrzeit() {
    QString format = QLocale().timeFormat(QLocale::LongFormat);
    format.remove(QLatin1Char('t'));
    return QLocale().toString(QTime::currentTime(), format.trimmed());
}

}  // namespace

Blitztabelle::Blitztabelle(QWidget* eltern)
    : QGroupBox(QStringLiteral("Blitztabelle"), eltern), m_tabelle(new Ligatabelle(this, 0)) {
    setObjectName(QStringLiteral("fraBlitztabelle"));
    m_tabelle->move(0, px(240));
}

void Blitztabelle::wendeSpielAn(const Spielstand& spiel) {
    for (int z = 0; z < 18; ++z)
        m_tabelle->setzeZeile(z, {QString::number(z + 1), text(spiel.getTeamName(z))});
    m_tabelle->zeigeZeilen(spiel.getAnzTeams() + 1);
    for (int z = 0; z <= spiel.getAnzTeams(); ++z)
        m_tabelle->setzePlatzfarbe(z, spiel.getTabFarbe(z), positionsHinweis(spiel.getTabFarbe(z)));
}

void Blitztabelle::zeige(const Spielstand& spiel, const QString& anlass) {
    m_tabelle->fuelle(spiel);
    setTitle(QStringLiteral("Blitztabelle [%1, %2]").arg(anlass, uhrzeit()));
}

}  // namespace kalimbo::ui
