#include "movelists/RigaTagliata.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QScreen>
#include <QTextLayout>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int respiro = 4; // logical pixels
// Laying out a line of millions of characters would take minutes.
constexpr qsizetype massimo = 1000;
// The longest path that a system knows has room.
constexpr qsizetype massimoSuggerimento = 4096;

// As rich text in rows of that width: a plain tool tip is one row, however long, and would take
// what looks like a tag for one.
QString aCapo(const QString &testo, int larghezza)
{
    QTextLayout disposto(testo, QToolTip::font());
    QTextOption opzione;
    opzione.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    disposto.setTextOption(opzione);
    QStringList righe;
    disposto.beginLayout();
    for (QTextLine riga = disposto.createLine(); riga.isValid(); riga = disposto.createLine()) {
        riga.setLineWidth(larghezza);
        righe += testo.mid(riga.textStart(), riga.textLength()).toHtmlEscaped();
    }
    disposto.endLayout();
    return u"<p style=\"white-space:pre\">"_s + righe.join(u"<br>"_s) + u"</p>"_s;
}

} // namespace

QString RigaTagliata::displayText(const QVariant &valore, const QLocale &lingua) const
{
    return QStyledItemDelegate::displayText(valore.toString().left(massimo), lingua);
}

QSize RigaTagliata::sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &indice) const
{
    // Room to be read, and to be hit. No line makes the list wider than its window.
    return {0, QStyledItemDelegate::sizeHint(opzione, indice).height() + respiro};
}

bool RigaTagliata::tagliata(QStyleOptionViewItem opzione, const QModelIndex &indice) const
{
    if (indice.data().toString().size() > massimo)
        return true;
    initStyleOption(&opzione, indice);
    const QStyle *stile = opzione.widget->style();
    const int margine = stile->pixelMetric(QStyle::PM_FocusFrameHMargin, &opzione, opzione.widget);
    const QRect posto =
        stile->subElementRect(QStyle::SE_ItemViewItemText, &opzione, opzione.widget);
    return opzione.fontMetrics.horizontalAdvance(opzione.text) > posto.width() - 2 * (margine + 1);
}

bool RigaTagliata::helpEvent(QHelpEvent *evento, QAbstractItemView *lista,
                             const QStyleOptionViewItem &opzione, const QModelIndex &indice)
{
    if (evento->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(evento, lista, opzione, indice);
    if (!indice.isValid() || !tagliata(opzione, indice)) {
        QToolTip::hideText();
        return true;
    }
    QString testo = indice.data().toString();
    if (testo.size() > massimoSuggerimento)
        testo = testo.left(massimoSuggerimento) + u'…';
    const int larghezza = lista->screen()->availableGeometry().width() * 2 / 3;
    QToolTip::showText(evento->globalPos(), aCapo(testo, larghezza), lista->viewport(),
                       lista->visualRect(indice));
    return true;
}
