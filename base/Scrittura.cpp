#include "base/Scrittura.h"

#include "base/Errore.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

// The target of a symbolic link, even if it does not exist yet.
QString senzaCollegamenti(QString nome)
{
    constexpr int collegamentiMassimi = 40; // more is a circle of links
    for (int i = 0; i < collegamentiMassimi && QFileInfo(nome).isSymbolicLink(); ++i)
        nome = QFileInfo(nome).symLinkTarget();
    return nome;
}

// The base name for the temporary file. QSaveFile adds 7 bytes to the file's name; if they do not
// fit, another name is taken.
QString nomeAccanto(const QString &nome)
{
    constexpr qsizetype aggiunta = 7;
    constexpr qsizetype nomeMassimo = 255; // bytes, the limit of common file systems
    const QFileInfo info(nome);
    if (QFile::encodeName(info.fileName()).size() <= nomeMassimo - aggiunta)
        return nome;
    return info.dir().filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + u".tmp"_s);
}

bool apriEsistente(QFile &file)
{
    // Unbuffered: a buffer would keep the rest of a failed write for the next one.
    return QFileInfo(file).isFile() &&
           file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered);
}

bool riempi(QFile &file, const QByteArray &byte)
{
    return file.seek(0) && file.write(byte) == byte.size() && file.resize(byte.size());
}

} // namespace

Scrittura::Scrittura(const QString &nome) : m_nome(senzaCollegamenti(nome))
{
    const QFileInfo info(m_nome);
    if (info.exists() && (info.isDir() || !info.isWritable()))
        throw Errore(Errore::AccessoNegato);
    m_accanto = std::make_unique<QSaveFile>(nomeAccanto(m_nome));
    if (m_accanto->open(QIODevice::WriteOnly)) {
        if (info.exists())
            m_accanto->setPermissions(info.permissions());
        return;
    }
    m_accanto.reset();
    QFile file(m_nome);
    if (!apriEsistente(file))
        throw Errore(Errore::AccessoNegato);
}

void Scrittura::conferma()
{
    if (!m_accanto || !sostituisci())
        sovrascrivi();
}

// Returns false if the finished temporary file cannot replace the old file.
bool Scrittura::sostituisci()
{
    // Flushed here because commit() does not report that the last bytes could not be written.
    if (m_accanto->write(m_byte) != m_byte.size() || !m_accanto->flush())
        throw Errore(Errore::DiscoPieno);
    if (!m_accanto->commit())
        return false;
    const QString accanto = m_accanto->fileName();
    if (accanto == m_nome)
        return true;
    std::error_code errore;
    std::filesystem::rename(QFileInfo(accanto).filesystemFilePath(),
                            QFileInfo(m_nome).filesystemFilePath(), errore);
    if (errore)
        QFile::remove(accanto);
    return !errore;
}

void Scrittura::sovrascrivi()
{
    QFile file(m_nome);
    if (!apriEsistente(file))
        throw Errore(Errore::AccessoNegato);
    const QByteArray prima = file.readAll();
    if (prima.size() != file.size())
        throw Errore(Errore::AccessoNegato);
    if (riempi(file, m_byte))
        return;
    // The old contents fit: their space on the disk is still taken.
    riempi(file, prima);
    throw Errore(Errore::DiscoPieno);
}
