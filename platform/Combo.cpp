#include "Combo.h"

#include <QKeyEvent>
#include <QLineEdit>

Combo::Combo(const QString &nome, QWidget *dentro, Stile stile) : Controllo(nome, dentro)
{
    setEditable(stile == Stile::Editabile);
    if (isEditable()) {
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
            m_scelta = -1;
            Change();
        });
    }
    connect(this, &QComboBox::activated, this, [this](int riga) {
        m_scelta = riga;
        Click();
    });
}

void Combo::setListIndex(int riga)
{
    if (riga < -1 || riga >= count())
        throw Errore(Errore::ProprietaNonValida);
    if (riga == m_scelta)
        return;
    m_scelta = riga;
    setCurrentIndex(riga);
    if (isEditable())
        setEditText(riga < 0 ? QString() : itemText(riga));
    if (riga >= 0)
        Click();
}

QString Combo::List(int riga) const
{
    if (riga < 0 || riga >= count())
        throw Errore(Errore::ProprietaNonValida);
    return itemText(riga);
}

void Combo::AddItem(const QString &testo)
{
    addItem(testo);
    // The first item of an empty box would become the current one by itself.
    if (m_scelta == -1 && !isEditable())
        setCurrentIndex(-1);
}

void Combo::RemoveItem(int riga)
{
    if (riga < 0 || riga >= count())
        throw Errore(Errore::ChiamataNonValida);
    const bool scelta = riga == m_scelta;
    removeItem(riga);
    if (scelta) {
        m_scelta = -1;
        setCurrentIndex(-1);
    } else if (riga < m_scelta) {
        --m_scelta;
    }
}

void Combo::Clear()
{
    clear();
    m_scelta = -1;
}

void Combo::keyPressEvent(QKeyEvent *evento)
{
    // Enter would look the typed text up in the list and select a row: the text stays typed.
    if (isEditable() && (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter))
        evento->ignore();
    else
        Controllo::keyPressEvent(evento);
}
