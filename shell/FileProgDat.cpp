#include "shell/FileProgDat.h"

#include "shell/Gest_File.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString nomeUsuale = u"prog.dat"_s;

// The contents of the sample file, which holds no choice of a user.
const QByteArray esempio = "1;";

bool propria(const QFileInfo &file)
{
    QFile aperto(file.filePath());
    return !aperto.open(QIODevice::ReadOnly) || aperto.readAll() != esempio;
}

} // namespace

namespace FileProgDat {

QString nome()
{
    QFileInfoList trovati =
        QDir().entryInfoList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    trovati.removeIf([](const QFileInfo &file) {
        return file.fileName().compare(nomeUsuale, Qt::CaseInsensitive) != 0;
    });
    if (trovati.isEmpty())
        return nomeUsuale;
    if (trovati.size() == 1)
        return trovati.first().fileName();
    const auto scelta = std::ranges::max_element(trovati, {}, [](const QFileInfo &file) {
        return std::pair(propria(file), file.lastModified());
    });
    return scelta->fileName();
}

QByteArray leggi()
{
    return LeggiFile(nome(), 0);
}

void scrivi(const QByteArray &impostazione, const QByteArray &condizione)
{
    ScriviFile(nome(), uniti(impostazione, condizione));
}

QByteArray impostazione(const QByteArray &testo)
{
    const qsizetype posto = testo.indexOf(';');
    return posto < 0 ? testo : testo.first(posto);
}

QByteArray condizione(const QByteArray &testo)
{
    // Without a semicolon indexOf gives -1, and the result is the whole text.
    return testo.sliced(testo.indexOf(';') + 1);
}

QByteArray uniti(const QByteArray &impostazione, const QByteArray &condizione)
{
    return impostazione + ';' + condizione;
}

} // namespace FileProgDat
