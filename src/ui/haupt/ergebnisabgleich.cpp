#include "ergebnisabgleich.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <map>

#include "quellen/vereinsnamen.h"
#include "state/eintraege.h"
#include "state/fehler.h"
#include "ui/bausteine/dialoge.h"
#include "ui/bausteine/elemente.h"
#include "ui/haupt/dokument.h"

namespace kalimbo::ui {

namespace {

using Paare = std::map<std::string, int>;  // a file's team name -> team index in the game

// The settings group of the pairs chosen for the game file `spieldatei` (file-system bytes): one
// key per name of a file, both percent-encoded, since a key must not hold "/".
struct Gemerkt {
    QSettings s{QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo")};
    explicit Gemerkt(const std::string& spieldatei) {
        s.beginGroup(QStringLiteral("Zuordnungen"));
        s.beginGroup(QString::fromLatin1(QByteArray::fromStdString(spieldatei).toPercentEncoding()));
    }
};

Paare gemerktePaare(const std::string& spieldatei) {
    Paare paare;
    if (spieldatei.empty()) return paare;
    Gemerkt g(spieldatei);
    for (const QString& schluessel : g.s.childKeys())
        paare[QByteArray::fromPercentEncoding(schluessel.toLatin1()).toStdString()] =
            g.s.value(schluessel).toInt();
    return paare;
}

void merkePaare(const std::string& spieldatei, const Paare& paare) {
    if (spieldatei.empty()) return;
    Gemerkt g(spieldatei);
    for (const auto& [name, team] : paare)
        g.s.setValue(QString::fromLatin1(QByteArray::fromStdString(name).toPercentEncoding()), team);
}

// The question of the pairing dialog for the names `z` leaves open.
Zuordnungsfrage frage(const Zuordnung& z, const Quelle& quelle, const Spielstand& spiel) {
    Zuordnungsfrage f;
    f.text = QStringLiteral(
                 "Diese Mannschaften aus „%1“ passen zu keiner Mannschaft des Tippspiels oder zu mehreren. "
                 "Wählen Sie zu jeder die richtige aus.")
                 .arg(QFileInfo(text(quelle.datei)).fileName());
    if (!spiel.Dateipfad.empty())
        f.text += QStringLiteral(" Die Zuordnung gilt für dieses Tippspiel auch beim nächsten Mal.");
    for (const Zuordnung::Offen& o : z.offen) {
        f.namen << text(o.name);
        f.vorschlaege << o.vorschlag;
    }
    for (int t = 0; t <= spiel.getAnzTeams(); ++t)
        f.teams << text(spiel.getTeamName(t));
    return f;
}

}  // namespace

Ergebnisabgleich::Ergebnisabgleich(QWidget* fenster, Dialoge& dialoge, Dokument& dokument)
    : QObject(fenster),
      m_fenster(fenster),
      m_dialoge(dialoge),
      m_dokument(dokument),
      m_spiel(dokument.spiel()) {}

// What was typed into the boxes is taken first, so that a result typed there counts as the game's.
// Replacing starts from the same game again, so that its summary counts as the first one does.
void Ergebnisabgleich::menImpErgebnisse_Click() {
    const QString pfad =
        waehleQuelldatei(m_dialoge, m_fenster, QStringLiteral("Wählen Sie die Datei mit den Ergebnissen!"));
    if (pfad.isEmpty()) return;
    const Quelle quelle = ladeQuelle(QFile::encodeName(pfad).toStdString());
    const std::optional<Zuordnung> zuordnung = ordneZu(quelle);
    if (!zuordnung) return;
    Spielstand vorher = m_spiel;
    uebernimmEintraege(vorher, m_dokument.eintraege());
    const Ergebnisbericht bericht = uebernimm(vorher, quelle, *zuordnung, false);
    const bool ersetzbar = !bericht.abweichend.empty();
    if (m_dialoge.ergebnisbericht(m_fenster, text(berichtText(bericht, m_spiel)), ersetzbar) && ersetzbar)
        m_dialoge.ergebnisbericht(
            m_fenster, text(berichtText(uebernimm(vorher, quelle, *zuordnung, true), m_spiel)), false);
}

// Pairing a name can take a team from a name that fitted it before: asked again until none is open.
std::optional<Zuordnung> Ergebnisabgleich::ordneZu(const Quelle& quelle) {
    const Vereinsnamen vereine = ladeVereinsnamen(vereinsordner());
    Paare paare = gemerktePaare(m_spiel.Dateipfad);
    for (;;) {
        Zuordnung z = kalimbo::ordneZu(quelle.mannschaften(), m_spiel, vereine, paare);
        if (!z.andereLiga.empty()) throw Dateifehler(quelle.vorsatz() + z.andereLiga);
        if (z.offen.empty()) return z;
        const std::optional<QList<int>> auswahl = m_dialoge.zuordnen(m_fenster, frage(z, quelle, m_spiel));
        if (!auswahl) return std::nullopt;
        Paare neu;
        for (std::size_t i = 0; i < z.offen.size(); ++i)
            neu[z.offen[i].name] = auswahl->at(static_cast<qsizetype>(i));
        merkePaare(m_spiel.Dateipfad, neu);
        paare.merge(neu);
    }
}

Ergebnisbericht Ergebnisabgleich::uebernimm(const Spielstand& vorher, const Quelle& quelle,
                                            const Zuordnung& zuordnung, bool ersetzen) {
    Ergebnisuebernahme u = uebernimmErgebnisse(vorher, quelle, zuordnung, ersetzen);
    const bool geaendert = u.spiel.Ergebnis != m_spiel.Ergebnis || u.spiel.Tipp != m_spiel.Tipp;
    m_dokument.aendere([&](Spielstand& s) { s = std::move(u.spiel); }, {.daten = geaendert});
    emit ergebnisseGeaendert();
    return u.bericht;
}

}  // namespace kalimbo::ui
