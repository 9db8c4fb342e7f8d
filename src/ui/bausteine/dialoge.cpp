#include "dialoge.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <array>
#include <utility>

#include "ui/frmergebnisbericht.h"
#include "ui/frmzuordnung.h"

namespace kalimbo::ui {

QString qtFilter(const QString& filter) {
    const QStringList teile = filter.split('|');
    QStringList ergebnis;
    for (int i = 0; i + 1 < teile.size(); i += 2) {
        const QString muster = teile[i + 1] == "*.*" ? "*" : teile[i + 1];
        ergebnis << (teile[i].contains('(') ? teile[i] : teile[i] + " (" + muster + ")");
    }
    return ergebnis.join(";;");
}

namespace {

const QString Spieldateifilter = QStringLiteral("Tippspiel-Dateien (*.tip)|*.tip|Alle Dateien|*.*");
const QString SpeichernTitel = QStringLiteral("Geben Sie den Namen der Datei zum Speichern ein!");

QString absolut(const QString& pfad) {
    return pfad.isEmpty() ? pfad : QFileInfo(pfad).absoluteFilePath();
}

}  // namespace

QString waehleSpieldatei(Dialoge& dialoge, QWidget* eltern) {
    return absolut(dialoge.oeffnen(eltern, QStringLiteral("Wählen Sie den gespeicherten Spielstand!"),
                                   Spieldateifilter));
}

QString waehleQuelldatei(Dialoge& dialoge, QWidget* eltern, const QString& titel) {
    return absolut(dialoge.oeffnen(
        eltern, titel,
        QStringLiteral("Spielpläne und Ergebnisse (*.json *.csv)|*.json *.csv|Alle Dateien|*.*")));
}

QString waehleSpeicherort(Dialoge& dialoge, QWidget* eltern, const QString& vorschlag) {
    return absolut(dialoge.speichern(eltern, SpeichernTitel, Spieldateifilter, vorschlag));
}

QString waehleBerichtsdatei(Dialoge& dialoge, QWidget* eltern) {
    return absolut(dialoge.speichern(
        eltern, SpeichernTitel, QStringLiteral("Textdateien (*.txt)|*.txt|Alle Dateien|*.*"), QString()));
}

QString QtDialoge::oeffnen(QWidget* eltern, const QString& titel, const QString& filter) {
    return QFileDialog::getOpenFileName(eltern, titel, QString(), qtFilter(filter));
}

QString QtDialoge::speichern(QWidget* eltern, const QString& titel, const QString& filter,
                             const QString& vorschlag) {
    QFileDialog dialog(eltern, titel, vorschlag, qtFilter(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // The first pattern's extension is added when the user types a bare name.
    const QString muster = filter.section('|', 1, 1);
    if (muster.startsWith("*.") && muster != "*.*") dialog.setDefaultSuffix(muster.mid(2));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().first();
}

void QtDialoge::meldung(QWidget* eltern, const QString& text) {
    QMessageBox::information(eltern, QStringLiteral("Kalimbo"), text);
}

void QtDialoge::warnung(QWidget* eltern, const QString& text) {
    QMessageBox::warning(eltern, QStringLiteral("Kalimbo"), text);
}

namespace {

// Asks `text` with the buttons given as (button, German text); Escape presses the last one.
Dialoge::Antwort frageMit(QWidget* eltern, const QString& text,
                          const std::array<std::pair<QMessageBox::StandardButton, const char*>, 3>& knoepfe) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Kalimbo"), text, QMessageBox::NoButton, eltern);
    for (const auto& [knopf, beschriftung] : knoepfe)
        box.addButton(knopf)->setText(QString::fromUtf8(beschriftung));
    box.setDefaultButton(knoepfe[0].first);
    box.setEscapeButton(knoepfe[2].first);
    const int gewaehlt = box.exec();
    if (gewaehlt == knoepfe[0].first) return Dialoge::Antwort::Ja;
    if (gewaehlt == knoepfe[1].first) return Dialoge::Antwort::Nein;
    return Dialoge::Antwort::Abbrechen;
}

}  // namespace

Dialoge::Antwort QtDialoge::frage(QWidget* eltern, const QString& text) {
    return frageMit(
        eltern, text,
        {{{QMessageBox::Yes, "&Ja"}, {QMessageBox::No, "&Nein"}, {QMessageBox::Cancel, "&Später"}}});
}

Dialoge::Antwort QtDialoge::speichernFragen(QWidget* eltern, const QString& name) {
    return frageMit(eltern, QStringLiteral("Änderungen an „%1“ speichern?").arg(name),
                    {{{QMessageBox::Save, "&Speichern"},
                      {QMessageBox::Discard, "&Verwerfen"},
                      {QMessageBox::Cancel, "&Abbrechen"}}});
}

void QtDialoge::druckvorschau(QWidget* eltern, QPrinter& drucker,
                              const std::function<void(QPrinter*)>& malen) {
    QPrintPreviewDialog vorschau(&drucker, eltern);
    vorschau.setWindowTitle(QStringLiteral("Vorschau"));
    QObject::connect(&vorschau, &QPrintPreviewDialog::paintRequested, &vorschau, malen);
    vorschau.exec();
}

bool QtDialoge::drucken(QWidget* eltern, QPrinter& drucker) {
    QPrintDialog dialog(&drucker, eltern);
    dialog.setWindowTitle(QStringLiteral("Drucken"));
    return dialog.exec() == QDialog::Accepted;
}

std::optional<QList<int>> QtDialoge::zuordnen(QWidget* eltern, const Zuordnungsfrage& frage) {
    frmZuordnung dialog(eltern, frage);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.auswahl();
}

bool QtDialoge::ergebnisbericht(QWidget* eltern, const QString& text, bool ersetzbar) {
    frmErgebnisbericht dialog(eltern, text, ersetzbar);
    dialog.exec();
    return dialog.ersetzen();
}

}  // namespace kalimbo::ui
