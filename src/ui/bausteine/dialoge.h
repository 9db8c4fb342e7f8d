#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QPrinter;
class QWidget;

namespace kalimbo::ui {

// What the pairing dialog asks: below `text`, one row for each of `namen` with a choice of
// `teams`, set to the team of `vorschlaege` at the same place.
struct Zuordnungsfrage {
    QString text;
    QStringList namen;
    QList<int> vorschlaege;
    QStringList teams;
};

// Every dialog that blocks (file choice, message box) goes through this interface, so that tests
// can answer them without showing anything.
class Dialoge {
  public:
    virtual ~Dialoge() = default;
    // Filters are written "Beschreibung (*.tip)|*.tip|Alle Dateien|*.*". An empty result means
    // the user cancelled.
    virtual QString oeffnen(QWidget* eltern, const QString& titel, const QString& filter) = 0;
    virtual QString speichern(QWidget* eltern, const QString& titel, const QString& filter,
                              const QString& vorschlag) = 0;
    enum class Antwort { Ja, Nein, Abbrechen };

    // A message with only an OK button and the information icon.
    virtual void meldung(QWidget* eltern, const QString& text) = 0;
    // An error or refused input: as meldung, with the warning icon.
    virtual void warnung(QWidget* eltern, const QString& text) = 0;
    // A question with "Ja", "Nein" and "Später"; Escape answers "Später" (Abbrechen): not now.
    virtual Antwort frage(QWidget* eltern, const QString& text) = 0;
    // Whether to save the changes of the game named `name` before it goes: "Speichern" (Ja),
    // "Verwerfen" (Nein) or "Abbrechen"; Escape cancels.
    virtual Antwort speichernFragen(QWidget* eltern, const QString& name) = 0;
    // The print preview of the pages `malen` paints on `drucker`; returns when it is closed.
    virtual void druckvorschau(QWidget* eltern, QPrinter& drucker,
                               const std::function<void(QPrinter*)>& malen) = 0;
    // The print dialog for `drucker`; true when the user chose to print.
    virtual bool drucken(QWidget* eltern, QPrinter& drucker) = 0;
    // The team chosen for each name (an index into `teams`); nothing when the user cancelled.
    virtual std::optional<QList<int>> zuordnen(QWidget* eltern, const Zuordnungsfrage& frage) = 0;
    // The summary of a results import; `ersetzbar` offers "Abweichende ersetzen": true when chosen.
    virtual bool ergebnisbericht(QWidget* eltern, const QString& text, bool ersetzbar) = 0;
};

// The real dialogs.
class QtDialoge : public Dialoge {
  public:
    QString oeffnen(QWidget* eltern, const QString& titel, const QString& filter) override;
    QString speichern(QWidget* eltern, const QString& titel, const QString& filter,
                      const QString& vorschlag) override;
    void meldung(QWidget* eltern, const QString& text) override;
    void warnung(QWidget* eltern, const QString& text) override;
    Antwort frage(QWidget* eltern, const QString& text) override;
    Antwort speichernFragen(QWidget* eltern, const QString& name) override;
    void druckvorschau(QWidget* eltern, QPrinter& drucker,
                       const std::function<void(QPrinter*)>& malen) override;
    bool drucken(QWidget* eltern, QPrinter& drucker) override;
    std::optional<QList<int>> zuordnen(QWidget* eltern, const Zuordnungsfrage& frage) override;
    bool ergebnisbericht(QWidget* eltern, const QString& text, bool ersetzbar) override;
};

// The game file to open (also to merge tips from, or to read coach periods from), as an absolute
// path; empty when the user cancelled.
QString waehleSpieldatei(Dialoge& dialoge, QWidget* eltern);
// A fixture list or result file (football.json, CSV) to read, as an absolute path; empty when
// cancelled.
QString waehleQuelldatei(Dialoge& dialoge, QWidget* eltern, const QString& titel);
// Where to save the game, `vorschlag` proposed, as an absolute path; empty when cancelled.
QString waehleSpeicherort(Dialoge& dialoge, QWidget* eltern, const QString& vorschlag);

// Where to save the shown sheet as a text file; empty when cancelled.
QString waehleBerichtsdatei(Dialoge& dialoge, QWidget* eltern);

// "Tippspiel-Dateien (*.tip)|*.tip|Alle Dateien|*.*" as Qt writes it:
// "Tippspiel-Dateien (*.tip);;Alle Dateien (*)".
QString qtFilter(const QString& filter);

}  // namespace kalimbo::ui
