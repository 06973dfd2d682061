#include "controls/Combo.h"

#include "controls/UnaRiga.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

Combo::Combo(const QString &nome, QWidget *dentro, Stile stile) : Controllo(nome, dentro)
{
    setEditable(stile == Stile::Editabile);
    if (isEditable()) {
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        setValidator(new UnaRiga(this));
        // On leaving the box Qt would look the typed text up in the list and select its row.
        disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
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
    // -1 goes on even if nothing is selected: it also clears a typed text.
    if (riga == m_scelta && riga >= 0)
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

// Adds or removes rows while nothing is selected: Qt would select a row then, and change the text.
template <class Modifica>
void Combo::senzaScelta(Modifica modifica)
{
    const QString testo = currentText();
    modifica();
    setCurrentIndex(-1);
    if (isEditable())
        setEditText(testo);
}

void Combo::AddItem(const QString &testo)
{
    if (m_scelta == -1)
        senzaScelta([&] { addItem(testo); });
    else
        addItem(testo);
}

void Combo::RemoveItem(int riga)
{
    if (riga < 0 || riga >= count())
        throw Errore(Errore::ChiamataNonValida);
    if (riga == m_scelta) {
        m_scelta = -1;
        removeItem(riga);
        setCurrentIndex(-1);
        if (isEditable())
            clearEditText();
    } else if (m_scelta == -1) {
        senzaScelta([&] { removeItem(riga); });
    } else {
        removeItem(riga);
        m_scelta = currentIndex();
    }
}

void Combo::Clear()
{
    clear();
    m_scelta = -1;
}

void Combo::showPopup()
{
    Controllo::showPopup();
    // A choice, Esc and a press outside all close the list. Hiding is the one event that they have
    // in common.
    view()->window()->installEventFilter(this);
}

bool Combo::eventFilter(QObject *oggetto, QEvent *evento)
{
    const bool esito = Controllo::eventFilter(oggetto, evento);
    if (evento->type() == QEvent::Hide && oggetto == view()->window())
        Chiusa();
    return esito;
}

void Combo::wheelEvent(QWheelEvent *evento)
{
    // Without the focus the wheel must not change the choice: the pointer is there by chance.
    if (hasFocus())
        Controllo::wheelEvent(evento);
    else
        evento->ignore();
}

void Combo::keyPressEvent(QKeyEvent *evento)
{
    // On Enter Qt would look the typed text up in the list and select its row.
    if (isEditable() && (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter))
        evento->ignore();
    else
        Controllo::keyPressEvent(evento);
}
