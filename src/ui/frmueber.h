#pragma once

#include <QDialog>

namespace kalimbo::ui {

// The About box: product name, version line, what the program does, the Qt version it runs on,
// and an OK button that closes it. Shown modally with exec().
class frmUeber : public QDialog {
    Q_OBJECT
  public:
    explicit frmUeber(QWidget* eltern);
};

}  // namespace kalimbo::ui
