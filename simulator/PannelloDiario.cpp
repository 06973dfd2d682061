#include "PannelloDiario.h"
#include "Diario.h"
#include "ModelloDiario.h"
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
PannelloDiario::PannelloDiario(Diario &diario, QWidget *parent)
    : QGroupBox(u"Diario"_s, parent), diario_(diario)
{
    modello_ = new ModelloDiario(diario, this);
    elenco_ = new QTableView;
    elenco_->setObjectName(u"elencoDiario"_s);
    elenco_->setModel(modello_);
    elenco_->setShowGrid(false);
    elenco_->setAlternatingRowColors(true);
    elenco_->setSelectionBehavior(QAbstractItemView::SelectRows);
    elenco_->setWordWrap(false);
    // The Tab key goes on to the next control; the arrows go through the lines.
    elenco_->setTabKeyNavigation(false);
    elenco_->setAccessibleName(u"Diario"_s);
    elenco_->verticalHeader()->hide();
    elenco_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
    elenco_->horizontalHeader()->setHighlightSections(false);
    elenco_->horizontalHeader()->setStretchLastSection(true);
    elenco_->setColumnWidth(ModelloDiario::Tempo,
                            fontMetrics().horizontalAdvance(u"00000,00"_s) + 26);
    elenco_->setColumnWidth(ModelloDiario::Byte,
                            fontMetrics().horizontalAdvance(u"255 255 255 255 255"_s) + 26);

    auto *senzaRichieste = new QCheckBox(u"Nascondi le richieste periodiche"_s);
    senzaRichieste->setObjectName(u"opzNascondiRichieste"_s);
    senzaRichieste->setChecked(true);
    auto *pulCopia = new QPushButton(u"Copia tutto"_s);
    pulCopia->setObjectName(u"pulCopiaDiario"_s);
    auto *pulSvuota = new QPushButton(u"Svuota"_s);
    pulSvuota->setObjectName(u"pulSvuotaDiario"_s);

    auto *sotto = new QHBoxLayout;
    sotto->addWidget(senzaRichieste);
    sotto->addStretch();
    sotto->addWidget(pulCopia);
    sotto->addWidget(pulSvuota);
    auto *colonna = new QVBoxLayout(this);
    colonna->addWidget(elenco_);
    colonna->addLayout(sotto);

    connect(senzaRichieste, &QCheckBox::toggled, this, [this](bool nascoste) {
        modello_->nascondiRichieste(nascoste);
        elenco_->scrollToBottom();
    });
    connect(pulCopia, &QPushButton::clicked, this, &PannelloDiario::copia);
    connect(pulSvuota, &QPushButton::clicked, this, [this] { diario_.svuota(); });
    // Whether the end was in sight has to be asked before the row is there.
    auto inFondo = std::make_shared<bool>(true);
    const QScrollBar *barra = elenco_->verticalScrollBar();
    connect(modello_, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [inFondo, barra] { *inFondo = barra->value() >= barra->maximum() - 1; });
    connect(modello_, &QAbstractItemModel::rowsInserted, this, [this, inFondo] {
        if (*inFondo)
            elenco_->scrollToBottom();
    });
}

void PannelloDiario::copia()
{
    QGuiApplication::clipboard()->setText(diario_.righe().join(u'\n'));
}
} // namespace tessaro_sim
