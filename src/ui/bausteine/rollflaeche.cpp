#include "rollflaeche.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

namespace kalimbo::ui {

void setzeRollbarenInhalt(QMainWindow* fenster, QWidget* inhalt, QSize entwurf) {
    auto* flaeche = new QScrollArea(fenster);
    flaeche->setFrameShape(QFrame::NoFrame);
    inhalt->setFixedSize(entwurf);
    flaeche->setWidget(inhalt);
    fenster->setCentralWidget(flaeche);
    QSize groesse = entwurf + QSize(0, fenster->menuBar()->sizeHint().height());
    if (const QScreen* bildschirm = fenster->screen())
        groesse = groesse.boundedTo(bildschirm->availableSize());
    fenster->resize(groesse);
}

QScrollArea* rollflaeche(QWidget* eltern, QWidget* inhalt) {
    auto* flaeche = new QScrollArea(eltern);
    flaeche->setFrameShape(QFrame::NoFrame);
    flaeche->setFocusPolicy(Qt::NoFocus);
    flaeche->setWidgetResizable(true);
    flaeche->setWidget(inhalt);
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
