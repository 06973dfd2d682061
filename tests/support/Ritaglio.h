// Checks that a window has room for its texts, on every screen and with every font of a desktop.
#pragma once

#include <QFont>
#include <QStringList>
#include <ostream>

class QWidget;

// The visible controls of a window whose text does not fit, is cut off by a parent, or overlaps the
// text of another control. Each is given with its name, its text and the fault. Texts of the user
// (text boxes, rows of lists) may be cut and are left out.
QStringList tagliati(QWidget &finestra);

// The same; tests call it for each state of a window. If the environment variable LOOKS_PICTURES
// names a folder, it also saves a picture of the window there.
QStringList guarda(QWidget &finestra, const QString &nome);

// While an object of this class exists, the application's font has this size, in points.
class ConCarattere
{
public:
    explicit ConCarattere(double punti);
    ~ConCarattere();
    Q_DISABLE_COPY_MOVE(ConCarattere)

private:
    QFont m_prima;
};

// The usual font sizes of desktops, in points.
inline constexpr double caratteriUsuali[] = {9, 10, 11};
