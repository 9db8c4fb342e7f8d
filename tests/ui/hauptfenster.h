#pragma once

#include <QAction>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "state/spieldatei.h"
#include "state/spielstand.h"
#include "testdialoge.h"
#include "ui/frmvela_haupt.h"
#include "ui/haupt/eingabefeld.h"

namespace kalimbo::ui::test {

// The small game every main-window test plays, built here rather than taken from the sample
// games so that changing the sample generator cannot change these tests.
//
// 18 teams "Aachen".."Rostock" (indices 0..17); on matchday 0 match k is team 2k against 2k+1,
// on matchday 1 team 2k+1 against 2k+2 (the last one against team 0). Results on matchdays 0
// and 1 (both selected), current matchday 1 with Sunday matches 7 and 8, rule 3-2-1.
// Players: Anna (slot 0), Bernd (1), Clara (2, not taking part), Dieter (3); slots 4..8 empty
// and not taking part. Under 3-2-1: Anna 9 + 1 = 10, Bernd 4 + 12 = 16, Dieter 5 + 5 = 10
// (under the 3-point rule Bernd has 2 + 12 = 14, under the 2-point rule 2 + 8 = 10).
// Coach periods: 0 "Trainer Alt" matchdays 0..16, 1 "Trainer Neu" 17..open, 2 inactive.
// With 20 teams the league is "Aachen".."Trier", 38 matchdays of ten matches.
Dateiinhalt kleinesSpiel(int teams = 18);

constexpr int Anna = 0, Bernd = 1, Clara = 2, Dieter = 3;

// One main window on fresh settings, with scripted dialogs and a temporary folder.
class Hauptfenster {
  public:
    // How the question for a recovery copy left by another run is answered.
    struct Wiederherstellen {
        Dialoge::Antwort antwort;
    };
    Hauptfenster();
    explicit Hauptfenster(Wiederherstellen antwort);
    // A window with the game `spiel` opened from "spiel.tip".
    explicit Hauptfenster(const Dateiinhalt& spiel);
    ~Hauptfenster();

    TestDialoge dialoge;
    QTemporaryDir ordner;
    std::unique_ptr<frmVela_Haupt> fenster;

    const Spielstand& spiel() const { return fenster->spiel(); }

    template <class T = QWidget>
    T* kind(const QString& name) const {
        T* w = fenster->findChild<T*>(name);
        if (!w) qFatal("no child %s", qPrintable(name));
        return w;
    }
    QLabel* label(const char* name, int i) const { return kind<QLabel>(indexName(name, i)); }
    Eingabefeld* feld(const char* name, int i) const { return kind<Eingabefeld>(indexName(name, i)); }
    QAction* aktion(const QString& name) const { return kind<QAction>(name); }
    bool sichtbar(const QString& name) const { return !kind(name)->isHidden(); }
    static QString indexName(const char* name, int i) {
        return QStringLiteral("%1_%2").arg(QString::fromUtf8(name)).arg(i);
    }

    // Writes `bytes` as the file `name` into the temporary folder and returns its path.
    QString schreibe(const QString& name, const QByteArray& bytes);
    // The bytes of a file; "<fehlt>" when it cannot be read.
    static QByteArray inhalt(const QString& pfad);
    // Writes `inhalt` as a game file into the temporary folder and returns its path.
    QString speichere(const QString& name, const Dateiinhalt& inhalt);
    // Opens the game through "Öffnen", the dialog answered with `pfad`.
    void oeffne(const QString& pfad);
    // Writes and opens the small game (or `inhalt`).
    void oeffneSpiel(const Dateiinhalt& inhalt = kleinesSpiel());
    // A new window on the same settings, as at the next start of the program.
    void neuStarten();

    void klick(QWidget* w) const { QTest::mouseClick(w, Qt::LeftButton); }
    void auswerten() const { klick(kind("cmdAuswerten")); }
    // Shows matchday `tag` by clicking its number.
    void zeigeSpieltag(int tag) const { klick(label("lblSpieltagWahl", tag)); }
    // The messages shown since the last call.
    QStringList meldungen();
};

// Runs the QtTest object `test` offscreen with settings in a temporary folder of their own.
int fuehreAus(QObject& test, int argc, char** argv);

}  // namespace kalimbo::ui::test

#define KALIMBO_UI_TEST_MAIN(Klasse)                           \
    int main(int argc, char** argv) {                          \
        Klasse test;                                           \
        return kalimbo::ui::test::fuehreAus(test, argc, argv); \
    }
