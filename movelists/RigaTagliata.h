// How a list shows its lines: a very long one only as far as anybody can see.
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

private:
    static constexpr qsizetype massimo = 1000;
};
