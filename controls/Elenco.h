// The list box, with or without check marks.
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
    // -1 clears the selection and raises nothing; a change raises Click at once; a row that is not
    // there is Errore::ProprietaNonValida and changes nothing.
    void setListIndex(int riga);

    // A row that is not there is Errore::ProprietaNonValida.
    QString List(int riga) const;
    void setList(int riga, const QString &testo);
    QString Text() const;

    // At the end, or before the given row.
    void AddItem(const QString &testo);
    void AddItem(const QString &testo, int riga);
    // A row that is not there is Errore::ChiamataNonValida. After removing the selected row
    // nothing is selected.
    void RemoveItem(int riga);
    void Clear();

    // A number of the program's own for each row, 0 at first.
    qint32 ItemData(int riga) const;
    void setItemData(int riga, qint32 valore);

    // The check mark of a row; every change raises Click, by the user or by code.
    bool Selected(int riga) const;
    void setSelected(int riga, bool valore);

    // The height of a row in layout units.
    double AltezzaRiga() const;

    // DblClick comes with the left button and on a row only, both presses on the same one. The
    // second press is a MouseDown as well, and no Click.
    // When ListIndex or a check mark changes, by the user or by code, and at a press on a row.
    Evento<> Click;
    // KeyCode and Shift, before the list; a handler that sets KeyCode to 0 keeps the key from it.
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
    bool m_zitto = false;
    // A press on a check mark: the mark changes, and Click comes, when the button is released.
    bool m_clickDovuto = false;
    // The row of the last press; invalid beside the rows, and when that row has gone.
    QPersistentModelIndex m_premuta;
    // How many presses there were, to be compared.
    unsigned m_pressioni = 0;
};
