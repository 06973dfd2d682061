#include "AvvioProgramma.h"

#include <QFileInfo>
#include <QProcess>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

QStringList programmaEArgomenti(const QString &testo)
{
    if (QFileInfo(testo).isFile())
        return {testo};
    return QProcess::splitCommand(testo);
}

bool avviaProgramma(const QString &testo)
{
    QStringList parole = programmaEArgomenti(testo);
    if (parole.isEmpty() || parole.constFirst().isEmpty())
        return false;
    QProcess processo;
    processo.setProgram(parole.takeFirst());
    processo.setArguments(parole);
#ifdef Q_OS_WIN
    processo.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments *argomenti) {
        argomenti->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
        argomenti->startupInfo->wShowWindow = SW_SHOWNOACTIVATE;
    });
#endif
    return processo.startDetached();
}
