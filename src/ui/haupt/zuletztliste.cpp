#include "zuletztliste.h"

#include <QSettings>
#include <utility>

namespace kalimbo::ui {

namespace {

// The settings store with the list's group opened.
struct Einstellungen {
    QSettings s{QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo")};
    Einstellungen() { s.beginGroup(QStringLiteral("Letzten Dateien")); }
};

QString pfadSchluessel(std::size_t i) {
    return QStringLiteral("Datei%1").arg(i + 1);
}
QString titelSchluessel(std::size_t i) {
    return QStringLiteral("Datei%1b").arg(i + 1);
}

}  // namespace

void ZuletztListe::laden() {
    Einstellungen e;
    for (std::size_t i = 0; i < eintraege.size(); ++i)
        eintraege[i] = {e.s.value(pfadSchluessel(i)).toString(), e.s.value(titelSchluessel(i)).toString()};
}

void ZuletztListe::hinzufuegen(const QString& pfad, const QString& titel) {
    auto& e = eintraege;
    if (pfad == e[1].pfad)
        std::swap(e[0], e[1]);
    else if (pfad == e[2].pfad)
        e = {e[2], e[0], e[1]};
    else if (pfad != e[0].pfad)
        e = {Eintrag{pfad, titel}, e[0], e[1]};
}

// All six keys, the paths first, as the list has always been stored.
void ZuletztListe::schreiben() const {
    Einstellungen e;
    for (std::size_t i = 0; i < eintraege.size(); ++i)
        e.s.setValue(pfadSchluessel(i), eintraege[i].pfad);
    for (std::size_t i = 0; i < eintraege.size(); ++i)
        e.s.setValue(titelSchluessel(i), eintraege[i].titel);
}

}  // namespace kalimbo::ui
