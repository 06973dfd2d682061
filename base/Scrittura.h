// Writes a file as a whole: others see the old contents or the new ones, nothing between.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QString>
#include <memory>

// Collects the bytes and writes them at the end, to a temporary file in the same folder that then
// replaces the old one. If the folder does not allow new files or the replacement, the file itself
// is overwritten. In this case a failed write (full disk) restores the old contents; only if the
// computer stops in the middle, the file is left half written.
class Scrittura
{
public:
    // Follows a symbolic link. Throws Errore::AccessoNegato if the file can be neither replaced nor
    // overwritten, or is read-only.
    explicit Scrittura(const QString &nome);

    void aggiungi(const QByteArray &byte) { m_byte += byte; }
    // Writes the file. If it throws (Errore::DiscoPieno, AccessoNegato), the old file is kept. If
    // it is never called, all bytes added are dropped.
    void conferma();

private:
    bool sostituisci();
    void sovrascrivi();

    QString m_nome;
    QByteArray m_byte;
    std::unique_ptr<QSaveFile> m_accanto;
};
