#include "wiederherstellung.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include "state/spieldatei.h"

namespace kalimbo::ui {

namespace {

const QString Spiel = QStringLiteral("wiederherstellung.tip");
const QString Angaben = QStringLiteral("wiederherstellung.ini");

std::filesystem::path pfadVon(const QString& pfad) {
    return QFile::encodeName(pfad).toStdString();
}

}  // namespace

QString Wiederherstellung::ordner() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

// The game first, then what it belongs to: a copy counts only once both are there.
void Wiederherstellung::sichere(const Dateiinhalt& inhalt, const QString& pfad, const QString& titel) const {
    QDir().mkpath(ordner());
    speichereSpieldatei(pfadVon(QDir(ordner()).filePath(Spiel)), inhalt);
    QSettings angaben(QDir(ordner()).filePath(Angaben), QSettings::IniFormat);
    angaben.setValue(QStringLiteral("pfad"), pfad);
    angaben.setValue(QStringLiteral("titel"), titel);
    angaben.setValue(QStringLiteral("zeit"), QDateTime::currentDateTime());
    angaben.sync();
    if (angaben.status() != QSettings::NoError)
        throw Dateifehler("Die Sicherungskopie in „" + ordner().toStdString() +
                          "“ konnte nicht geschrieben werden.");
}

std::optional<Wiederherstellung::Kopie> Wiederherstellung::vorhandene() const {
    const QDir dir(ordner());
    if (!dir.exists(Spiel) || !dir.exists(Angaben)) return std::nullopt;
    const QSettings angaben(dir.filePath(Angaben), QSettings::IniFormat);
    try {
        return Kopie{ladeSpieldatei(pfadVon(dir.filePath(Spiel))),
                     angaben.value(QStringLiteral("pfad")).toString(),
                     angaben.value(QStringLiteral("titel")).toString(),
                     angaben.value(QStringLiteral("zeit")).toDateTime()};
    } catch (const Dateifehler&) {
        return std::nullopt;
    }
}

void Wiederherstellung::verwerfe() const {
    const QDir dir(ordner());
    QFile::remove(dir.filePath(Spiel));
    QFile::remove(dir.filePath(Angaben));
}

}  // namespace kalimbo::ui
