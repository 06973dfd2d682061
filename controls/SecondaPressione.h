// Drops the second press of a double click if it falls on something that the first press has
// opened: the user has not yet read the message box or the list that appeared under the pointer.
#pragma once

class QApplication;

// Installs this for all windows of the program.
void fermaSecondePressioni(QApplication &app);
