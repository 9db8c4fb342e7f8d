#include "uebersetzung.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace kalimbo::ui {

bool ladeQtUebersetzung(QCoreApplication& anwendung, const QLocale& sprache) {
    auto* uebersetzer = new QTranslator(&anwendung);
    if (!uebersetzer->load(sprache, QStringLiteral("qtbase"), QStringLiteral("_"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete uebersetzer;
        return false;
    }
    return QCoreApplication::installTranslator(uebersetzer);
}

}  // namespace kalimbo::ui
