#include "movelists/AvvioProgramma.h"

#include "base/Cartella.h"

#include <QFileInfo>
#include <QProcess>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

using namespace Qt::StringLiterals;

// The program of that name in the program's folder; empty if there is none, or if the name has a
// folder of its own.
static QString nellaCartella(const QString &nome, const QString &cartella)
{
    if (nome.isEmpty() || nomeDelFile(nome) != nome)
        return {};
    QStringList nomi{nome};
#ifdef Q_OS_WIN
    nomi += nome + u".exe"_s;
#endif
    for (const QString &cercato : nomi) {
        const QFileInfo file(conSeparatore(cartella) + cercato);
        if (file.isFile() && file.isExecutable())
            return file.absoluteFilePath();
    }
    return {};
}

QStringList programmaEArgomenti(const QString &testo, const QString &cartella)
{
    if (const QString intero = nellaCartella(testo, cartella); !intero.isEmpty())
        return {intero};
    if (QFileInfo(testo).isFile())
        return {testo};
    QStringList parole = QProcess::splitCommand(testo);
    if (!parole.isEmpty()) {
        if (const QString primo = nellaCartella(parole.constFirst(), cartella); !primo.isEmpty())
            parole.first() = primo;
    }
    return parole;
}

bool avviaProgramma(const QString &testo, const QString &cartella)
{
    QStringList parole = programmaEArgomenti(testo, cartella);
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
