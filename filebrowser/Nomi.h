// Shows the names that the robot sends: on one line, shortened if there is no room, and in full as
// a tool tip.
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

// The tool tip that shows the text exactly as it is, also if it contains markup. A long text takes
// several lines. Empty for an empty text.
QString suggerimento(const QString &testo);

// Rows of a list with a drawing before the name. They are never wider than the list.
class RigheDiNomi : public QStyledItemDelegate
{
    Q_OBJECT

public:
    RigheDiNomi(const QIcon &disegno, QObject *lista);

    // Control characters, which cannot be seen or would break the line, are replaced by U+FFFD.
    QString displayText(const QVariant &valore, const QLocale &lingua) const override;
    QSize sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &riga) const override;
    bool helpEvent(QHelpEvent *evento, QAbstractItemView *lista,
                   const QStyleOptionViewItem &opzione, const QModelIndex &riga) override;

protected:
    void initStyleOption(QStyleOptionViewItem *opzione, const QModelIndex &riga) const override;

private:
    QIcon m_disegno;
};
