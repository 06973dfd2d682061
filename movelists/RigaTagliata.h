// How a list shows its lines: with some room, and a very long one only as far as anybody can see.
#pragma once

#include <QStyledItemDelegate>

class RigaTagliata : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Laying out a line of millions of characters would take minutes.
    QString displayText(const QVariant &valore, const QLocale &lingua) const override
    {
        return QStyledItemDelegate::displayText(valore.toString().left(massimo), lingua);
    }

    // Room to be read, and to be hit.
    QSize sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &indice) const override
    {
        return QStyledItemDelegate::sizeHint(opzione, indice) + QSize(0, respiro);
    }

private:
    static constexpr int respiro = 4; // logical pixels
    static constexpr qsizetype massimo = 1000;
};
