#pragma once
#include <QGroupBox>
#include <QTimer>

class QComboBox;
class QLabel;

inline namespace tessaro_sim {
class Robot;

// What the camera sees: the room, or a folder of pictures.
class PannelloTelecamera : public QGroupBox
{
    Q_OBJECT
public:
    explicit PannelloTelecamera(Robot &robot, QWidget *parent = nullptr);

    // The picture is out of date and is drawn again soon.
    void invecchia();

private:
    void scelta(int indice);
    void scegliCartella();
    void mostra();

    Robot &m_robot;
    QComboBox *m_fonte = nullptr;
    QLabel *m_vista = nullptr;
    QLabel *m_stato = nullptr;
    QTimer m_ritardo;
};
} // namespace tessaro_sim
