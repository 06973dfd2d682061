#include "controls/SecondaPressione.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QSet>
#include <QStyleHints>
#include <QWidget>

namespace {

class Guardia : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override
    {
        if (!oggetto->isWidgetType())
            return false;
        auto *controllo = static_cast<QWidget *>(oggetto);
        switch (evento->type()) {
        case QEvent::MouseButtonPress: {
            const quint64 quando = static_cast<QMouseEvent *>(evento)->timestamp();
            // Qt sends a press that a widget ignores to its parents as well: still the same press.
            const bool inViaggio = m_premuto && quando == m_quando && controllo != m_premuto &&
                                   controllo->isAncestorOf(m_premuto);
            if (!inViaggio)
                m_aperti.clear();
            m_premuto = controllo;
            m_quando = quando;
            return false;
        }
        case QEvent::Show:
            // Qt handles popup lists and menus itself.
            if (controllo->window()->windowType() != Qt::Popup)
                m_aperti.insert(controllo);
            return false;
        case QEvent::MouseButtonDblClick:
            return static_cast<QMouseEvent *>(evento)->timestamp() - m_quando <= intervallo() &&
                   appenaAperto(controllo);
        default:
            return false;
        }
    }

private:
    static quint64 intervallo()
    {
        return static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    }
    bool appenaAperto(const QWidget *controllo) const
    {
        while (!m_aperti.contains(controllo)) {
            if (controllo->isWindow())
                return false;
            controllo = controllo->parentWidget();
        }
        return true;
    }

    // The widgets shown since the last press. Some may be deleted: pointers are only compared.
    QSet<const QWidget *> m_aperti;
    QPointer<QWidget> m_premuto;
    quint64 m_quando = 0;
};

} // namespace

void fermaSecondePressioni(QApplication &app)
{
    app.installEventFilter(new Guardia(&app));
}
