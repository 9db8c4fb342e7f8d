#pragma once

#include <QSize>

class QMainWindow;
class QScrollArea;
class QWidget;

namespace kalimbo::ui {

// Makes `inhalt`, fixed at its designed size `entwurf` (pixels), the scrolled content of
// `fenster`'s central widget, and sizes the window to show all of it — or, on a smaller screen,
// as much as the screen's free area allows, the rest reached by scrolling.
void setzeRollbarenInhalt(QMainWindow* fenster, QWidget* inhalt, QSize entwurf);

// The same for a window that is no QMainWindow: returns the content, of the designed size
// `entwurf`, to build the window's controls on. The window is never larger than its content.
QWidget* rollbarerInhalt(QWidget* fenster, QSize entwurf);

// A scroll area of `eltern` around `inhalt` for a dialog: as large as `inhalt` wants, up to nine
// tenths of the width and three quarters of the height of the screen's free area, the rest reached
// by scrolling. Tab passes over the area itself.
QScrollArea* rollflaeche(QWidget* eltern, QWidget* inhalt);

}  // namespace kalimbo::ui
