// What all controls have in common, laid over the Qt widget of their kind.
#pragma once

#include "Errore.h"
#include "Evento.h"
#include "Unita.h"

#include <QMouseEvent>
#include <QString>
#include <QWidget>

// Buttons as the mouse events give them: 1 left, 2 right, 4 middle.
int numeroPulsante(Qt::MouseButton pulsante);
int numeroPulsanti(Qt::MouseButtons pulsanti);
// 1 for the shift key, 2 for control, 4 for alt, added up.
int numeroMaiuscole(Qt::KeyboardModifiers tasti);

// Properties under the design's names; goes into the class body behind Q_OBJECT.
#define CONTROLLO                                                                                  \
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)                                                  \
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)                                         \
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)                                         \
    Q_PROPERTY(double Left READ Left WRITE setLeft)                                                \
    Q_PROPERTY(double Top READ Top WRITE setTop)                                                   \
    Q_PROPERTY(double Width READ Width WRITE setWidth)                                             \
    Q_PROPERTY(double Height READ Height WRITE setHeight)

// Tag, geometry in layout units, and the mouse events, for any widget.
template <class Base>
class Controllo : public Base
{
public:
    explicit Controllo(const QString &nome, QWidget *dentro) : Base(dentro)
    {
        Base::setObjectName(nome);
        Base::setMouseTracking(true);
    }

    QString Tag() const { return m_tag; }
    void setTag(const QString &tag) { m_tag = tag; }

    bool Enabled() const { return Base::isEnabled(); }
    // As set for this control, whether or not its window is on the screen.
    bool Visible() const { return !Base::isHidden(); }

    // Layout units, relative to what the control lies in.
    double Left() const { return Unita::unita(Base::x()); }
    double Top() const { return Unita::unita(Base::y()); }
    double Width() const { return Unita::unita(Base::width()); }
    double Height() const { return Unita::unita(Base::height()); }
    void setLeft(double unita) { Base::move(Unita::pixel(unita), Base::y()); }
    void setTop(double unita) { Base::move(Base::x(), Unita::pixel(unita)); }
    void setWidth(double unita) { Base::resize(Unita::pixel(unita), Base::height()); }
    void setHeight(double unita) { Base::resize(Base::width(), Unita::pixel(unita)); }
    void Move(double left, double top) { Base::move(Unita::pixel(left), Unita::pixel(top)); }

    // Fails with Errore::ChiamataNonValida where the control cannot take the focus now.
    void SetFocus()
    {
        if (!Base::isVisible() || !Base::isEnabled())
            throw Errore(Errore::ChiamataNonValida);
        Base::setFocus(Qt::OtherFocusReason);
    }

    // Button, Shift, X, Y. X and Y in units of the control, by default layout units.
    Evento<int, int, double, double> MouseDown;
    Evento<int, int, double, double> MouseMove;
    Evento<int, int, double, double> MouseUp;
    Evento<> DblClick;

protected:
    // 15 on a surface in layout units, 1 on one whose unit is the pixel.
    double unitaPerPixel = Unita::perPixel;

    void mousePressEvent(QMouseEvent *evento) override
    {
        Base::mousePressEvent(evento);
        evento->accept();
        MouseDown(numeroPulsante(evento->button()), numeroMaiuscole(evento->modifiers()),
                  evento->position().x() * unitaPerPixel, evento->position().y() * unitaPerPixel);
    }
    void mouseMoveEvent(QMouseEvent *evento) override
    {
        Base::mouseMoveEvent(evento);
        evento->accept();
        MouseMove(numeroPulsanti(evento->buttons()), numeroMaiuscole(evento->modifiers()),
                  evento->position().x() * unitaPerPixel, evento->position().y() * unitaPerPixel);
    }
    void mouseReleaseEvent(QMouseEvent *evento) override
    {
        Base::mouseReleaseEvent(evento);
        evento->accept();
        MouseUp(numeroPulsante(evento->button()), numeroMaiuscole(evento->modifiers()),
                evento->position().x() * unitaPerPixel, evento->position().y() * unitaPerPixel);
    }
    void mouseDoubleClickEvent(QMouseEvent *evento) override
    {
        // The second press of a double click is a press as well.
        Base::mouseDoubleClickEvent(evento);
        evento->accept();
        DblClick();
    }

private:
    QString m_tag;
};
