#include "Applicazione.h"

#include "Aspetto.h"
#include "Disegni.h"
#include "Italiano.h"
#include "SecondaPressione.h"
#include "TastiRipetuti.h"

#include <QApplication>

using namespace Qt::StringLiterals;

void preparaApplicazione(QApplication &app)
{
    // Qt would end the program with its last window, and a box counts as one.
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setQuitLockEnabled(false);
    fermaSecondePressioni(app);
    fermaTastiRipetuti(app);
    installaItaliano(app);
    impostaAspetto();
    QApplication::setDesktopFileName(u"lumbra"_s);
    QApplication::setWindowIcon(Disegni::icona(u"lumbra"));
}
