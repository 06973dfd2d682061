// Qt's own texts in Italian: the standard buttons and the file dialogs.
#pragma once

class QCoreApplication;

// Whatever the system's language is; Qt's translation is carried inside the executable.
void installaItaliano(QCoreApplication &app);
