#include "rollflaeche.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace kalimbo::ui {

namespace {

QScrollArea* rollflaeche(QWidget* fenster, QWidget* inhalt, QSize entwurf) {
    auto* flaeche = new QScrollArea(fenster);
    flaeche->setFrameShape(QFrame::NoFrame);
    flaeche->setFocusPolicy(Qt::NoFocus);  // no stop of its own in the tab order
    inhalt->setFixedSize(entwurf);
    flaeche->setWidget(inhalt);
    return flaeche;
}

// `groesse`, or as much of it as the free area of the window's screen holds.
QSize aufDemBildschirm(const QWidget* fenster, QSize groesse) {
    if (const QScreen* bildschirm = fenster->screen()) return groesse.boundedTo(bildschirm->availableSize());
    return groesse;
}

}  // namespace

void setzeRollbarenInhalt(QMainWindow* fenster, QWidget* inhalt, QSize entwurf) {
    fenster->setCentralWidget(rollflaeche(fenster, inhalt, entwurf));
    fenster->resize(aufDemBildschirm(fenster, entwurf + QSize(0, fenster->menuBar()->sizeHint().height())));
}

QWidget* rollbarerInhalt(QWidget* fenster, QSize entwurf) {
    auto* inhalt = new QWidget;
    auto* spalte = new QVBoxLayout(fenster);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addWidget(rollflaeche(fenster, inhalt, entwurf));
    fenster->setMaximumSize(entwurf);
    fenster->resize(aufDemBildschirm(fenster, entwurf));
    return inhalt;
}

}  // namespace kalimbo::ui
