// What all controls have in common, laid over the Qt widget of their kind.
#pragma once

#include "base/Errore.h"
#include "controls/Evento.h"
#include "controls/Tag.h"
#include "controls/Unita.h"

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

    QString Tag() const { return m_tag.testo(); }
    void setTag(const QString &tag) { m_tag.imposta(tag); }
    // From now on the Tag shows what an owner holds.
    void mostraTag(TestoTag::Lettura lettura, TestoTag::Scrittura scrittura)
    {
        m_tag.mostra(std::move(lettura), std::move(scrittura));
    }

    bool Enabled() const { return Base::isEnabled(); }
    // As set for this control, whether or not its window is on the screen.
    bool Visible() const { return !Base::isHidden(); }

    // Layout units, relative to what the control lies in. A value that code has set is read back as
    // it was set, not as the pixels that it became.
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
        premuto(evento);
    }
    // A press that the Qt widget does not see.
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
        // The second press of a double click is a press as well.
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
