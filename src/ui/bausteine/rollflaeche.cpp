#include "rollflaeche.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>

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

}  // namespace kalimbo::ui
