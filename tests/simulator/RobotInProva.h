#pragma once
#include "simulator/robot/Diario.h"
#include "simulator/robot/Robot.h"
#include "tests/simulator/Attendi.h"
#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <ostream>

// gtest prints these readably.
inline void PrintTo(const QString &testo, std::ostream *os)
{
    *os << '"' << testo.toStdString() << '"';
}
inline void PrintTo(const QByteArray &byte, std::ostream *os)
{
    *os << '[' << byte.toHex(' ').toStdString() << ']';
}

inline QByteArray b(std::initializer_list<int> valori)
{
    QByteArray byte;
    for (const int v : valori)
        byte += static_cast<char>(static_cast<quint8>(v));
    return byte;
}

// A robot without a line: what it sends is kept, telegram by telegram.
struct RobotInProva
{
    Diario diario;
    Robot robot{diario};
    QList<QByteArray> telegrammi;

    RobotInProva()
    {
        QObject::connect(&robot, &Robot::telegramma, &robot,
                         [this](const QByteArray &t) { telegrammi << t; });
    }
    // Opens a session and forgets the greeting.
    void apri()
    {
        robot.ricevi(b({3, 1, 1}));
        telegrammi.clear();
        diario.svuota();
    }
    QByteArray presi()
    {
        const QByteArray tutti = telegrammi.join();
        telegrammi.clear();
        return tutti;
    }
};
