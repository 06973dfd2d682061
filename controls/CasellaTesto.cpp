#include "controls/CasellaTesto.h"

#include "base/Codifica.h"
#include "controls/Finestra.h"
#include "controls/UnaRiga.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

CasellaTesto::CasellaTesto(const QString &nome, QWidget *dentro, const QString &testo)
    : Controllo(nome, dentro)
{
    setValidator(new UnaRiga(this));
    setText(testo);
    connect(this, &QLineEdit::textChanged, this, [this] { Change(); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *ora) { fuocoCambiato(ora); });
}

CasellaTesto::~CasellaTesto()
{
    // If the box has the focus, ~QWidget still makes the application emit focusChanged, when the
    // members of this class are gone already.
    disconnect(qApp, nullptr, this, nullptr);
}

void CasellaTesto::setText(const QString &testo)
{
    if (testo == text())
        return;
    const qsizetype dallaFine = text().size() - cursorPosition();
    QLineEdit::setText(testo);
    setCursorPosition(static_cast<int>(qMax<qsizetype>(0, text().size() - dallaFine)));
}

QString CasellaTesto::filtrato(const QString &battuto)
{
    QString passati;
    for (const QChar c : battuto) {
        const char byte = Codifica::inByte(QStringView(&c, 1)).front();
        const int prima = static_cast<unsigned char>(byte);
        int dopo = prima;
        KeyPress(dopo);
        if (dopo == prima)
            passati += c;
        else if (dopo > 0 && dopo < 256)
            passati += Codifica::daByte(QByteArray(1, static_cast<char>(dopo)));
    }
    return passati;
}

void CasellaTesto::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Backspace) {
        int tasto = 8;
        KeyPress(tasto);
        if (tasto == 8)
            QLineEdit::keyPressEvent(evento);
        return;
    }
    const QString testo = evento->text();
    // Control and Alt together mean AltGr, which types characters.
    const bool comando = evento->modifiers().testFlag(Qt::ControlModifier) &&
                         !evento->modifiers().testFlag(Qt::AltModifier);
    const bool battuto = !testo.isEmpty() && testo.front().isPrint() && !comando &&
                         !evento->modifiers().testFlag(Qt::MetaModifier);
    if (!battuto || isReadOnly()) {
        QLineEdit::keyPressEvent(evento);
        return;
    }
    const QString passati = filtrato(testo);
    if (!passati.isEmpty())
        insert(passati);
    evento->accept();
}

void CasellaTesto::inputMethodEvent(QInputMethodEvent *evento)
{
    QInputMethodEvent filtratoEvento(evento->preeditString(), evento->attributes());
    filtratoEvento.setCommitString(filtrato(evento->commitString()), evento->replacementStart(),
                                   evento->replacementLength());
    QLineEdit::inputMethodEvent(&filtratoEvento);
}

void CasellaTesto::focusOutEvent(QFocusEvent *evento)
{
    QLineEdit::focusOutEvent(evento);
    switch (evento->reason()) {
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        break;
    case Qt::ActiveWindowFocusReason:
        m_inSospeso = true;
        break;
    default:
        LostFocus();
    }
}

void CasellaTesto::fuocoCambiato(QWidget *ora)
{
    if (!m_inSospeso)
        return;
    // ora is null if the window that becomes active has no control that takes the focus.
    const QWidget *dove = ora ? ora->window() : QApplication::activeWindow();
    if (ora == this) {
        m_inSospeso = false;
    } else if (qobject_cast<const Finestra *>(dove) && (ora || dove != window())) {
        m_inSospeso = false;
        LostFocus();
    }
}

void CasellaTesto::mouseReleaseEvent(QMouseEvent *evento)
{
    Controllo::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()))
        Click();
}

void soloCifre(int &KeyAscii)
{
    if (KeyAscii != 8 && (KeyAscii < '0' || KeyAscii > '9'))
        KeyAscii = 0;
}
