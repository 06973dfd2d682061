// What all controls have in common, as a template over the Qt widget of each kind.
#pragma once

#include "base/Errore.h"
#include "controls/Evento.h"
#include "controls/Tag.h"
#include "controls/Unita.h"

#include <QMouseEvent>
#include <QString>
#include <QWidget>

// Mouse buttons as numbers, added up: 1 left, 2 right, 4 middle.
int numeroPulsante(Qt::MouseButton pulsante);
int numeroPulsanti(Qt::MouseButtons pulsanti);
// Modifier keys as numbers, added up: 1 Shift, 2 Control, 4 Alt.
int numeroMaiuscole(Qt::KeyboardModifiers tasti);

// The properties of every control; goes into the class body after Q_OBJECT.
#define CONTROLLO                                                                                  \
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)                                                  \
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)                                         \
    Q_PROPERTY(bool Visible READ Visible WRITE setVisible)                                         \
    Q_PROPERTY(double Left READ Left WRITE setLeft)                                                \
    Q_PROPERTY(double Top READ Top WRITE setTop)                                                   \
    Q_PROPERTY(double Width READ Width WRITE setWidth)                                             \
    Q_PROPERTY(double Height READ Height WRITE setHeight)

// Adds the Tag, the geometry in layout units and the mouse events to a widget.
template <class Base>
class Controllo : public Base
{
public:
    explicit Controllo(const QString &nome, QWidget *dentro) : Base(dentro)
    {
        Base::setObjectName(nome);
        Base::setMouseTracking(true);
    }

    QString Tag() const { return m_tag.testo(); }
    void setTag(const QString &tag) { m_tag.imposta(tag); }
    // From now on the Tag is read from and written to the owner of a state (see TestoTag).
    void mostraTag(TestoTag::Lettura lettura, TestoTag::Scrittura scrittura)
    {
        m_tag.mostra(std::move(lettura), std::move(scrittura));
    }

    bool Enabled() const { return Base::isEnabled(); }
    // As set for this control; a control of a hidden window can be Visible.
    bool Visible() const { return !Base::isHidden(); }

    // In layout units, 15 to a logical pixel, relative to the parent. A value that was set is read
    // back exactly, not rounded to pixels, until Qt moves or resizes the control.
    double Left() const { return esatta(m_left, Base::x()); }
    double Top() const { return esatta(m_top, Base::y()); }
    double Width() const { return esatta(m_width, Base::width()); }
    double Height() const { return esatta(m_height, Base::height()); }
    void setLeft(double unita) { Move(unita, Top()); }
    void setTop(double unita) { Move(Left(), unita); }
    void setWidth(double unita) { Size(unita, Height()); }
    void setHeight(double unita) { Size(Width(), unita); }
    void Move(double left, double top)
    {
        m_left = left;
        m_top = top;
        Base::move(Unita::pixel(left), Unita::pixel(top));
    }
    void Size(double width, double height)
    {
        m_width = width;
        m_height = height;
        Base::resize(Unita::pixel(width), Unita::pixel(height));
    }

    // Throws Errore::ChiamataNonValida if the control is disabled or not on the screen.
    void SetFocus()
    {
        if (!Base::isVisible() || !Base::isEnabled())
            throw Errore(Errore::ChiamataNonValida);
        Base::setFocus(Qt::OtherFocusReason);
    }

    // Arguments: Button, Shift, X, Y. X and Y are in layout units, on a surface in pixels in
    // logical pixels. MouseMove has all buttons that are held, the others the one that changed.
    Evento<int, int, double, double> MouseDown;
    Evento<int, int, double, double> MouseMove;
    Evento<int, int, double, double> MouseUp;
    Evento<> DblClick;

protected:
    // Factor for X and Y of the mouse events: 15 for layout units, 1 for pixels.
    double unitaPerPixel = Unita::perPixel;

    void mousePressEvent(QMouseEvent *evento) override
    {
        Base::mousePressEvent(evento);
        premuto(evento);
    }
    // Raises MouseDown without passing the press on to the Qt widget.
    void premuto(QMouseEvent *evento)
    {
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
        // Most Qt widgets call mousePressEvent here, so that the second press raises MouseDown.
        Base::mouseDoubleClickEvent(evento);
        evento->accept();
        DblClick();
    }

private:
    static double esatta(double unita, int pixel)
    {
        return Unita::pixel(unita) == pixel ? unita : Unita::unita(pixel);
    }

    TestoTag m_tag;
    double m_left = 0;
    double m_top = 0;
    double m_width = 0;
    double m_height = 0;
};
