#pragma once

#include <functional>

class QWidget;

namespace kalimbo::ui {

class Dialoge;

// Runs one event handler. An error thrown by the core (a runtime error with its number, or a
// file error) ends the handler and is shown in a message box; the application keeps running.
void fangeFehler(QWidget* eltern, Dialoge& dialoge, const std::function<void()>& handler);

}  // namespace kalimbo::ui
