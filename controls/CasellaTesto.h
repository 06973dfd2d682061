// The text box, of one line.
#pragma once

#include "controls/Controllo.h"

#include <QLineEdit>

class CasellaTesto : public Controllo<QLineEdit>
{
    Q_OBJECT
    CONTROLLO
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    CasellaTesto(const QString &nome, QWidget *dentro, const QString &testo = {});
    ~CasellaTesto() override;

    QString Text() const { return text(); }
    // Raises Change if the text differs. The caret keeps its distance from the end of the text, so
    // that a user who is typing goes on where he was.
    void setText(const QString &testo);

    // The text has changed, by the user or by code.
    Evento<> Change;
    // A character was typed; it is not in the text yet. The argument is its byte in Windows-1252, 8
    // for backspace. The handler may change it; 0 drops it. Pasted text does not come here.
    Evento<int &> KeyPress;
    // The focus has gone to another control or window of the program. Not raised when another
    // program or a message box comes to the front.
    Evento<> LostFocus;
    // The left button was released inside the box.
    Evento<> Click;

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void inputMethodEvent(QInputMethodEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;

private:
    QString filtrato(const QString &battuto);
    void fuocoCambiato(QWidget *ora);

    // The window has become inactive while this box had the focus. Whether LostFocus is raised
    // depends on the window that becomes active next.
    bool m_inSospeso = false;
};

// A filter for KeyPress: digits and backspace pass, anything else is dropped.
void soloCifre(int &KeyAscii);
