#include "Cartella.h"

#include "Porta.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

// A try tells more than the folder's flags: a full right to write is what matters.
static bool scrivibile(const QString &cartella)
{
    QTemporaryFile prova(cartella + u"/prova"_s);
    return prova.open();
}

QString trovaCartellaProgramma()
{
    const QString accanto = QCoreApplication::applicationDirPath();
    if (scrivibile(accanto))
        return accanto;
    const QString utente = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(utente);
    return utente;
}

QString nomeDelFile(const QString &percorso)
{
    const qsizetype taglio = qMax(percorso.lastIndexOf(u'\\'), percorso.lastIndexOf(u'/'));
    return percorso.mid(taglio + 1);
}

QString conSeparatore(const QString &cartella)
{
    if (cartella.endsWith(u'/') || cartella.endsWith(u":\\"_s))
        return cartella;
    return cartella + u'/';
}

QString percorsoPorta(int numero, const QString &cartella)
{
#ifdef Q_OS_WIN
    return u"\\\\.\\COM%1"_s.arg(numero);
#else
    const QFileInfo collegamento(conSeparatore(cartella) + u"COM%1"_s.arg(numero));
    if (collegamento.exists() || collegamento.isSymLink())
        return collegamento.filePath();
    return u"/dev/ttyS%1"_s.arg(numero - 1);
#endif
}
