// The list box, with or without check marks. Rows count from 0.
#pragma once

#include "controls/Controllo.h"

#include <QListWidget>

class Elenco : public Controllo<QListWidget>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex)
    Q_PROPERTY(int ListCount READ ListCount)
    Q_PROPERTY(QString Text READ Text)

public:
    enum class Stile { Semplice, ConSpunte };
    Elenco(const QString &nome, QWidget *dentro, Stile stile = Stile::Semplice);

    int ListCount() const { return count(); }
    int ListIndex() const { return currentRow(); }
    // Selects a row; a change raises Click at once. -1 clears the selection and raises nothing. A
    // row that does not exist throws Errore::ProprietaNonValida and changes nothing.
    void setListIndex(int riga);

    // The text of a row. Both throw Errore::ProprietaNonValida if the row does not exist.
    QString List(int riga) const;
    void setList(int riga, const QString &testo);
    // The text of the selected row, empty if there is none.
    QString Text() const;

    // Adds a row at the end, or before the given row. Throws Errore::ChiamataNonValida if the row
    // is not 0 to ListCount. Raises nothing.
    void AddItem(const QString &testo);
    void AddItem(const QString &testo, int riga);
    // Removing the selected row leaves nothing selected. Raises nothing. Throws
    // Errore::ChiamataNonValida if the row does not exist.
    void RemoveItem(int riga);
    void Clear();

    // A number that the program can keep for each row, 0 at first. Both throw
    // Errore::ProprietaNonValida if the row does not exist.
    qint32 ItemData(int riga) const;
    void setItemData(int riga, qint32 valore);

    // The check mark of a row; each change raises Click. Both throw Errore::ProprietaNonValida if
    // the row does not exist.
    bool Selected(int riga) const;
    void setSelected(int riga, bool valore);

    // The height of a row in layout units (15 to a logical pixel).
    double AltezzaRiga() const;

    // ListIndex or a check mark has changed, by the user or by code, or the user has pressed the
    // row that is selected already. The second press of a double click raises MouseDown and
    // DblClick, but no Click; DblClick needs the left button and both presses on the same row.
    Evento<> Click;
    // Arguments: KeyCode, Shift. Comes before the list handles the key; a handler that sets KeyCode
    // to 0 drops the key.
    Evento<int &, int> KeyDown;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &indice,
                                                         const QEvent *evento) const override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void mouseDoubleClickEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void focusInEvent(QFocusEvent *evento) override;

private:
    QListWidgetItem *riga(int numero, int errore = Errore::ProprietaNonValida) const;
    QListWidgetItem *nuova(const QString &testo) const;
    bool sullaSpunta(const QListWidgetItem *voce, QPoint punto) const;

    Stile m_stile;
    // No Click is raised while this is true.
    bool m_zitto = false;
    // A check mark was pressed: it changes, and Click comes, when the button is released.
    bool m_clickDovuto = false;
    // The row of the last press; invalid if no row was hit, or if the row was removed since.
    QPersistentModelIndex m_premuta;
    // Number of presses so far; shows if Qt has turned a double click into a press.
    unsigned m_pressioni = 0;
};
