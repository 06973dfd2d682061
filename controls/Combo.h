// The combo box: a fixed list, or a list with an editable text.
#pragma once

#include "controls/Controllo.h"

#include <QComboBox>

class Combo : public Controllo<QComboBox>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex)
    Q_PROPERTY(int ListCount READ ListCount)
    Q_PROPERTY(QString Text READ Text)

public:
    enum class Stile { Fisso, Editabile };
    Combo(const QString &nome, QWidget *dentro, Stile stile = Stile::Fisso);

    int ListCount() const { return count(); }
    // -1 if no row is selected, or if the text was typed.
    int ListIndex() const { return m_scelta; }
    // Selects a row; a change raises Click at once. -1 selects nothing, clears an editable text and
    // raises nothing. A row that does not exist throws Errore::ProprietaNonValida and changes
    // nothing.
    void setListIndex(int riga);

    QString Text() const { return currentText(); }
    // Throws Errore::ProprietaNonValida if the row does not exist.
    QString List(int riga) const;
    // Adds a row at the end; selection and text stay as they are.
    void AddItem(const QString &testo);
    // Removing the selected row leaves nothing selected. Throws Errore::ChiamataNonValida if the
    // row does not exist.
    void RemoveItem(int riga);
    void Clear();

    // A row was chosen, by the user or by code.
    Evento<> Click;
    // The user has changed the text.
    Evento<> Change;
    // The list has closed, with or without a choice; comes before the Click of the choice.
    Evento<> Chiusa;

    void showPopup() override;

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;

private:
    template <class Modifica>
    void senzaScelta(Modifica modifica);

    int m_scelta = -1;
};
