// The second press of a double click never reaches what the first one has just opened: a message
// box or a list that came up under the pointer is there to be read first.
#pragma once

class QApplication;

// From now on, in all windows of the program.
void fermaSecondePressioni(QApplication &app);
