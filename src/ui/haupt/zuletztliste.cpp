#include "zuletztliste.h"

#include <QSettings>
#include <utility>

namespace kalimbo::ui {

namespace {

const std::array<const char*, 6> Schluessel{"Datei1", "Datei2", "Datei3", "Datei1b", "Datei2b", "Datei3b"};

// The settings store with the list's group opened.
struct Einstellungen {
    QSettings s{QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo")};
    Einstellungen() { s.beginGroup(QStringLiteral("Letzten Dateien")); }
};

}  // namespace

void ZuletztListe::laden() {
    Einstellungen e;
    for (std::size_t i = 0; i < eintraege.size(); ++i)
        eintraege[i] = e.s.value(Schluessel[i]).toString();
}

void ZuletztListe::hinzufuegen(const QString& pfad, const QString& name) {
    auto& e = eintraege;
    if (pfad == e[1]) {
        std::swap(e[0], e[1]);
        std::swap(e[3], e[4]);
    } else if (pfad == e[2]) {
        e = {e[2], e[0], e[1], e[5], e[3], e[4]};
    } else if (pfad != e[0]) {
        e = {pfad, e[0], e[1], name, e[3], e[4]};
    }
    schreiben();
}

void ZuletztListe::schreiben() const {
    Einstellungen e;
    for (std::size_t i = 0; i < eintraege.size(); ++i)
        e.s.setValue(Schluessel[i], eintraege[i]);
}

}  // namespace kalimbo::ui
