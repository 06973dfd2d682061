#include "controls/TastiRipetuti.h"

#include "controls/Tasti.h"

#include <QApplication>
#include <QKeyEvent>

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

void fermaTastiRipetuti(QApplication &app)
{
    app.installEventFilter(new FermaRipetuti(&app));
}
