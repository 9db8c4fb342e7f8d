#include "allesmarkieren.h"

#include <QEvent>
#include <QLineEdit>
#include <QTimer>

namespace kalimbo::ui {

namespace {

class AllesMarkieren : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::FocusIn) {
            auto* feld = static_cast<QLineEdit*>(objekt);
            // After the click that gave the focus has placed the cursor.
            QTimer::singleShot(0, feld, [feld] { feld->selectAll(); });
        }
        return false;
    }
};

}  // namespace

void markiereBeimBetretenAlles(QLineEdit* feld) {
    feld->installEventFilter(new AllesMarkieren(feld));
}

}  // namespace kalimbo::ui
