#include "uebersetzung.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kalimbo::ui {

bool ladeQtUebersetzung(QCoreApplication& anwendung) {
    auto* uebersetzer = new QTranslator(&anwendung);
    if (!uebersetzer->load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete uebersetzer;
        return false;
    }
    return QCoreApplication::installTranslator(uebersetzer);
}

QString deutschesDatum(const QDate& datum) {
    return QLocale(QLocale::German).toString(datum, QStringLiteral("dd.MM.yyyy"));
}

QString deutscheUhrzeit(const QTime& zeit) {
    return QLocale(QLocale::German).toString(zeit, QStringLiteral("HH:mm"));
}

}  // namespace kalimbo::ui
