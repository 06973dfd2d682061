#include "DisegniDeiFile.h"

#include "Disegni.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

DisegniDeiFile::DisegniDeiFile()
    : m_computer(Disegni::icona(u"computer")),
      m_cartella(Disegni::icona(u"cartella")),
      m_documento(Disegni::icona(u"documento"))
{
}

QIcon DisegniDeiFile::icon(IconType quale) const
{
    switch (quale) {
    case Computer:
    case Network:
    case Drive:
        return m_computer;
    case File:
        return m_documento;
    default:
        return m_cartella;
    }
}

QIcon DisegniDeiFile::icon(const QFileInfo &file) const
{
    if (file.isRoot())
        return m_computer;
    return file.isDir() ? m_cartella : m_documento;
}

QString DisegniDeiFile::type(const QFileInfo &file) const
{
    if (file.isRoot())
        return u"Disco"_s;
    if (file.isDir())
        return u"Cartella"_s;
    return file.suffix().isEmpty() ? u"File"_s : u"File "_s + file.suffix().toUpper();
}
