#include "frmzuordnung.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/bausteine/elemente.h"
#include "ui/bausteine/rollflaeche.h"

namespace kalimbo::ui {

frmZuordnung::frmZuordnung(QWidget* eltern, const Zuordnungsfrage& frage) : QDialog(eltern) {
    setObjectName(QStringLiteral("frmZuordnung"));
    setWindowTitle(QStringLiteral("Mannschaften zuordnen"));
    auto* spalte = new QVBoxLayout(this);
    auto* hinweis = new QLabel(frage.text, this);
    hinweis->setWordWrap(true);
    spalte->addWidget(hinweis);

    auto* zeilen = new QWidget;
    auto* raster = new QFormLayout(zeilen);
    for (int i = 0; i < frage.namen.size(); ++i) {
        auto* name = new QLabel(frage.namen[i], zeilen);
        name->setObjectName(indexName("lblQuelle", i));
        name->setTextFormat(Qt::PlainText);
        auto* team = new QComboBox(zeilen);
        team->setObjectName(indexName("cboTeam", i));
        team->addItems(frage.teams);
        team->setCurrentIndex(frage.vorschlaege.value(i, -1));
        raster->addRow(name, team);
        m_teams << team;
    }
    spalte->addWidget(rollflaeche(this, zeilen));

    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    knoepfe->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    knoepfe->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Abbrechen"));
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    spalte->addWidget(knoepfe);
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    if (!m_teams.isEmpty()) m_teams.first()->setFocus();
}

QList<int> frmZuordnung::auswahl() const {
    QList<int> gewaehlt;
    for (const QComboBox* team : m_teams)
        gewaehlt << team->currentIndex();
    return gewaehlt;
}

}  // namespace kalimbo::ui
