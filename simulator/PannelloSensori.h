#pragma once
#include <QGroupBox>

class QCheckBox;
class QLabel;
class QSlider;

inline namespace tessaro_sim {
class Robot;

/// What the robot's sensors measure, turned by hand.
class PannelloSensori : public QGroupBox
{
    Q_OBJECT
public:
    explicit PannelloSensori(Robot &robot, QWidget *parent = nullptr);

private:
    QSlider *cursore(const QString &nome, int massimo, int valore);
    void mostra();
    void misurato();

    Robot &robot_;
    QSlider *temperatura_ = nullptr;
    QSlider *logica_ = nullptr;
    QSlider *motori_ = nullptr;
    QLabel *testoTemperatura_ = nullptr;
    QLabel *testoLogica_ = nullptr;
    QLabel *testoMotori_ = nullptr;
    QCheckBox *sinistro_ = nullptr;
    QCheckBox *centrale_ = nullptr;
    QCheckBox *destro_ = nullptr;
    QCheckBox *dallaStanza_ = nullptr;
};
} // namespace tessaro_sim
