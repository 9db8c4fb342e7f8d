#pragma once

#include <QObject>
#include <QtTest>
#include <memory>

#include "testdialoge.h"

namespace kalimbo::ui::test {

// What the tests of a secondary window share: the dialogs that answer it, the window made afresh
// for every test, its children by object name, and the check that no message box was shown.
template <class Fenster>
class FensterTest : public QObject {
  protected:
    std::unique_ptr<TestDialoge> dialoge;
    std::unique_ptr<Fenster> fenster;

    void erzeugeFenster() {
        dialoge = std::make_unique<TestDialoge>();
        fenster = std::make_unique<Fenster>(nullptr, *dialoge);
    }
    // Closes the window; a message box shown during the test and not taken by it fails the test.
    void schliesseFenster() {
        fenster.reset();
        QVERIFY2(dialoge->meldungen.isEmpty(), qPrintable(dialoge->meldungen.join(" | ")));
    }
    template <class T>
    T* kind(const QString& name) {
        T* w = fenster->template findChild<T*>(name);
        if (!w) qFatal("no child %s", qPrintable(name));
        return w;
    }
};

}  // namespace kalimbo::ui::test
