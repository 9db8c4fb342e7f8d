#include "dokument.h"

#include <QFile>
#include <QFileInfo>
#include <QWidget>
#include <filesystem>

#include "quellen/spielplan.h"
#include "scoring/anzeige.h"
#include "scoring/auswahl.h"
#include "state/fehler.h"
#include "state/spieldatei.h"
#include "state/tippimport.h"
#include "state/trainerdatei.h"
#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/uebersetzung.h"

namespace kalimbo::ui {

namespace {

std::string bytesVon(const QString& pfad) {
    return QFile::encodeName(pfad).toStdString();
}

QString anzeigeVon(const std::string& pfad) {
    return QFile::decodeName(QByteArray::fromStdString(pfad));
}

// The file's bare name as it is shown in the title and the recent list.
QString titelVon(const std::string& pfad) {
    return anzeigeVon(std::filesystem::path(pfad).filename().string());
}

}  // namespace

Dokument::Dokument(QWidget* fenster, Dialoge& dialoge, Spielstand& spiel, const Hauptmenue& menue,
                   std::function<Spieltagseintraege()> eintraege)
    : QObject(fenster),
      m_fenster(fenster),
      m_dialoge(dialoge),
      m_spiel(spiel),
      m_menue(menue),
      m_eintraege(std::move(eintraege)) {
    m_fenster->setWindowTitle(QStringLiteral("Kalimbo[*]"));
    m_sicherung.setSingleShot(true);
    m_sicherung.setInterval(300);
    connect(&m_sicherung, &QTimer::timeout, this, &Dokument::sichereKopie);
    // Storing the settings syncs them to disk; a moment later keeps that out of the way of the
    // first paint when a file is opened at start.
    m_zuletztSchreiben.setSingleShot(true);
    m_zuletztSchreiben.setInterval(250);
    connect(&m_zuletztSchreiben, &QTimer::timeout, this, [this] { m_zuletzt.schreiben(); });
    m_zuletzt.laden();
    zeigeZuletzt(m_menue, m_zuletzt);
}

Dokument::~Dokument() {
    if (m_zuletztSchreiben.isActive()) m_zuletzt.schreiben();
}

void Dokument::aendere(const std::function<void(Spielstand&)>& aenderung, const Aenderung& art) {
    Spielstand neu = m_spiel;
    aenderung(neu);
    m_spiel = std::move(neu);
    melde(art);
}

void Dokument::melde(Aenderung art) {
    if (art.daten) geaendert();
    emit spielGeaendert(art);
}

bool Dokument::darfErsetzen() {
    if (!m_fenster->isWindowModified()) return true;
    const QString name =
        m_spiel.Dateipfad.empty() ? QStringLiteral("Neues Tippspiel") : titelVon(m_spiel.Dateipfad);
    switch (m_dialoge.speichernFragen(m_fenster, name)) {
        case Dialoge::Antwort::Ja:
            return menSpeichern_Click();
        case Dialoge::Antwort::Nein:
            return true;
        case Dialoge::Antwort::Abbrechen:
            break;
    }
    return false;
}

void Dokument::oeffne(const std::string& angabe) {
    const std::string pfad = std::filesystem::absolute(angabe).lexically_normal().string();
    oeffneUnter(pfad, titelVon(pfad));
}

// The file is read first: one that cannot be read leaves the game, its changes and its copy as
// they were.
void Dokument::oeffneUnter(const std::string& pfad, const QString& titel) {
    const Dateiinhalt inhalt = ladeSpieldatei(pfad);
    aendere([&](Spielstand& s) { oeffneWieGezeigt(s, inhalt); }, {.ersetzt = true});
    setzeDatei(pfad);
    unveraendert();
    merke(anzeigeVon(pfad), titel);
    emit spielGeladen();
}

void Dokument::menOeffnen_Click() {
    if (!darfErsetzen()) return;
    if (const QString pfad = waehleSpieldatei(m_dialoge, m_fenster); !pfad.isEmpty()) oeffne(bytesVon(pfad));
}

void Dokument::menNeuAusSpielplan_Click() {
    if (!darfErsetzen()) return;
    const QString pfad = waehleQuelldatei(m_dialoge, m_fenster, QStringLiteral("Wählen Sie den Spielplan!"));
    if (pfad.isEmpty()) return;
    const Quelle quelle = ladeQuelle(bytesVon(pfad));
    const Dateiinhalt inhalt = neuesSpiel(quelle, quelle.liga);
    aendere([&](Spielstand& s) { oeffneWieGezeigt(s, inhalt); }, {.ersetzt = true, .daten = true});
    setzeDatei({});
    emit spielGeladen();
}

void Dokument::menRecent_Click(int eintrag) {
    if (!darfErsetzen()) return;
    const ZuletztListe::Eintrag datei = m_zuletzt.eintraege[static_cast<std::size_t>(eintrag)];
    oeffneUnter(bytesVon(datei.pfad), datei.titel);
}

void Dokument::menTippdatei_Click() {
    const QString pfad = waehleSpieldatei(m_dialoge, m_fenster);
    if (pfad.isEmpty()) return;
    const Dateiinhalt andere = ladeSpieldatei(bytesVon(pfad));
    const Spieltagseintraege eintraege = m_eintraege();
    aendere(
        [&](Spielstand& s) {
            uebernimmEintraege(s, eintraege);
            fuegeTippdateiEin(s, andere);
            zeigeSpieltag(s, letzterAusgewaehlterSpieltag(s));
        },
        {.daten = true});
    merke(pfad, QFileInfo(pfad).fileName());
    emit spielGeladen();
}

void Dokument::menImpTrainer_Click() {
    const QString pfad = waehleSpieldatei(m_dialoge, m_fenster);
    if (pfad.isEmpty()) return;
    const auto trainer = ladeTrainerdatei(bytesVon(pfad));
    aendere([&](Spielstand& s) { s.Trainerwechsel = trainer; }, {.daten = true});
    zeigeTrainermenue(m_menue, m_spiel);
}

bool Dokument::menSpeichern_Click() {
    if (uebernimmEintraege(m_spiel, m_eintraege())) melde({.daten = true});
    m_spiel.kopiereArbeitInDatei();
    // The proposal taken as it is keeps the file's own bytes, whatever its name's encoding.
    const QString vorschlag = anzeigeVon(m_spiel.Dateipfad);
    const QString pfad = waehleSpeicherort(m_dialoge, m_fenster, vorschlag);
    if (pfad.isEmpty()) return false;
    const std::string ziel = pfad == vorschlag ? m_spiel.Dateipfad : bytesVon(pfad);
    speichereSpieldatei(ziel, m_spiel);
    setzeDatei(ziel);
    unveraendert();
    merke(pfad, QFileInfo(pfad).fileName());
    return true;
}

void Dokument::setzeDatei(const std::string& pfad) {
    m_spiel.Dateipfad = pfad;
    m_spiel.Dateititel = std::filesystem::path(pfad).filename().string();
    const QString titel = titelVon(pfad);
    m_fenster->setWindowTitle((titel.isEmpty() ? QStringLiteral("Neues Tippspiel") : titel) +
                              QStringLiteral("[*] - Kalimbo"));
}

void Dokument::unveraendert() {
    m_fenster->setWindowModified(false);
    m_sicherung.stop();
    m_wiederherstellung.verwerfe();
}

void Dokument::merke(const QString& pfad, const QString& titel) {
    m_zuletzt.hinzufuegen(pfad, titel);
    zeigeZuletzt(m_menue, m_zuletzt);
    m_zuletztSchreiben.start();
}

void Dokument::geaendert() {
    m_fenster->setWindowModified(true);
    m_sicherung.start();
}

void Dokument::schliesst() {
    if (m_fenster->isWindowModified())
        sichereKopie();
    else
        m_wiederherstellung.verwerfe();
}

// The copy is a safety net: when it cannot be written (no space left, a number too large in a box)
// the user is not interrupted; the next change tries again.
void Dokument::sichereKopie() {
    if (!m_fenster->isWindowModified()) return;
    try {
        Spielstand kopie = m_spiel;
        uebernimmEintraege(kopie, m_eintraege());
        kopie.kopiereArbeitInDatei();
        m_wiederherstellung.sichere(kopie, m_spiel.Dateipfad);
    } catch (const std::exception&) {
    }
}

bool Dokument::stelleWiederHer() {
    for (Wiederherstellung::Fund& fund : m_wiederherstellung.verwaiste()) {
        Wiederherstellung::Kopie kopie;
        try {
            kopie = fund.lies();
        } catch (const std::exception& fehler) {
            const QString beiseite = fund.legeBeiseite();
            m_dialoge.warnung(m_fenster,
                              QString::fromStdString(deutscheMeldung(fehler)) +
                                  QStringLiteral("\n\nDie Kopie liegt jetzt unter „%1“.").arg(beiseite));
            continue;
        }
        const QString zeit = deutschesDatum(kopie.zeit.date()) + ", " + deutscheUhrzeit(kopie.zeit.time());
        switch (m_dialoge.frage(
            m_fenster, QStringLiteral("Ungespeicherte Änderungen vom %1 wiederherstellen?").arg(zeit))) {
            case Dialoge::Antwort::Nein:
                fund.verwirf();
                continue;
            case Dialoge::Antwort::Abbrechen:
                continue;
            case Dialoge::Antwort::Ja:
                break;
        }
        m_wiederherstellung.uebernimm(std::move(fund));
        aendere([&](Spielstand& s) { oeffneWieGezeigt(s, kopie.inhalt); }, {.ersetzt = true, .daten = true});
        setzeDatei(kopie.pfad);
        emit spielGeladen();
        return true;
    }
    return false;
}

}  // namespace kalimbo::ui
