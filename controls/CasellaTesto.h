// The text box.
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
    // The caret stays where the user types: as far from the text's end as it was.
    void setText(const QString &testo);

    // Whenever the text changes, by the user or by code.
    Evento<> Change;
    // Each typed character first, as its byte (8 for backspace); the handler may change it, or drop
    // it with 0. Pasted text does not come here.
    Evento<int &> KeyPress;
    // When the focus goes to another control or window of the program; not when another program or
    // a message box comes to the front.
    Evento<> LostFocus;
    Evento<> Click;

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void inputMethodEvent(QInputMethodEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;

private:
    QString filtrato(const QString &battuto);
    void fuocoCambiato(QWidget *ora);

    // The window went to the back with the focus in this box; who comes next decides.
    bool m_inSospeso = false;
};

// The common filter: digits and backspace pass, all else is dropped.
void soloCifre(int &KeyAscii);
