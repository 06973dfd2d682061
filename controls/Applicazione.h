// The settings of the whole application, for main.cpp and for every test program.
#pragma once

class QApplication;

// Sets the language, the look, and what held keys and second presses of the mouse do in all
// windows. Closing a window or a message box no longer ends the program; only terminaProgramma
// does. Call it once, after creating the application and before its first window.
void preparaApplicazione(QApplication &app);
