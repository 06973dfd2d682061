// How the names that the robot gives are shown: on one line, cut where their place ends, and in
// full as a tool tip.
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

// A tool tip of that text to the letter, whatever marks are in it; it may take several lines.
QString suggerimento(const QString &testo);

// Rows of a list with a drawing before the name. The list is never wider than its place.
class RigheDiNomi : public QStyledItemDelegate
{
    Q_OBJECT

public:
    RigheDiNomi(const QIcon &disegno, QObject *lista);

    // Characters that cannot be seen, or would break the line, as one that stands for them.
    QString displayText(const QVariant &valore, const QLocale &lingua) const override;
    QSize sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &riga) const override;
    bool helpEvent(QHelpEvent *evento, QAbstractItemView *lista,
                   const QStyleOptionViewItem &opzione, const QModelIndex &riga) override;

protected:
    void initStyleOption(QStyleOptionViewItem *opzione, const QModelIndex &riga) const override;

private:
    QIcon m_disegno;
};
