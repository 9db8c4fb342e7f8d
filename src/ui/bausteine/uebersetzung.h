#pragma once

#include <QLocale>

class QCoreApplication;

namespace kalimbo::ui {

// Makes Qt's own texts (file dialogs, message box buttons) speak the language of `sprache`,
// from Qt's translations installed with the system. False when there are none for it.
bool ladeQtUebersetzung(QCoreApplication& anwendung, const QLocale& sprache);

}  // namespace kalimbo::ui
