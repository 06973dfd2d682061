// What holds for the whole program, the same in main.cpp and in every test program.
#pragma once

class QApplication;

// The language, the look, what held keys and second presses do in all windows, and that no closing
// of a window or a box ends the program: it ends by terminaProgramma only. Once, after the
// application was made, before its first window.
void preparaApplicazione(QApplication &app);
