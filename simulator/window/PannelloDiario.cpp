#include "simulator/window/PannelloDiario.h"
#include "simulator/robot/Diario.h"
#include "simulator/window/ModelloDiario.h"
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
    : QGroupBox(u"Diario"_s, parent), m_diario(diario)
{
    m_modello = new ModelloDiario(diario, this);
    m_elenco = new QTableView;
    m_elenco->setObjectName(u"elencoDiario"_s);
    m_elenco->setModel(m_modello);
    m_elenco->setShowGrid(false);
    m_elenco->setAlternatingRowColors(true);
    m_elenco->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_elenco->setWordWrap(false);
    // The Tab key goes on to the next control; the arrows go through the lines.
    m_elenco->setTabKeyNavigation(false);
    m_elenco->setAccessibleName(u"Diario"_s);
    m_elenco->verticalHeader()->hide();
    m_elenco->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
    m_elenco->horizontalHeader()->setHighlightSections(false);
    m_elenco->horizontalHeader()->setStretchLastSection(true);
    m_elenco->setColumnWidth(ModelloDiario::Tempo,
                             fontMetrics().horizontalAdvance(u"00000,00"_s) + 26);
    m_elenco->setColumnWidth(ModelloDiario::Byte,
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
    colonna->addWidget(m_elenco);
    colonna->addLayout(sotto);

    connect(senzaRichieste, &QCheckBox::toggled, this, [this](bool nascoste) {
        m_modello->nascondiRichieste(nascoste);
        m_elenco->scrollToBottom();
    });
    connect(pulCopia, &QPushButton::clicked, this, &PannelloDiario::copia);
    connect(pulSvuota, &QPushButton::clicked, this, [this] { m_diario.svuota(); });
    // Whether the end was in sight has to be asked before the row is there.
    auto inFondo = std::make_shared<bool>(true);
    const QScrollBar *barra = m_elenco->verticalScrollBar();
    connect(m_modello, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [inFondo, barra] { *inFondo = barra->value() >= barra->maximum() - 1; });
    connect(m_modello, &QAbstractItemModel::rowsInserted, this, [this, inFondo] {
        if (*inFondo)
            m_elenco->scrollToBottom();
    });
}

void PannelloDiario::copia()
{
    QGuiApplication::clipboard()->setText(m_diario.righe().join(u'\n'));
}
} // namespace tessaro_sim
