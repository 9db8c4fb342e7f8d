#pragma once

#include <QDialog>

namespace kalimbo::ui {

// The About box: product name, version line, what the program does, the Qt version it runs on,
// where help and contact are found, and an OK button that closes it. Shown modally.
class frmUeber : public QDialog {
    Q_OBJECT
  public:
    explicit frmUeber(QWidget* eltern);
};

}  // namespace kalimbo::ui
