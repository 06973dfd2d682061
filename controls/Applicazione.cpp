#include "controls/Applicazione.h"

#include "art/Disegni.h"
#include "controls/Italiano.h"
#include "controls/PressioniPerse.h"
#include "controls/SecondaPressione.h"
#include "controls/TastiRipetuti.h"
#include "controls/look/Aspetto.h"

#include <QApplication>

using namespace Qt::StringLiterals;

void preparaApplicazione(QApplication &app)
{
    // Qt would end the program with its last window, and a message box counts as one.
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setQuitLockEnabled(false);
    fermaSecondePressioni(app);
    fermaTastiRipetuti(app);
    lasciaPressioniPerse(app);
    installaItaliano(app);
    impostaAspetto();
    QApplication::setDesktopFileName(u"lumbra"_s);
    QApplication::setWindowIcon(Disegni::icona(u"lumbra"));
}
