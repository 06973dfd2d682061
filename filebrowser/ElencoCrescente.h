// A list that a long listing fills row by row.
#pragma once

#include "controls/Elenco.h"

#include <QBasicTimer>

// New rows are in the list at once, but the view hears of them a few times a second: it lays out
// all rows whenever one comes, and a list would grow the slower the longer it is.
class ElencoCrescente : public Elenco
{
    Q_OBJECT

public:
    using Elenco::Elenco;

    // Tells the view of all rows now.
    void assesta();

protected:
    void rowsInserted(const QModelIndex &sopra, int prima, int ultima) override;
    void rowsAboutToBeRemoved(const QModelIndex &sopra, int prima, int ultima) override;
    void reset() override;
    // Where a key leads is told by where the rows are.
    QModelIndex moveCursor(CursorAction azione, Qt::KeyboardModifiers tasti) override;
    void timerEvent(QTimerEvent *evento) override;

private:
    // The rows from this one to the end are not laid out yet; -1 where all are.
    int m_prima = -1;
    QBasicTimer m_pausa;
};
