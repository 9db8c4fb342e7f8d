#pragma once

#include <QStringList>

#include "ui/bausteine/dialoge.h"

namespace kalimbo::ui::test {

// Answers the dialogs from prepared lists and records what was asked and shown.
class TestDialoge : public Dialoge {
  public:
    QStringList antworten;             // paths chosen in the next file dialogs; "" = cancelled
    QStringList titel;                 // titles of the file dialogs shown
    QStringList filter;                // their filters
    QStringList vorschlaege;           // names proposed by save dialogs
    QStringList meldungen;             // texts of the message boxes shown
    QStringList fragen;                // questions asked
    QList<Antwort> jaNein;             // answers to the next questions; "Nein" when none is left
    QStringList speicherfragen;        // games asked about before they go
    QList<Antwort> speicherantworten;  // answers to those; "Verwerfen" (Nein) when none is left

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
    Antwort frage(QWidget*, const QString& text) override {
        fragen << text;
        return jaNein.isEmpty() ? Antwort::Nein : jaNein.takeFirst();
    }
    Antwort speichernFragen(QWidget*, const QString& name) override {
        speicherfragen << name;
        return speicherantworten.isEmpty() ? Antwort::Nein : speicherantworten.takeFirst();
    }
};

}  // namespace kalimbo::ui::test
