// Drops the repeats of a held Enter or Esc. They would act in the window that the first press has
// opened or uncovered, and answer a question that the user has not yet read.
#pragma once

class QApplication;

// Installs this for all windows, message boxes and file dialogs of the program.
void fermaTastiRipetuti(QApplication &app);
