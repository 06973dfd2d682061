// Controls that lie on a surface whose unit is the pixel: their place and size are in pixels too.
#pragma once

#include "controls/Grafica.h"

template <class Base>
class InPixel : public Base
{
public:
    using Base::Base;

    double Left() const { return Base::Left() / Unita::perPixel; }
    double Top() const { return Base::Top() / Unita::perPixel; }
    double Width() const { return Base::Width() / Unita::perPixel; }
    double Height() const { return Base::Height() / Unita::perPixel; }
    void setLeft(double pixel) { Base::setLeft(Unita::unita(pixel)); }
    void setTop(double pixel) { Base::setTop(Unita::unita(pixel)); }
    // A negative size is Errore::ProprietaNonValida and changes nothing.
    void setWidth(double pixel) { Base::setWidth(Unita::unita(misura(pixel))); }
    void setHeight(double pixel) { Base::setHeight(Unita::unita(misura(pixel))); }
    void Move(double left, double top) { Base::Move(Unita::unita(left), Unita::unita(top)); }
    void Size(double width, double height)
    {
        Base::Size(Unita::unita(misura(width)), Unita::unita(misura(height)));
    }

private:
    static double misura(double pixel)
    {
        if (pixel < 0)
            throw Errore(Errore::ProprietaNonValida);
        return pixel;
    }
};

// A light border with a dark line on its inner side, so that it is seen on every picture.
class FormaInPixel : public InPixel<Forma>
{
    Q_OBJECT
    CONTROLLO

public:
    using InPixel::InPixel;

    void setColori(const QColor &fondo, const QColor &colore)
    {
        InPixel::setColori(fondo, colore, 0, bordo);
    }

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    static constexpr int bordo = 2;
};

class EtichettaInPixel : public InPixel<Etichetta>
{
    Q_OBJECT
    CONTROLLO

public:
    using InPixel::InPixel;
};

class SuperficieInPixel : public InPixel<Superficie>
{
    Q_OBJECT
    CONTROLLO

public:
    using InPixel::InPixel;
};
