#include "base/Scrittura.h"

#include "base/Errore.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

// Where a link leads, also if nothing is there yet.
QString senzaCollegamenti(QString nome)
{
    constexpr int collegamentiMassimi = 40; // more than that is a circle
    for (int i = 0; i < collegamentiMassimi && QFileInfo(nome).isSymbolicLink(); ++i)
        nome = QFileInfo(nome).symLinkTarget();
    return nome;
}

// A temporary file has the file's own name and some bytes more; for a name so long that no more fit
// it is one of its own.
QString nomeAccanto(const QString &nome)
{
    constexpr qsizetype aggiunta = 7;
    constexpr qsizetype nomeMassimo = 255; // bytes, as file systems have it
    const QFileInfo info(nome);
    if (QFile::encodeName(info.fileName()).size() <= nomeMassimo - aggiunta)
        return nome;
    return info.dir().filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + u".tmp"_s);
}

bool apriEsistente(QFile &file)
{
    // Without a buffer nothing of a failed write is left over for the next one.
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

// False if what is whole beside the old file cannot take its place.
bool Scrittura::sostituisci()
{
    // Replacing the file would not notice that the last bytes could not be written.
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
    // The old text has its room on the disk already.
    riempi(file, prima);
    throw Errore(Errore::DiscoPieno);
}
