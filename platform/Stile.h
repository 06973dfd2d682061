// How the style draws what is its own: its pictures are of the program's family, and sharp on every
// screen.
#pragma once

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
    int styleHint(StyleHint quale, const QStyleOption *opzione, const QWidget *controllo,
                  QStyleHintReturn *risposta) const override;
    QSize sizeFromContents(ContentsType quale, const QStyleOption *opzione, const QSize &contenuto,
                           const QWidget *controllo) const override;
};
