// Creates the application object that the controls need, once for all runs.
#pragma once

#include <QApplication>

inline void conApplicazione()
{
    static int argc = 1;
    static char nome[] = "fuzz";
    static char *argv[] = {nome, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication *app = new QApplication(argc, argv);
    static_cast<void>(app);
}
