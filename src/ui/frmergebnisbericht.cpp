#include "frmergebnisbericht.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/bausteine/rollflaeche.h"

namespace kalimbo::ui {

frmErgebnisbericht::frmErgebnisbericht(QWidget* eltern, const QString& bericht, bool ersetzbar)
    : QDialog(eltern) {
    setObjectName(QStringLiteral("frmErgebnisbericht"));
    setWindowTitle(QStringLiteral("Ergebnisse importiert"));
    auto* spalte = new QVBoxLayout(this);
    // The text can be selected and copied.
    auto* text = new QLabel(bericht);
    text->setObjectName(QStringLiteral("lblBericht"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    spalte->addWidget(rollflaeche(this, text));
    auto* hinweis = new QLabel(
        QStringLiteral("Ausgewertet ist damit noch nichts: Wählen Sie die vollständigen Spieltage aus "
                       "und klicken Sie auf „Auswertung“."),
        this);
    hinweis->setWordWrap(true);
    spalte->addWidget(hinweis);

    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    QPushButton* ok = knoepfe->button(QDialogButtonBox::Ok);
    ok->setText(QStringLiteral("OK"));
    ok->setDefault(true);
    QPushButton* ersetzen =
        knoepfe->addButton(QStringLiteral("Abweichende &ersetzen"), QDialogButtonBox::ActionRole);
    ersetzen->setObjectName(QStringLiteral("cmdErsetzen"));
    ersetzen->setVisible(ersetzbar);
    connect(ersetzen, &QPushButton::clicked, this, [this] {
        m_ersetzen = true;
        accept();
    });
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    spalte->addWidget(knoepfe);
}

}  // namespace kalimbo::ui
