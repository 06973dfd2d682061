// Enter and Esc act once for each press: the repeats of a held key would go on in whatever its
// press has just opened or uncovered, and answer a question that nobody has read.
#pragma once

// For all windows, boxes and file dialogs of the program; more than one call does nothing more.
void fermaTastiRipetuti();
