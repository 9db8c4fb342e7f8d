#include "dokument.h"

#include <QFileInfo>
#include <QLocale>
#include <QWidget>

#include "ui/bausteine/dialoge.h"

namespace kalimbo::ui {

Dokument::Dokument(QWidget* fenster, Spielstand& spiel, std::function<Dateiinhalt()> zuSichern)
    : QObject(fenster), m_fenster(fenster), m_spiel(spiel), m_zuSichern(std::move(zuSichern)) {
    m_fenster->setWindowTitle(QStringLiteral("Kalimbo[*]"));
    m_sicherung.setSingleShot(true);
    m_sicherung.setInterval(300);
    connect(&m_sicherung, &QTimer::timeout, this, &Dokument::sichereKopie);
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

void Dokument::geladen(const QString& pfad, bool alsSpeicherziel) {
    setzeDatei(pfad, alsSpeicherziel);
    m_fenster->setWindowModified(false);
}

void Dokument::gespeichert(const QString& pfad) {
    geladen(pfad, true);
    m_wiederherstellung.verwerfe();
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
        m_wiederherstellung.sichere(m_zuSichern(), QString::fromStdString(m_spiel.Dateipfad),
                                    QString::fromStdString(m_spiel.Dateititel));
    } catch (const std::exception&) {
    }
}

bool Dokument::stelleWiederHer(Dialoge& dialoge) {
    const auto kopie = m_wiederherstellung.vorhandene();
    if (!kopie) return false;
    const QString zeit = QLocale().toString(kopie->zeit, QLocale::ShortFormat);
    if (!dialoge.frage(m_fenster,
                       QStringLiteral("Ungespeicherte Änderungen vom %1 wiederherstellen?").arg(zeit))) {
        m_wiederherstellung.verwerfe();
        return false;
    }
    m_spiel.oeffne(kopie->inhalt);
    setzeDatei(kopie->pfad, true);
    geaendert();
    return true;
}

}  // namespace kalimbo::ui
