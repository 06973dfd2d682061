#pragma once
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <functional>

// Runs the event loop until the condition holds; false only where something hangs.
inline bool attendi(const std::function<bool()> &condizione)
{
    QElapsedTimer orologio;
    orologio.start();
    QTimer sveglia; // a condition may change without an event of this program
    sveglia.start(10);
    while (!condizione()) {
        if (orologio.elapsed() > 60000)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
    }
    return true;
}
