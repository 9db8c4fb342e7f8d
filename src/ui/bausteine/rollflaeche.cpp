#include "rollflaeche.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace kalimbo::ui {

namespace {

// A frameless scroll area of `eltern` around `inhalt`, with no stop of its own in the tab order.
QScrollArea* umschliesse(QWidget* eltern, QWidget* inhalt) {
    auto* flaeche = new QScrollArea(eltern);
    flaeche->setFrameShape(QFrame::NoFrame);
    flaeche->setFocusPolicy(Qt::NoFocus);
    flaeche->setWidget(inhalt);
    return flaeche;
}

QScrollArea* festeRollflaeche(QWidget* fenster, QWidget* inhalt, QSize entwurf) {
    inhalt->setFixedSize(entwurf);
    return umschliesse(fenster, inhalt);
}

// `groesse`, or as much of it as the free area of the window's screen holds.
QSize aufDemBildschirm(const QWidget* fenster, QSize groesse) {
    if (const QScreen* bildschirm = fenster->screen()) return groesse.boundedTo(bildschirm->availableSize());
    return groesse;
}

}  // namespace

void setzeRollbarenInhalt(QMainWindow* fenster, QWidget* inhalt, QSize entwurf) {
    fenster->setCentralWidget(festeRollflaeche(fenster, inhalt, entwurf));
    fenster->resize(aufDemBildschirm(fenster, entwurf + QSize(0, fenster->menuBar()->sizeHint().height())));
}

QWidget* rollbarerInhalt(QWidget* fenster, QSize entwurf) {
    auto* inhalt = new QWidget;
    auto* spalte = new QVBoxLayout(fenster);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->addWidget(festeRollflaeche(fenster, inhalt, entwurf));
    fenster->setMaximumSize(entwurf);
    fenster->resize(aufDemBildschirm(fenster, entwurf));
    return inhalt;
}

QScrollArea* rollflaeche(QWidget* eltern, QWidget* inhalt) {
    QScrollArea* flaeche = umschliesse(eltern, inhalt);
    flaeche->setWidgetResizable(true);
    QSize groesse = inhalt->sizeHint();
    if (const QScreen* bildschirm = eltern->screen()) {
        const QSize frei = bildschirm->availableSize();
        const QSize platz(frei.width() * 9 / 10, frei.height() * 3 / 4);
        if (groesse.height() > platz.height())
            groesse.rwidth() += flaeche->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        groesse = groesse.boundedTo(platz);
    }
    flaeche->setMinimumSize(groesse);
    return flaeche;
}

}  // namespace kalimbo::ui
