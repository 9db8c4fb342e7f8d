#include "wiederherstellung.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QUuid>
#include <algorithm>

#include "state/spieldatei.h"

namespace kalimbo::ui {

namespace {

const QString Vorsilbe = QStringLiteral("kopie-");

QString dateiname(const QString& kennung, const QString& endung) {
    return Vorsilbe + kennung + endung;
}

// The file `endung` (".tip", ".ini", ".lock") of the copy `kennung` in `ordner`.
QString pfadIn(const QString& ordner, const QString& kennung, const QString& endung) {
    return QDir(ordner).filePath(dateiname(kennung, endung));
}

// Removes the copy `kennung`: the details first, so that a half-removed copy no longer counts.
void entferne(const QString& ordner, const QString& kennung) {
    QFile::remove(pfadIn(ordner, kennung, QStringLiteral(".ini")));
    QFile::remove(pfadIn(ordner, kennung, QStringLiteral(".tip")));
}

std::filesystem::path pfadVon(const QString& pfad) {
    return QFile::encodeName(pfad).toStdString();
}

// A lock on the copy `kennung`, taken at once or not at all. The lock of a window that is gone
// counts as free however young it is; one of a running window never does.
std::unique_ptr<QLockFile> sperre(const QString& ordner, const QString& kennung) {
    auto s = std::make_unique<QLockFile>(pfadIn(ordner, kennung, QStringLiteral(".lock")));
    s->setStaleLockTime(0);
    if (!s->tryLock(0)) return nullptr;
    return s;
}

}  // namespace

QString Wiederherstellung::standardOrdner() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

Wiederherstellung::Wiederherstellung(QString ordner)
    : m_ordner(std::move(ordner)), m_kennung(QUuid::createUuid().toString(QUuid::WithoutBraces)) {}

Wiederherstellung::~Wiederherstellung() = default;

// The game first, then what it belongs to: a copy counts only once both are there.
void Wiederherstellung::sichere(const Dateiinhalt& inhalt, const std::string& spielpfad) {
    QDir().mkpath(m_ordner);
    if (!m_sperre) m_sperre = sperre(m_ordner, m_kennung);
    const auto scheitern = [this] {
        return Dateifehler("Die Sicherungskopie in „" + m_ordner.toStdString() +
                           "“ konnte nicht geschrieben werden.");
    };
    if (!m_sperre) throw scheitern();
    speichereSpieldatei(pfadVon(pfadIn(m_ordner, m_kennung, QStringLiteral(".tip"))), inhalt);
    QSettings angaben(pfadIn(m_ordner, m_kennung, QStringLiteral(".ini")), QSettings::IniFormat);
    angaben.setValue(QStringLiteral("pfad"), QByteArray::fromStdString(spielpfad));
    angaben.setValue(QStringLiteral("zeit"), QDateTime::currentDateTime());
    angaben.sync();
    if (angaben.status() != QSettings::NoError) throw scheitern();
}

void Wiederherstellung::verwerfe() {
    entferne(m_ordner, m_kennung);
}

std::vector<Wiederherstellung::Fund> Wiederherstellung::verwaiste() const {
    const QDir dir(m_ordner);
    std::vector<std::pair<QDateTime, Fund>> funde;
    for (const QFileInfo& angaben : dir.entryInfoList({Vorsilbe + QStringLiteral("*.ini")}, QDir::Files)) {
        const QString kennung = angaben.completeBaseName().mid(Vorsilbe.size());
        if (kennung == m_kennung) continue;
        if (auto s = sperre(m_ordner, kennung))
            funde.emplace_back(angaben.lastModified(), Fund(m_ordner, kennung, std::move(s)));
    }
    std::stable_sort(funde.begin(), funde.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<Fund> ergebnis;
    for (auto& [zeit, fund] : funde)
        ergebnis.push_back(std::move(fund));
    return ergebnis;
}

void Wiederherstellung::uebernimm(Fund&& fund) {
    verwerfe();
    m_kennung = fund.m_kennung;
    m_sperre = std::move(fund.m_sperre);
}

Wiederherstellung::Fund::Fund(QString ordner, QString kennung, std::unique_ptr<QLockFile> sperre)
    : m_ordner(std::move(ordner)), m_kennung(std::move(kennung)), m_sperre(std::move(sperre)) {}

QString Wiederherstellung::Fund::spielpfad() const {
    return pfadIn(m_ordner, m_kennung, QStringLiteral(".tip"));
}

Wiederherstellung::Kopie Wiederherstellung::Fund::lies() const {
    const QSettings angaben(pfadIn(m_ordner, m_kennung, QStringLiteral(".ini")), QSettings::IniFormat);
    const QDateTime zeit = angaben.value(QStringLiteral("zeit")).toDateTime();
    if (angaben.status() != QSettings::NoError || !zeit.isValid() ||
        !angaben.contains(QStringLiteral("pfad")))
        throw Dateifehler("Die Angaben zur Sicherungskopie „" + spielpfad().toStdString() +
                          "“ sind beschädigt.");
    return Kopie{ladeSpieldatei(pfadVon(spielpfad())),
                 angaben.value(QStringLiteral("pfad")).toByteArray().toStdString(), zeit};
}

void Wiederherstellung::Fund::verwirf() {
    entferne(m_ordner, m_kennung);
}

QString Wiederherstellung::Fund::legeBeiseite() {
    QDir dir(m_ordner);
    dir.mkpath(QStringLiteral("beschaedigt"));
    const QString ziel = QStringLiteral("beschaedigt/") + dateiname(m_kennung, {});
    for (const QString& endung : {QStringLiteral(".tip"), QStringLiteral(".ini")}) {
        dir.remove(ziel + endung);
        dir.rename(dateiname(m_kennung, endung), ziel + endung);
    }
    return dir.filePath(ziel + QStringLiteral(".tip"));
}

}  // namespace kalimbo::ui
