#pragma once
#include <QTimer>
#include <QWidget>

inline namespace tessaro_sim {
class Robot;

/// The room from above, with the robot in it; its things and the robot can be dragged, or chosen
/// with the space bar and moved with the arrows.
class QuadroStanza : public QWidget
{
    Q_OBJECT
public:
    explicit QuadroStanza(Robot &robot, QWidget *parent = nullptr);
    QSize sizeHint() const override { return {640, 470}; }
    QSize minimumSizeHint() const override { return {420, 310}; }

Q_SIGNALS:
    // Something in the room was moved by hand.
    void spostato();

protected:
    void paintEvent(QPaintEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    QTransform dallaStanza() const;
    QPointF inStanza(const QPointF &punto) const;
    void sposta(int cosa, const QPointF &dove);
    void disegnaScelta(QPainter &p) const;
    bool suRobot(const QPointF &punto) const;
    void disegnaPavimento(QPainter &p) const;
    void disegnaCose(QPainter &p) const;
    void disegnaSensori(QPainter &p) const;
    void disegnaFumetto(QPainter &p) const;

    Robot &m_robot;
    QString m_fumetto;
    QTimer m_fineFumetto;
    int m_presa = -1; // the thing in hand; -2 the robot
    int m_scelta;     // the same, of what the keyboard moves
    QPointF m_scarto;
};
} // namespace tessaro_sim
