// Buttons that are held while their window loses the mouse and the keyboard.
#pragma once

class QApplication;

// From now on, in all windows, boxes and file dialogs of the program: a button that is drawn
// pressed is let go, without a click, when a dialog blocks its window, another window becomes
// active or its window is hidden. The release that belongs to the press is sent elsewhere, or
// nowhere.
void lasciaPressioniPerse(QApplication &app);
