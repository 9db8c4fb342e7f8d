#include "dokument.h"

#include <QFileInfo>
#include <QLocale>
#include <QWidget>

#include "state/spieldatei.h"
#include "state/tippimport.h"
#include "state/trainerdatei.h"
#include "ui/bausteine/dialoge.h"

namespace kalimbo::ui {

namespace {

std::filesystem::path pfadVon(const QString& pfad) {
    return QFile::encodeName(pfad).toStdString();
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

void Dokument::oeffne(const QString& angabe) {
    const QString pfad = QFileInfo(angabe).absoluteFilePath();
    m_spiel.oeffne(ladeSpieldatei(pfadVon(pfad)));
    nachDemLesen(pfad, QFileInfo(pfad).fileName(), true);
}

void Dokument::menOeffnen_Click() {
    if (const QString pfad = waehleSpieldatei(m_dialoge, m_fenster); !pfad.isEmpty()) oeffne(pfad);
}

void Dokument::menRecent_Click(int eintrag) {
    const ZuletztListe::Eintrag datei = m_zuletzt.eintraege[static_cast<std::size_t>(eintrag)];
    m_spiel.oeffne(ladeSpieldatei(pfadVon(datei.pfad)));
    nachDemLesen(datei.pfad, datei.titel, false);
}

void Dokument::menTippdatei_Click() {
    const QString pfad = waehleSpieldatei(m_dialoge, m_fenster);
    if (pfad.isEmpty()) return;
    const Dateiinhalt andere = ladeSpieldatei(pfadVon(pfad));
    uebernimmEintraege(m_spiel, m_eintraege());
    fuegeTippdateiEin(m_spiel, andere);
    nachDemLesen(pfad, QFileInfo(pfad).fileName(), true);
    geaendert();
}

void Dokument::menImpTrainer_Click() {
    const QString pfad = waehleSpieldatei(m_dialoge, m_fenster);
    if (pfad.isEmpty()) return;
    m_spiel.Trainerwechsel = ladeTrainerdatei(pfadVon(pfad));
    zeigeTrainermenue(m_menue, m_spiel);
    geaendert();
}

void Dokument::menSpeichern_Click() {
    uebernimmEintraege(m_spiel, m_eintraege());
    m_spiel.kopiereArbeitInDatei();
    const QString pfad = waehleSpeicherort(m_dialoge, m_fenster, QString::fromStdString(m_spiel.Dateipfad));
    if (pfad.isEmpty()) return;
    speichereSpieldatei(pfadVon(pfad), m_spiel);
    setzeDatei(pfad, true);
    m_fenster->setWindowModified(false);
    m_wiederherstellung.verwerfe();
    merke(pfad, QFileInfo(pfad).fileName());
}

void Dokument::nachDemLesen(const QString& pfad, const QString& titel, bool alsSpeicherziel) {
    setzeDatei(pfad, alsSpeicherziel);
    m_fenster->setWindowModified(false);
    merke(pfad, titel);
    emit spielGeladen();
}

void Dokument::setzeDatei(const QString& pfad, bool alsSpeicherziel) {
    const QString titel = QFileInfo(pfad).fileName();
    if (alsSpeicherziel) {
        m_spiel.Dateipfad = pfad.toStdString();
        m_spiel.Dateititel = titel.toStdString();
    }
    m_fenster->setWindowTitle(titel.isEmpty() ? QStringLiteral("Kalimbo[*]")
                                              : titel + QStringLiteral("[*] - Kalimbo"));
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
        m_wiederherstellung.sichere(kopie, QString::fromStdString(m_spiel.Dateipfad),
                                    QString::fromStdString(m_spiel.Dateititel));
    } catch (const std::exception&) {
    }
}

bool Dokument::stelleWiederHer() {
    const auto kopie = m_wiederherstellung.vorhandene();
    if (!kopie) return false;
    const QString zeit = QLocale().toString(kopie->zeit, QLocale::ShortFormat);
    if (!m_dialoge.frage(m_fenster,
                         QStringLiteral("Ungespeicherte Änderungen vom %1 wiederherstellen?").arg(zeit))) {
        m_wiederherstellung.verwerfe();
        return false;
    }
    m_spiel.oeffne(kopie->inhalt);
    setzeDatei(kopie->pfad, true);
    emit spielGeladen();
    geaendert();
    return true;
}

}  // namespace kalimbo::ui
