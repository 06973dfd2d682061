#pragma once
#include <QWidget>

class QLabel;

inline namespace tessaro_sim {
class Simulatore;

/// The simulator's window: the room, the robot from the front, its sensors, line, camera, diary.
class FinestraSimulatore : public QWidget
{
    Q_OBJECT
public:
    /// `simulatore` must outlive the window.
    explicit FinestraSimulatore(Simulatore &simulatore, QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *evento) override;

private:
    QWidget *striscia();
    void mostra();

    Simulatore &sim_;
    QLabel *sessione_ = nullptr;
    QLabel *base_ = nullptr;
    QLabel *voce_ = nullptr;
    QLabel *programma_ = nullptr;
    QLabel *foto_ = nullptr;
};
} // namespace tessaro_sim
