#include "TastiRipetuti.h"

#include "Tasti.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>

namespace {

class FermaRipetuti : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() != QEvent::KeyPress)
            return false;
        const auto &tasto = *static_cast<QKeyEvent *>(evento);
        const int codice = Tasti::codice(tasto);
        return tasto.isAutoRepeat() && (codice == Tasti::Invio || codice == Tasti::Esc);
    }
};

} // namespace

void fermaTastiRipetuti()
{
    static QPointer<FermaRipetuti> filtro;
    if (filtro)
        return;
    filtro = new FermaRipetuti(QCoreApplication::instance());
    QCoreApplication::instance()->installEventFilter(filtro);
}
