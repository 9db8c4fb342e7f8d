#pragma once

#include <QComboBox>
#include <QPageLayout>
#include <QPrinter>
#include <QPushButton>
#include <QStringList>
#include <QTemporaryDir>

#include "ui/bausteine/dialoge.h"
#include "ui/frmergebnisbericht.h"
#include "ui/frmzuordnung.h"

namespace kalimbo::ui::test {

// Answers the dialogs from prepared lists and records what was asked and shown. The pairing and
// summary dialogs are made (not shown), read and answered through their controls.
class TestDialoge : public Dialoge {
  public:
    QStringList antworten;             // paths chosen in the next file dialogs; "" = cancelled
    QStringList titel;                 // titles of the file dialogs shown
    QStringList filter;                // their filters
    QStringList vorschlaege;           // names proposed by save dialogs
    QStringList meldungen;             // texts of the message boxes shown
    QStringList warnungen;             // those of them shown with the warning icon
    QStringList fragen;                // questions asked
    QList<Antwort> jaNein;             // answers to the next questions; "Nein" when none is left
    QStringList speicherfragen;        // games asked about before they go
    QList<Antwort> speicherantworten;  // answers to those; "Verwerfen" (Nein) when none is left
    QList<QByteArray> vorschauen;      // every print preview shown, as the PDF of its pages
    int druckdialoge = 0;              // print dialogs shown, each cancelled
    QList<QStringList> zuordnungen;    // the rows of the pairing dialogs shown, "NAME=TEAM" as set
    // Answers to the next ones: "NAME=TEAM" chosen, then OK; nullopt: Abbrechen; none left: OK.
    QList<std::optional<QStringList>> zuordnungsantworten;
    QStringList berichte;  // the summaries shown, "\n[ersetzen]" added when replacing is offered
    QList<bool> ersetzen;  // whether the next summaries are answered "Abweichende ersetzen"

    QString oeffnen(QWidget*, const QString& t, const QString& f) override {
        titel << t;
        filter << f;
        return antworten.isEmpty() ? QString() : antworten.takeFirst();
    }
    QString speichern(QWidget*, const QString& t, const QString& f, const QString& vorschlag) override {
        titel << t;
        filter << f;
        vorschlaege << vorschlag;
        return antworten.isEmpty() ? QString() : antworten.takeFirst();
    }
    void meldung(QWidget*, const QString& text) override { meldungen << text; }
    void warnung(QWidget*, const QString& text) override {
        meldungen << text;
        warnungen << text;
    }
    Antwort frage(QWidget*, const QString& text) override {
        fragen << text;
        return jaNein.isEmpty() ? Antwort::Nein : jaNein.takeFirst();
    }
    void druckvorschau(QWidget*, QPrinter& drucker, const std::function<void(QPrinter*)>& malen) override {
        const QTemporaryDir ordner;
        drucker.setOutputFormat(QPrinter::PdfFormat);
        drucker.setOutputFileName(ordner.filePath("vorschau.pdf"));
        malen(&drucker);
        QFile pdf(drucker.outputFileName());
        vorschauen << (pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray());
    }
    bool drucken(QWidget*, QPrinter&) override {
        ++druckdialoge;
        return false;
    }
    Antwort speichernFragen(QWidget*, const QString& name) override {
        speicherfragen << name;
        return speicherantworten.isEmpty() ? Antwort::Nein : speicherantworten.takeFirst();
    }
    std::optional<QList<int>> zuordnen(QWidget* eltern, const Zuordnungsfrage& frage) override {
        frmZuordnung dialog(eltern, frage);
        const QList<QComboBox*> teams = dialog.findChildren<QComboBox*>();
        zuordnungen << QStringList();
        for (int i = 0; i < teams.size(); ++i)
            zuordnungen.last() << frage.namen[i] + "=" + teams[i]->currentText();
        const auto antwort = zuordnungsantworten.isEmpty() ? QStringList() : zuordnungsantworten.takeFirst();
        if (!antwort) return std::nullopt;
        for (const QString& paar : *antwort)
            teams[frage.namen.indexOf(paar.section('=', 0, 0))]->setCurrentText(paar.section('=', 1));
        return dialog.auswahl();
    }
    bool ergebnisbericht(QWidget* eltern, const QString& text, bool ersetzbar) override {
        frmErgebnisbericht dialog(eltern, text, ersetzbar);
        auto* knopf = dialog.findChild<QPushButton*>(QStringLiteral("cmdErsetzen"));
        berichte << text + (knopf->isHidden() ? "" : "\n[ersetzen]");
        if (!ersetzen.isEmpty() && ersetzen.takeFirst()) knopf->click();
        return dialog.ersetzen();
    }
};

}  // namespace kalimbo::ui::test
