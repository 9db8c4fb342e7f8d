#pragma once

#include <QString>

class QWidget;

namespace kalimbo::ui {

// Makes `fenster` a secondary window: a window of its own beside the main window, with its object
// name and title, that Escape closes as the frame's close button does.
void richteNebenfensterEin(QWidget* fenster, const QString& name, const QString& titel);

// Shows the secondary window `fenster` in front of the others, with the focus, as a menu item that
// opens it does, also when it is open already.
void holeNachVorn(QWidget* fenster);

}  // namespace kalimbo::ui
