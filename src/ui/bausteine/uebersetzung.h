#pragma once

#include <QDate>
#include <QString>
#include <QTime>

class QCoreApplication;

namespace kalimbo::ui {

// Makes Qt's own texts (file dialogs, message box buttons) German, whatever the system's locale,
// from Qt's translations installed with the system. False when they are not installed. The default
// locale stays the user's: the sheets take their decimal separator from it.
bool ladeQtUebersetzung(QCoreApplication& anwendung);

// A date as the program writes it everywhere: "24.11.2026".
QString deutschesDatum(const QDate& datum);
// A time of day as the program writes it everywhere: "01:01".
QString deutscheUhrzeit(const QTime& zeit);

}  // namespace kalimbo::ui
