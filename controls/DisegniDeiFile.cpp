#include "controls/DisegniDeiFile.h"

#include <QApplication>
#include <QFileInfo>
#include <QStyle>

using namespace Qt::StringLiterals;

// The style keeps each picture, so that it is drawn once.
static QIcon disegno(QStyle::StandardPixmap quale)
{
    return QApplication::style()->standardIcon(quale);
}

DisegniDeiFile::DisegniDeiFile()
    : m_computer(disegno(QStyle::SP_ComputerIcon)),
      m_cartella(disegno(QStyle::SP_DirIcon)),
      m_documento(disegno(QStyle::SP_FileIcon))
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
