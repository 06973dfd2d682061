// A list box for long listings that arrive row by row.
#pragma once

#include "controls/Elenco.h"

#include <QBasicTimer>

// The view lays out all rows whenever one is added, so a long list would become slower and slower.
// New rows are therefore in the list at once, but the view gets them every 100 ms.
class ElencoCrescente : public Elenco
{
    Q_OBJECT

public:
    using Elenco::Elenco;

    // Gives all rows to the view now.
    void assesta();

protected:
    void rowsInserted(const QModelIndex &sopra, int prima, int ultima) override;
    void rowsAboutToBeRemoved(const QModelIndex &sopra, int prima, int ultima) override;
    void reset() override;
    // The target of a key depends on the positions of the rows.
    QModelIndex moveCursor(CursorAction azione, Qt::KeyboardModifiers tasti) override;
    void timerEvent(QTimerEvent *evento) override;

private:
    // The first of the rows that the view does not have yet, all at the end; -1 if it has all.
    int m_prima = -1;
    QBasicTimer m_pausa;
};
