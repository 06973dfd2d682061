#include "filebrowser/Nomi.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

// In logical pixels.
constexpr int altezzaRiga = 22;
constexpr int latoDisegno = 16;

} // namespace

QString suggerimento(const QString &testo)
{
    if (testo.isEmpty())
        return {};
    return u"<span style=\"white-space: pre-wrap\">"_s + testo.toHtmlEscaped() + u"</span>"_s;
}

RigheDiNomi::RigheDiNomi(const QIcon &disegno, QObject *lista)
    : QStyledItemDelegate(lista), m_disegno(disegno)
{
}

QString RigheDiNomi::displayText(const QVariant &valore, const QLocale &) const
{
    QString testo = valore.toString();
    for (QChar &c : testo) {
        if (c.category() == QChar::Other_Control)
            c = QChar::ReplacementCharacter;
    }
    return testo;
}

QSize RigheDiNomi::sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &riga) const
{
    return {0, qMax(altezzaRiga, QStyledItemDelegate::sizeHint(opzione, riga).height())};
}

void RigheDiNomi::initStyleOption(QStyleOptionViewItem *opzione, const QModelIndex &riga) const
{
    QStyledItemDelegate::initStyleOption(opzione, riga);
    opzione->features |= QStyleOptionViewItem::HasDecoration;
    opzione->icon = m_disegno;
    opzione->decorationSize = QSize(latoDisegno, latoDisegno);
}

bool RigheDiNomi::helpEvent(QHelpEvent *evento, QAbstractItemView *lista,
                            const QStyleOptionViewItem &opzione, const QModelIndex &riga)
{
    if (evento->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(evento, lista, opzione, riga);
    const bool intero =
        QStyledItemDelegate::sizeHint(opzione, riga).width() <= opzione.rect.width();
    const QString nome = displayText(riga.data(), opzione.locale);
    QToolTip::showText(evento->globalPos(), intero ? QString() : suggerimento(nome),
                       lista->viewport(), opzione.rect);
    return true;
}
