// The combo box, with a fixed list or an editable text.
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
    // -1 where nothing is selected, or while the text was typed.
    int ListIndex() const { return m_scelta; }
    // As in a list box: -1 clears and raises nothing, a change raises Click at once, a row that is
    // not there is Errore::ProprietaNonValida and changes nothing.
    void setListIndex(int riga);

    QString Text() const { return currentText(); }
    QString List(int riga) const;
    void AddItem(const QString &testo);
    // A row that is not there is Errore::ChiamataNonValida.
    void RemoveItem(int riga);
    void Clear();

    // When a row is chosen, by the user or by code.
    Evento<> Click;
    // When the text is typed.
    Evento<> Change;
    // When the list has gone, with a choice or without; before the Click of the choice.
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
