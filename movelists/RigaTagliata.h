// How a list shows its lines: with some room, and a long one as far as the list is wide; the tool
// tip has it whole.
#pragma once

#include <QStyledItemDelegate>

class RigaTagliata : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &valore, const QLocale &lingua) const override;
    QSize sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &indice) const override;
    bool helpEvent(QHelpEvent *evento, QAbstractItemView *lista,
                   const QStyleOptionViewItem &opzione, const QModelIndex &indice) override;

private:
    bool tagliata(QStyleOptionViewItem opzione, const QModelIndex &indice) const;
};
