#include "controls/PressioniPerse.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace {

class LasciaPressioni : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override
    {
        switch (evento->type()) {
        case QEvent::WindowBlocked:
        case QEvent::WindowDeactivate:
        case QEvent::Hide:
            if (const auto *finestra = qobject_cast<QWidget *>(oggetto);
                finestra && finestra->isWindow())
                rilasciaPulsanti(*finestra);
            break;
        default:
            break;
        }
        return false;
    }

private:
    static void rilasciaPulsanti(const QWidget &finestra)
    {
        for (QAbstractButton *pulsante : finestra.findChildren<QAbstractButton *>()) {
            if (pulsante->isDown())
                pulsante->setDown(false);
        }
    }
};

} // namespace

void lasciaPressioniPerse(QApplication &app)
{
    app.installEventFilter(new LasciaPressioni(&app));
}
