// The style Fusion with the program's own pictures, which are sharp on every screen.
#pragma once

#include <QHash>
#include <QIcon>
#include <QProxyStyle>

class Stile : public QProxyStyle
{
    Q_OBJECT

public:
    Stile();

    // Returns the program's own pictures for message boxes and file dialogs: those of a desktop
    // would not match our colours.
    QIcon standardIcon(StandardPixmap quale, const QStyleOption *opzione,
                       const QWidget *controllo) const override;
    // Fusion caches drawings under keys that contain the number of the palette. These three draw
    // buttons, list headers, combos and spin boxes with the application's palette if its colours
    // are the same, so that the cache does not grow with each new window.
    void drawPrimitive(PrimitiveElement quale, const QStyleOption *opzione, QPainter *pittore,
                       const QWidget *controllo) const override;
    void drawControl(ControlElement quale, const QStyleOption *opzione, QPainter *pittore,
                     const QWidget *controllo) const override;
    void drawComplexControl(ComplexControl quale, const QStyleOptionComplex *opzione,
                            QPainter *pittore, const QWidget *controllo) const override;
    int styleHint(StyleHint quale, const QStyleOption *opzione, const QWidget *controllo,
                  QStyleHintReturn *risposta) const override;
    QSize sizeFromContents(ContentsType quale, const QStyleOption *opzione, const QSize &contenuto,
                           const QWidget *controllo) const override;

private:
    // The pictures by name and scale of the screen. Each is made once: a new one for each message
    // box would take another place in Qt's cache of pictures.
    mutable QHash<std::pair<QString, qreal>, QIcon> m_disegni;
};
