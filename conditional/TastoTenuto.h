// The key that is at work in a box or a combo of the condition dialog. The panel that it switches
// on must not take the focus from under it: what follows of a held key, or of a number that is
// being typed, would go to another control and change that one.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

class CasellaTesto;
class Combo;
class QKeyEvent;
class QWidget;

class TastoTenuto : public QObject
{
    Q_OBJECT

public:
    // The keys up and down spin a number in that box, which keeps the focus for the next press.
    void segui(CasellaTesto &casella);
    // The keys that move through the rows give the focus away when they are let go, those that type
    // a row's text do not.
    void segui(Combo &combo);

    // Whether a key is at work there. If so, and if the focus is to go on afterwards, lasciato runs
    // as soon as the key is let go.
    bool trattiene(const QWidget *controllo);

    std::function<void()> lasciato;

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    // What becomes of the focus after the key.
    enum class Dopo { Resta, Passa };

    void premuto(QWidget &controllo, const QKeyEvent &tasto);
    void finito();

    QPointer<QWidget> m_dove;
    Dopo m_dopo = Dopo::Resta;
    bool m_dovuto = false;
};
