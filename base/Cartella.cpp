#include "base/Cartella.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

// Creates a file to find out: the folder's permission flags alone do not say it reliably.
static bool scrivibile(const QString &cartella)
{
    QTemporaryFile prova(cartella + u"/prova"_s);
    return prova.open();
}

QString trovaCartellaProgramma()
{
    return trovaCartellaProgramma(
        QCoreApplication::applicationDirPath(),
        QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
}

QString trovaCartellaProgramma(const QString &accanto, const QString &utente)
{
    const QString installati = QDir::cleanPath(accanto + u"/../share/lumbra/liste"_s);
    // An administrator can write next to an installed program, but user files do not belong there.
    const bool installato = QFileInfo::exists(installati);
    QString cartella = !installato && scrivibile(accanto) ? accanto : utente;
    QDir().mkpath(cartella);
    portaEsempi(installato ? installati : conSeparatore(accanto) + u"liste"_s, cartella);
    return cartella;
}

void portaEsempi(const QString &esempi, const QString &cartella)
{
    QFile portati(conSeparatore(cartella) + u".esempi"_s);
    const QStringList nomi = QDir(esempi).entryList({u"*.sqm"_s, u"prog.dat"_s}, QDir::Files);
    if (portati.exists() || nomi.isEmpty())
        return;
    // Names that differ only in case are the same file, as on Windows.
    const QStringList presenti =
        QDir(cartella).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    bool tutti = true;
    for (const QString &nome : nomi) {
        const QString copia = conSeparatore(cartella) + nome;
        if (presenti.contains(nome, Qt::CaseInsensitive))
            continue;
        if (QFile::copy(conSeparatore(esempi) + nome, copia))
            QFile::setPermissions(copia, QFile::permissions(copia) | QFile::WriteOwner);
        else
            tutti = false;
    }
    if (tutti)
        portati.open(QIODevice::WriteOnly);
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
