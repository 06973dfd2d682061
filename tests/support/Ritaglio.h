// Whether a window has room for its texts, on every screen and with every desktop's font.
#pragma once

#include <QFont>
#include <QStringList>
#include <ostream>

class QWidget;

// The visible controls of a window whose text does not fit into them, is cut off by what they lie
// in, or runs into another control's text; each with its name, its text and what is wrong. Texts of
// the user's (text boxes, rows of lists) are cut by rights and left out.
QStringList tagliati(QWidget &finestra);

// The same, to be called on every look that a window has: also saves a picture of it under this
// name where LOOKS_PICTURES names a folder.
QStringList guarda(QWidget &finestra, const QString &nome);

// What a desktop gives every program, in points; while it lives.
class ConCarattere
{
public:
    explicit ConCarattere(double punti);
    ~ConCarattere();
    Q_DISABLE_COPY_MOVE(ConCarattere)

private:
    QFont m_prima;
};

// The sizes that usual desktops come with.
inline constexpr double caratteriUsuali[] = {9, 10, 11};
