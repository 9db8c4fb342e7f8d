#include "fehlergrenze.h"

#include <QString>

#include "state/fehler.h"
#include "ui/bausteine/dialoge.h"

namespace kalimbo::ui {

void fangeFehler(QWidget* eltern, Dialoge& dialoge, const std::function<void()>& handler) {
    try {
        handler();
    } catch (const Laufzeitfehler& e) {
        dialoge.meldung(
            eltern,
            QStringLiteral("Laufzeitfehler '%1':\n\n%2").arg(e.code()).arg(QString::fromUtf8(e.what())));
    } catch (const std::exception& e) {
        dialoge.meldung(eltern, QString::fromUtf8(e.what()));
    }
}

}  // namespace kalimbo::ui
