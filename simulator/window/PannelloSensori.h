#pragma once
#include <QGroupBox>

class QCheckBox;
class QLabel;
class QSlider;

inline namespace tessaro_sim {
class Robot;

// What the robot's sensors measure, turned by hand.
class PannelloSensori : public QGroupBox
{
    Q_OBJECT
public:
    explicit PannelloSensori(Robot &robot, QWidget *parent = nullptr);

private:
    QSlider *cursore(const QString &nome, int massimo, int valore);
    void mostra();
    void misurato();

    Robot &m_robot;
    QSlider *m_temperatura = nullptr;
    QSlider *m_logica = nullptr;
    QSlider *m_motori = nullptr;
    QLabel *m_testoTemperatura = nullptr;
    QLabel *m_testoLogica = nullptr;
    QLabel *m_testoMotori = nullptr;
    QCheckBox *m_sinistro = nullptr;
    QCheckBox *m_centrale = nullptr;
    QCheckBox *m_destro = nullptr;
    QCheckBox *m_dallaStanza = nullptr;
};
} // namespace tessaro_sim
