// Enter and Esc act once for each press: the repeats of a held key would go on in whatever its
// press has just opened or uncovered, and answer a question that nobody has read.
#pragma once

class QApplication;

// From now on, in all windows, boxes and file dialogs of the program.
void fermaTastiRipetuti(QApplication &app);
