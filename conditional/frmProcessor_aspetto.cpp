// How the window looks, and its design values.
#include "conditional/frmProcessor.h"

#include "conditional/Condizione.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

constexpr int altezzaPulsanti = 34;

// Rows with room to be read, and to be hit.
class RigaAlta : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &indice) const override
    {
        constexpr int respiro = 8;
        return QStyledItemDelegate::sizeHint(opzione, indice) + QSize(0, respiro);
    }
};

// How far a row's text stands from the list's edge: the frame, then the check mark and the margins
// around it and before the text.
int rientroTesto(const Elenco &lista)
{
    const QStyle &stile = *lista.style();
    const int margine = stile.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &lista) + 1;
    return lista.frameWidth() + stile.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &lista) +
           3 * margine;
}

// The headings of the two columns that the fixed pitch makes of a line.
QLayout *titoli(QWidget *finestra, const Elenco &lista)
{
    auto *nome = new QLabel(u"Lista"_s, finestra);
    auto *condizione = new QLabel(u"Condizione di avvio"_s, finestra);
    for (QLabel *titolo : {nome, condizione}) {
        QFont grassetto = titolo->font();
        grassetto.setBold(true);
        titolo->setFont(grassetto);
    }
    nome->setFixedWidth(lista.fontMetrics().horizontalAdvance(NomeLista({})));
    auto *riga = new QHBoxLayout;
    riga->setSpacing(0);
    riga->setContentsMargins(rientroTesto(lista), 0, 0, 0);
    riga->addWidget(nome);
    riga->addWidget(condizione);
    riga->addStretch();
    return riga;
}

void separatorePrima(QMenu *menu, QAction *voce, const QString &nome)
{
    menu->insertSeparator(voce)->setObjectName(nome);
}

} // namespace

void frmProcessor::disponi()
{
    separatorePrima(mnuFile, &mnuFileSalva, u"t1"_s);
    separatorePrima(mnuFile, &mnuFileEsci, u"t2"_s);
    separatorePrima(mnuOpz, &mnuOpzCondizionePred, u"t3"_s);
    mnuFileNuovo.setShortcut(QKeySequence::New);
    mnuFileApri.setShortcut(QKeySequence::Open);
    mnuFileSalva.setShortcut(QKeySequence::Save);
    mnuFileSalvacome.setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);

    lstCondizioni.hide();
    QFont fisso(u"Courier New"_s);
    fisso.setStyleHint(QFont::Monospace);
    fisso.setFixedPitch(true);
    fisso.setPointSize(font().pointSize() + 1);
    lstFile.setFont(fisso);
    lstFile.setItemDelegate(new RigaAlta(&lstFile));
    lstFile.setAlternatingRowColors(true);
    lstFile.setAccessibleName(u"Liste e condizioni di avvio"_s);
    lstFile.setToolTip(u"Doppio clic su una lista per impostarne la condizione di avvio"_s);

    QFont grassetto = pulAvvia.font();
    grassetto.setBold(true);
    pulAvvia.setFont(grassetto);
    pulAvvia.setIconSize({24, 24});
    pulAvvia.setMinimumSize(130, altezzaPulsanti);
    for (Pulsante *pulsante : {&pulSalva, &pulAnnulla})
        pulsante->setMinimumHeight(altezzaPulsanti);

    auto *pulsanti = new QHBoxLayout;
    pulsanti->setSpacing(8);
    pulsanti->addWidget(&pulAvvia);
    pulsanti->addStretch();
    pulsanti->addWidget(&pulSalva);
    pulsanti->addWidget(&pulAnnulla);

    auto *colonna = new QVBoxLayout(this);
    colonna->setMenuBar(&barraMenu);
    colonna->setContentsMargins(10, 8, 10, 10);
    colonna->setSpacing(8);
    colonna->addLayout(titoli(this, lstFile));
    colonna->addWidget(&lstFile, 1);
    colonna->addLayout(pulsanti);
    resize(460, 420);
}

void frmProcessor::Disegno()
{
    lstFile.Clear();
    lstFile.setTag(u"-1"_s);
    lstCondizioni.Clear();
    Finestre.setFileName({});
    Finestre.setFilter({});
    mnuOpzRiduci.setChecked(false);
    mnuOpzDeselezionaAut.setChecked(false);
    pulAvvia.setAzione(PulsanteAvvia::Azione::Avvia, false);
    pulAvvia.setEnabled(false);
}
