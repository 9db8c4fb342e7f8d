#include "hauptfenster.h"

#include <QApplication>
#include <QDir>
#include <QSettings>

#include "state/spieldatei.h"
#include "testdaten.h"
#include "ui/haupt/wiederherstellung.h"

namespace kalimbo::ui::test {

Dateiinhalt kleinesSpiel(int teams) {
    static const std::vector<std::string> Staedte{
        "Aachen",    "Bochum",     "Cottbus",  "Dresden", "Essen",     "Fürth|FÜR", "Gießen",
        "Hamburg",   "Ingolstadt", "Jena",     "Kiel",    "Leipzig",   "Mainz",     "Nürnberg|NÜR",
        "Offenbach", "Paderborn",  "Querfurt", "Rostock", "Stuttgart", "Trier"};
    // Matchday 0: 2k - 2k+1; later matchdays shift the away side round.
    const kalimbo::test::Paarung verschoben = [teams](int tag, int k) {
        return std::array{(2 * k + tag) % teams, (2 * k + 1 + tag) % teams};
    };
    Spielstand s = kalimbo::test::liga({Staedte.begin(), Staedte.begin() + teams}, 2 * teams - 2, verschoben,
                                       "Anna Bernd -Clara Dieter");
    for (int t = 0; t < teams; ++t) {
        // Two of each position colour from the top, white below: Meister, CL, CL-Quali, UEFA, ...
        const Farbe farben[] = {rgb(255, 0, 0), rgb(245, 183, 35), rgb(255, 204, 51), rgb(255, 255, 0),
                                rgb(255, 255, 192)};
        s.TabFarbe[t] = t < 5 ? farben[t] : (t < teams - 3 ? rgb(255, 255, 192) : rgb(255, 255, 255));
    }
    using kalimbo::test::setzeErgebnisse, kalimbo::test::setzeTipps;
    setzeErgebnisse(s, 0, "2:1 1:3 3:0 0:2 4:2 1:0 0:1 2:0 1:2");
    setzeErgebnisse(s, 1, "1:0 2:2 0:3 2:1 1:2 3:1 0:1 2:0 1:3");
    setzeTipps(s, Anna, 0, "2:1 1:3 3:0");
    setzeTipps(s, Bernd, 0, "3:2 0:2");
    setzeTipps(s, Bernd, 1, "1:0 2:2 0:3 2:1");
    setzeTipps(s, Clara, 0, "2:1 1:3 3:0 0:2");
    setzeTipps(s, Dieter, 0, "5:0 0:5 5:0 0:5 5:0");
    setzeTipps(s, Dieter, 1, "2:1 1:1 0:2 2:0");
    s.kopiereArbeitInDatei();
    s.SptgAuswerten[0] = s.SptgAuswerten[1] = 1;
    s.AktSpieltagGlobal = 1;
    s.SonntagSpiele = {{7, 8}};
    s.Modus = 2;
    s.LigaInfo[0] = "Testliga";
    s.Trainerwechsel[0] = {1, "Trainer Alt", 0, 16};
    s.Trainerwechsel[1] = {1, "Trainer Neu", 17, 99};
    s.Trainerwechsel[2] = {0, "Trainer Weg", 3, 5};
    return s;
}

Hauptfenster::Hauptfenster() : Hauptfenster(Wiederherstellen{Dialoge::Antwort::Nein}) {}

Hauptfenster::Hauptfenster(Wiederherstellen antwort) {
    QSettings(QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo")).clear();
    dialoge.jaNein << antwort.antwort;
    fenster = std::make_unique<frmVela_Haupt>(dialoge);
    fenster->starte();
    dialoge.jaNein.clear();
}

Hauptfenster::Hauptfenster(const Dateiinhalt& spiel) : Hauptfenster() {
    oeffneSpiel(spiel);
}

Hauptfenster::~Hauptfenster() {
    fenster.reset();
    QDir(Wiederherstellung::standardOrdner()).removeRecursively();  // nothing is offered to the next test
    if (!dialoge.meldungen.isEmpty())
        QTest::qFail(qPrintable("unexpected messages: " + dialoge.meldungen.join(" | ")), __FILE__, __LINE__);
}

QString Hauptfenster::schreibe(const QString& name, const QByteArray& bytes) {
    const QString pfad = ordner.filePath(name);
    QFile f(pfad);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(pfad));
    return pfad;
}

QByteArray Hauptfenster::inhalt(const QString& pfad) {
    QFile f(pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<fehlt>");
}

QString Hauptfenster::speichere(const QString& name, const Dateiinhalt& inhalt) {
    const QString pfad = ordner.filePath(name);
    speichereSpieldatei(QFile::encodeName(pfad).toStdString(), inhalt);
    return pfad;
}

void Hauptfenster::oeffne(const QString& pfad) {
    dialoge.antworten << pfad;
    aktion(QStringLiteral("menOeffnen"))->trigger();
}

void Hauptfenster::oeffneSpiel(const Dateiinhalt& inhalt) {
    oeffne(speichere(QStringLiteral("spiel.tip"), inhalt));
}

void Hauptfenster::neuStarten() {
    fenster.reset();  // the old run ends before the new one starts
    fenster = std::make_unique<frmVela_Haupt>(dialoge);
    fenster->starte();
}

QStringList Hauptfenster::meldungen() {
    QStringList m = dialoge.meldungen;
    dialoge.meldungen.clear();
    return m;
}

int fuehreAus(QObject& test, int argc, char** argv) {
    QTemporaryDir einstellungen;  // settings go to a folder of their own, never to the user's
    qputenv("XDG_CONFIG_HOME", einstellungen.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", einstellungen.path().toUtf8());
    qputenv("XDG_DATA_HOME", einstellungen.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return QTest::qExec(&test, argc, argv);
}

}  // namespace kalimbo::ui::test
