#include "controls/Elenco.h"

#include "controls/Tasti.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <utility>

Elenco::Elenco(const QString &nome, QWidget *dentro, Stile stile)
    : Controllo(nome, dentro), m_stile(stile)
{
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    viewport()->setMouseTracking(true);
    // m_zitto: Qt also changes the current row when rows are added or removed, which is no choice.
    connect(this, &QListWidget::currentRowChanged, this, [this](int) {
        if (!m_zitto)
            Click();
    });
    connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem *) {
        m_clickDovuto = false;
        if (!m_zitto)
            Click();
    });
}

QListWidgetItem *Elenco::riga(int numero, int errore) const
{
    QListWidgetItem *voce = item(numero);
    if (!voce)
        throw Errore(errore);
    return voce;
}

void Elenco::setListIndex(int numero)
{
    if (numero < -1 || numero >= count())
        throw Errore(Errore::ProprietaNonValida);
    if (numero == currentRow())
        return;
    const QScopedValueRollback zitto(m_zitto, m_zitto || numero == -1);
    setCurrentRow(numero);
    if (numero == -1)
        clearSelection();
}

QString Elenco::List(int numero) const
{
    return riga(numero)->text();
}

void Elenco::setList(int numero, const QString &testo)
{
    const QScopedValueRollback zitto(m_zitto, true);
    riga(numero)->setText(testo);
}

QString Elenco::Text() const
{
    return currentItem() ? currentItem()->text() : QString();
}

QListWidgetItem *Elenco::nuova(const QString &testo) const
{
    auto *voce = new QListWidgetItem(testo);
    if (m_stile == Stile::ConSpunte) {
        voce->setFlags(voce->flags() | Qt::ItemIsUserCheckable);
        voce->setCheckState(Qt::Unchecked);
    }
    return voce;
}

void Elenco::AddItem(const QString &testo)
{
    AddItem(testo, count());
}

void Elenco::AddItem(const QString &testo, int numero)
{
    if (numero < 0 || numero > count())
        throw Errore(Errore::ChiamataNonValida);
    const QScopedValueRollback zitto(m_zitto, true);
    insertItem(numero, nuova(testo));
}

void Elenco::RemoveItem(int numero)
{
    riga(numero, Errore::ChiamataNonValida);
    const QScopedValueRollback zitto(m_zitto, true);
    if (numero == currentRow()) {
        setCurrentRow(-1);
        clearSelection();
    }
    delete takeItem(numero);
}

void Elenco::Clear()
{
    const QScopedValueRollback zitto(m_zitto, true);
    clear();
}

qint32 Elenco::ItemData(int numero) const
{
    return riga(numero)->data(Qt::UserRole).toInt();
}

void Elenco::setItemData(int numero, qint32 valore)
{
    const QScopedValueRollback zitto(m_zitto, true);
    riga(numero)->setData(Qt::UserRole, valore);
}

bool Elenco::Selected(int numero) const
{
    return riga(numero)->checkState() == Qt::Checked;
}

void Elenco::setSelected(int numero, bool valore)
{
    riga(numero)->setCheckState(valore ? Qt::Checked : Qt::Unchecked);
}

double Elenco::AltezzaRiga() const
{
    return Unita::unita(count() > 0 ? sizeHintForRow(0) : fontMetrics().height());
}

QItemSelectionModel::SelectionFlags Elenco::selectionCommand(const QModelIndex &indice,
                                                             const QEvent *evento) const
{
    // Qt would deselect the current row at a click below the rows, or with the Control key held.
    if (!indice.isValid())
        return QItemSelectionModel::NoUpdate;
    const auto comando = QListWidget::selectionCommand(indice, evento);
    return comando.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::ClearAndSelect
                                                           : comando;
}

bool Elenco::sullaSpunta(const QListWidgetItem *voce, QPoint punto) const
{
    if (m_stile != Stile::ConSpunte)
        return false;
    QStyleOptionViewItem opzione;
    initViewItemOption(&opzione);
    opzione.rect = visualItemRect(voce);
    opzione.features |= QStyleOptionViewItem::HasCheckIndicator;
    return style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &opzione, this)
        .contains(punto);
}

void Elenco::mousePressEvent(QMouseEvent *evento)
{
    const QPoint punto = evento->position().toPoint();
    const QListWidgetItem *sotto = itemAt(punto);
    ++m_pressioni;
    // Only the left button selects a row.
    if (evento->button() != Qt::LeftButton) {
        premuto(evento);
        return;
    }
    m_clickDovuto = sotto && sullaSpunta(sotto, punto);
    const int prima = currentRow();
    m_premuta = indexAt(punto);
    {
        const QScopedValueRollback zitto(m_zitto, m_zitto || m_clickDovuto);
        Controllo::mousePressEvent(evento);
        // Qt does not select the row whose check mark is pressed.
        if (m_clickDovuto && itemAt(punto) == sotto)
            setCurrentRow(row(sotto));
    }
    // A press on the row that is selected already raises Click as well.
    if (!m_clickDovuto && sotto && itemAt(punto) == sotto && row(sotto) == prima)
        Click();
}

void Elenco::mouseDoubleClickEvent(QMouseEvent *evento)
{
    const QModelIndex sotto = indexAt(evento->position().toPoint());
    const bool sullaRiga =
        evento->button() == Qt::LeftButton && sotto.isValid() && m_premuta == sotto;
    // Below the rows and on another row Qt calls mousePressEvent, which has raised MouseDown.
    const unsigned prima = m_pressioni;
    QListWidget::mouseDoubleClickEvent(evento);
    evento->accept();
    if (m_pressioni == prima)
        MouseDown(numeroPulsante(evento->button()), numeroMaiuscole(evento->modifiers()),
                  evento->position().x() * unitaPerPixel, evento->position().y() * unitaPerPixel);
    if (sullaRiga)
        DblClick();
}

void Elenco::mouseReleaseEvent(QMouseEvent *evento)
{
    Controllo::mouseReleaseEvent(evento);
    // Released outside the check mark: the mark stays as it is, but the row was selected.
    if (std::exchange(m_clickDovuto, false))
        Click();
}

void Elenco::focusInEvent(QFocusEvent *evento)
{
    // If no row is current, Qt makes the first one current when the list gets the focus.
    const QScopedValueRollback zitto(m_zitto, true);
    const int prima = currentRow();
    Controllo::focusInEvent(evento);
    if (prima == -1) {
        setCurrentRow(-1);
        clearSelection();
    }
}

void Elenco::keyPressEvent(QKeyEvent *evento)
{
    int codice = Tasti::codice(*evento);
    KeyDown(codice, numeroMaiuscole(evento->modifiers()));
    // While the space bar is held, the check mark changes only once.
    const bool ancora = codice == Tasti::Spazio && evento->isAutoRepeat();
    if (codice != 0 && !(ancora && m_stile == Stile::ConSpunte))
        Controllo::keyPressEvent(evento);
}
