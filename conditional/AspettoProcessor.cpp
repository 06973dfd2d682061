#include "conditional/AspettoProcessor.h"

#include "conditional/Condizione.h"
#include "conditional/frmProcessor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

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

// The distance of a row's text from the list's edge in pixels: the frame, the check mark, and the
// margins around it and before the text.
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

void disponiMenu(frmProcessor &p)
{
    separatorePrima(p.mnuFile, &p.mnuFileSalva, u"t1"_s);
    separatorePrima(p.mnuFile, &p.mnuFileEsci, u"t2"_s);
    separatorePrima(p.mnuOpz, &p.mnuOpzCondizionePred, u"t3"_s);
    p.mnuFileNuovo.setShortcut(QKeySequence::New);
    p.mnuFileApri.setShortcut(QKeySequence::Open);
    p.mnuFileSalva.setShortcut(QKeySequence::Save);
    p.mnuFileSalvacome.setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
}

void vestiLista(frmProcessor &p)
{
    p.lstCondizioni.hide();
    QFont fisso(u"Courier New"_s);
    fisso.setStyleHint(QFont::Monospace);
    fisso.setFixedPitch(true);
    fisso.setPointSize(p.font().pointSize() + 1);
    p.lstFile.setFont(fisso);
    p.lstFile.setItemDelegate(new RigaAlta(&p.lstFile));
    p.lstFile.setAlternatingRowColors(true);
    p.lstFile.setAccessibleName(u"Liste e condizioni di avvio"_s);
    p.lstFile.setToolTip(u"Doppio clic su una lista per impostarne la condizione di avvio"_s);
}

QLayout *disponiPulsanti(frmProcessor &p)
{
    QFont grassetto = p.pulAvvia.font();
    grassetto.setBold(true);
    p.pulAvvia.setFont(grassetto);
    p.pulAvvia.setIconSize({24, 24});
    p.pulAvvia.setMinimumSize(130, altezzaPulsanti);
    for (Pulsante *pulsante : {&p.pulSalva, &p.pulAnnulla})
        pulsante->setMinimumHeight(altezzaPulsanti);

    auto *pulsanti = new QHBoxLayout;
    pulsanti->setSpacing(8);
    pulsanti->addWidget(&p.pulAvvia);
    pulsanti->addStretch();
    pulsanti->addWidget(&p.pulSalva);
    pulsanti->addWidget(&p.pulAnnulla);
    return pulsanti;
}

} // namespace

void disponiProcessor(frmProcessor &processor)
{
    disponiMenu(processor);
    vestiLista(processor);

    auto *colonna = new QVBoxLayout(&processor);
    colonna->setMenuBar(&processor.barraMenu);
    colonna->setContentsMargins(10, 8, 10, 10);
    colonna->setSpacing(8);
    QLayout *pulsanti = disponiPulsanti(processor);
    colonna->addLayout(titoli(&processor, processor.lstFile));
    colonna->addWidget(&processor.lstFile, 1);
    colonna->addLayout(pulsanti);
    processor.resize(460, 420);
}
