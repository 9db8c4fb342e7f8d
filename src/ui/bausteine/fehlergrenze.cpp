#include "fehlergrenze.h"

#include "state/fehler.h"
#include "ui/bausteine/dialoge.h"

namespace kalimbo::ui {

QString fehlermeldung(const std::exception& fehler) {
    if (const auto* laufzeit = dynamic_cast<const Laufzeitfehler*>(&fehler))
        return QStringLiteral("Laufzeitfehler '%1':\n\n%2")
            .arg(laufzeit->code())
            .arg(QString::fromUtf8(fehler.what()));
    return QString::fromStdString(deutscheMeldung(fehler));
}

void fangeFehler(QWidget* eltern, Dialoge& dialoge, const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::exception& e) {
        dialoge.warnung(eltern, fehlermeldung(e));
    }
}

}  // namespace kalimbo::ui
