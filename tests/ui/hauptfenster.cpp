#include "hauptfenster.h"

#include <QApplication>
#include <QDir>
#include <QSettings>

#include "state/spieldatei.h"
#include "ui/haupt/wiederherstellung.h"

namespace kalimbo::ui::test {

namespace {

void setzeTore(Ergebnisse& ziel, int spieltag, const char* text) {
    int spiel = 0;
    for (const QString& paar : QString::fromUtf8(text).split(' ', Qt::SkipEmptyParts)) {
        const QStringList tore = paar.split(':');
        ziel[spieltag][spiel++] = {{static_cast<i16>(tore[0].toInt()), static_cast<i16>(tore[1].toInt())}};
    }
}

const char* const Staedte[] = {"Aachen",    "Bochum",   "Cottbus", "Dresden",    "Essen",
                               "Fürth",     "Gießen",   "Hamburg", "Ingolstadt", "Jena",
                               "Kiel",      "Leipzig",  "Mainz",   "Nürnberg",   "Offenbach",
                               "Paderborn", "Querfurt", "Rostock", "Stuttgart",  "Trier"};

}  // namespace

Dateiinhalt kleinesSpiel(int teams) {
    Dateiinhalt d;
    const int spiele = teams / 2;
    d.AnzTeams = static_cast<i16>(teams - 1);
    d.AnzSpiele = static_cast<i16>(spiele - 1);
    d.AnzSpieltage = static_cast<i16>(2 * teams - 3);
    d.AnzTippfelder = static_cast<i16>(MaxSpieler * spiele - 1);
    for (int t = 0; t < teams; ++t) {
        d.Teamname[t] = Staedte[t];
        d.TeamnameKurz[t] = QString::fromUtf8(Staedte[t]).left(3).toUpper().toStdString();
        // Two of each position colour from the top, white below: Meister, CL, CL-Quali, UEFA, ...
        const Farbe farben[] = {rgb(255, 0, 0), rgb(245, 183, 35), rgb(255, 204, 51), rgb(255, 255, 0),
                                rgb(255, 255, 192)};
        d.TabFarbe[t] = t < 5 ? farben[t] : (t < teams - 3 ? rgb(255, 255, 192) : rgb(255, 255, 255));
    }
    for (int tag = 0; tag <= d.AnzSpieltage; ++tag)
        for (int k = 0; k < spiele; ++k) {
            // Matchday 0: 2k - 2k+1; later matchdays shift the away side round.
            const int heim = (2 * k + tag) % teams;
            const int gast = (2 * k + 1 + tag) % teams;
            d.Paarung[tag][k] = {{static_cast<i16>(heim), static_cast<i16>(gast)}};
        }
    setzeTore(d.ErgebnisDatei, 0, "2:1 1:3 3:0 0:2 4:2 1:0 0:1 2:0 1:2");
    setzeTore(d.ErgebnisDatei, 1, "1:0 2:2 0:3 2:1 1:2 3:1 0:1 2:0 1:3");
    d.Spielername = {{"Anna", "Bernd", "Clara", "Dieter"}};
    d.Teilnehmer = {{1, 1, 0, 1, 0, 0, 0, 0, 0}};
    setzeTore(d.TippDatei[Anna], 0, "2:1 1:3 3:0");
    setzeTore(d.TippDatei[Bernd], 0, "3:2 0:2");
    setzeTore(d.TippDatei[Bernd], 1, "1:0 2:2 0:3 2:1");
    setzeTore(d.TippDatei[Clara], 0, "2:1 1:3 3:0 0:2");
    setzeTore(d.TippDatei[Dieter], 0, "5:0 0:5 5:0 0:5 5:0");
    setzeTore(d.TippDatei[Dieter], 1, "2:1 1:1 0:2 2:0");
    d.SptgAuswerten[0] = d.SptgAuswerten[1] = 1;
    d.AktSpieltagGlobal = 1;
    d.SonntagSpiele = {{7, 8}};
    d.Modus = 2;
    d.LigaInfo[0] = "Testliga";
    d.Trainerwechsel[0] = {1, "Trainer Alt", 0, 16};
    d.Trainerwechsel[1] = {1, "Trainer Neu", 17, 99};
    d.Trainerwechsel[2] = {0, "Trainer Weg", 3, 5};
    return d;
}

Hauptfenster::Hauptfenster() : Hauptfenster(Wiederherstellen{Dialoge::Antwort::Nein}) {}

Hauptfenster::Hauptfenster(Wiederherstellen antwort) {
    QSettings(QStringLiteral("zorb 5.0"), QStringLiteral("Kalimbo")).clear();
    dialoge.jaNein << antwort.antwort;
    fenster = std::make_unique<frmVela_Haupt>(dialoge);
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
