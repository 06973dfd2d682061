#pragma once
#include <QWidget>

class QLabel;

inline namespace tessaro_sim {
class Simulatore;

// The simulator's window: the room, the robot from the front, its sensors, line, camera, diary.
class FinestraSimulatore : public QWidget
{
    Q_OBJECT
public:
    // `simulatore` must outlive the window.
    explicit FinestraSimulatore(Simulatore &simulatore, QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *evento) override;

private:
    QWidget *striscia();
    void mostra();

    Simulatore &m_sim;
    QLabel *m_sessione = nullptr;
    QLabel *m_base = nullptr;
    QLabel *m_voce = nullptr;
    QLabel *m_programma = nullptr;
    QLabel *m_foto = nullptr;
};
} // namespace tessaro_sim
