// How the style draws what is its own: its pictures are of the program's family, and sharp on every
// screen.
#pragma once

#include <QHash>
#include <QIcon>
#include <QProxyStyle>

// Over Fusion.
class Stile : public QProxyStyle
{
    Q_OBJECT

public:
    Stile();

    // The pictures of message boxes and file dialogs are ours; a desktop's would not go with our
    // colours.
    QIcon standardIcon(StandardPixmap quale, const QStyleOption *opzione,
                       const QWidget *controllo) const override;
    // What Fusion keeps as a picture, it keeps under its palette's number among others.
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
    // Each drawing is made once for each scale of the screen: a new one for each box would fill
    // Qt's cache of pictures, in which each has a place of its own.
    mutable QHash<std::pair<QString, qreal>, QIcon> m_disegni;
};
