// Qt's own texts (standard buttons, file dialogs) in Italian.
#pragma once

class QCoreApplication;

// Sets Italian, whatever the language of the system is. Qt's translation is built into the
// executable.
void installaItaliano(QCoreApplication &app);
