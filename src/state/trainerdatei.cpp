#include "trainerdatei.h"

#include "dateifelder.h"
#include "dateilesen.h"

namespace kalimbo {

namespace {

// The matchday index of an active record, 0..37, or for the end also 99.
void pruefeSpieltag(i16 spieltag, bool ende, int datensatz) {
    if ((spieltag >= 0 && spieltag < MaxSpieltage) || (ende && spieltag == KeinAktuellerSpieltag)) return;
    throw datei::Schaden{"der " + std::to_string(datensatz + 1) + ". Trainerwechsel " +
                         (ende ? "endet" : "beginnt") + " mit dem Spieltag-Index " +
                         std::to_string(spieltag) + " (erlaubt sind 0 bis 37" +
                         (ende ? ", für „bis heute“ 99" : "") + ")."};
}

std::size_t groessteTrainerdatei() {
    static const std::size_t groesse = [] {
        datei::Groesstmass mass;
        for (const auto& t : Trainerwechseldaten{})
            datei::trainerdatensatz(t, mass);
        return mass.ergebnis();
    }();
    return groesse;
}

// The ten records from the front of `anfang`; what follows them is ignored.
Trainerwechseldaten ausBytes(const Dateianfang& anfang, const std::string& name) {
    Trainerwechseldaten trainer;
    int datensatz = 0;
    try {
        datei::Leser leser(anfang.bytes);
        for (; datensatz < trainer.groesse(); ++datensatz) {
            Trainerdaten& t = trainer[datensatz];
            datei::trainerdatensatz(t, leser);
            if (t.Aktiv == 0) continue;
            pruefeSpieltag(t.VonSpieltag, false, datensatz);
            pruefeSpieltag(t.BisSpieltag, true, datensatz);
        }
    } catch (const datei::DatenEnde&) {
        throw Dateifehler("Die Datei „" + name + "“ enthält keine Trainerwechsel-Daten: sie endet im " +
                          std::to_string(datensatz + 1) + ". der zehn Datensätze.");
    } catch (const datei::Schaden& s) {
        throw Dateifehler("Die Datei „" + name + "“ enthält keine Trainerwechsel-Daten: " + s.grund);
    }
    return trainer;
}

}  // namespace

Trainerwechseldaten leseTrainerdatei(std::istream& ein, const std::string& name) {
    return ausBytes(leseDateianfang(ein, groessteTrainerdatei(), name), name);
}

Trainerwechseldaten ladeTrainerdatei(const std::filesystem::path& pfad) {
    return ausBytes(leseDateianfang(pfad, groessteTrainerdatei()), pfad.string());
}

}  // namespace kalimbo
