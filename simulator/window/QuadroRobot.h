#pragma once
#include <QWidget>

inline namespace tessaro_sim {
class Robot;
struct StatoRobot;

// The robot from the front: head with its LEDs, arms, pelvis, gripper, tools, position LED.
class QuadroRobot : public QWidget
{
    Q_OBJECT
public:
    explicit QuadroRobot(Robot &robot, QWidget *parent = nullptr);
    QSize sizeHint() const override { return {330, 262}; }
    QSize minimumSizeHint() const override { return {330, 262}; }

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    Robot &m_robot;
};
} // namespace tessaro_sim
