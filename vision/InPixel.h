// Controls on a surface whose unit is the pixel.
#pragma once

#include "controls/Grafica.h"

#include <QRectF>

// The properties of such a control in logical pixels, under the design's names; goes into the class
// body after Q_OBJECT.
#define IN_PIXEL                                                                                   \
    Q_PROPERTY(double Left READ leftPixel WRITE setLeftPixel)                                      \
    Q_PROPERTY(double Top READ topPixel WRITE setTopPixel)                                         \
    Q_PROPERTY(double Width READ widthPixel WRITE setWidthPixel)                                   \
    Q_PROPERTY(double Height READ heightPixel WRITE setHeightPixel)

// Place and size in logical pixels, by functions whose names say so. The functions for layout units
// are taken away, so that the two cannot be confused.
template <class Base>
class InPixel : public Base
{
public:
    using Base::Base;

    double leftPixel() const { return Base::Left() / Unita::perPixel; }
    double topPixel() const { return Base::Top() / Unita::perPixel; }
    double widthPixel() const { return Base::Width() / Unita::perPixel; }
    double heightPixel() const { return Base::Height() / Unita::perPixel; }
    QRectF rettangoloPixel() const
    {
        return {leftPixel(), topPixel(), widthPixel(), heightPixel()};
    }
    void setLeftPixel(double pixel) { Base::setLeft(Unita::unita(pixel)); }
    void setTopPixel(double pixel) { Base::setTop(Unita::unita(pixel)); }
    // A negative width or height throws Errore::ProprietaNonValida and changes nothing.
    void setWidthPixel(double pixel) { Base::setWidth(Unita::unita(misura(pixel))); }
    void setHeightPixel(double pixel) { Base::setHeight(Unita::unita(misura(pixel))); }
    void movePixel(double left, double top) { Base::Move(Unita::unita(left), Unita::unita(top)); }
    void sizePixel(double width, double height)
    {
        Base::Size(Unita::unita(misura(width)), Unita::unita(misura(height)));
    }

    double Left() const = delete;
    double Top() const = delete;
    double Width() const = delete;
    double Height() const = delete;
    void setLeft(double) = delete;
    void setTop(double) = delete;
    void setWidth(double) = delete;
    void setHeight(double) = delete;
    void Move(double, double) = delete;
    void Size(double, double) = delete;

private:
    static double misura(double pixel)
    {
        if (pixel < 0)
            throw Errore(Errore::ProprietaNonValida);
        return pixel;
    }
};

// A light border with a dark line on its inner side, visible on every picture.
class FormaInPixel : public InPixel<Forma>
{
    Q_OBJECT
    IN_PIXEL

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
    IN_PIXEL

public:
    using InPixel::InPixel;
};

class SuperficieInPixel : public InPixel<Superficie>
{
    Q_OBJECT
    IN_PIXEL

public:
    using InPixel::InPixel;
};
