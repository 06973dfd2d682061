// Writing a file: nothing is seen of it under its name before it is whole.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QString>
#include <memory>

// What is written takes the place of the old file at the end, in one stroke, from a temporary file
// beside it. If the folder takes no new file, or lets nobody replace this one, the file itself is
// overwritten at the end. Then a write that fails (full disk) brings the old text back; only a
// computer that stops in the middle leaves a file that is half new.
class Scrittura
{
public:
    // A link is followed. Errore::AccessoNegato if the file can neither be replaced nor
    // overwritten, also if it may only be read.
    explicit Scrittura(const QString &nome);

    void aggiungi(const QByteArray &byte) { m_byte += byte; }
    // Errore::DiscoPieno or AccessoNegato leaves the old file as it was. Without a call of this
    // everything added is dropped.
    void conferma();

private:
    bool sostituisci();
    void sovrascrivi();

    QString m_nome;
    QByteArray m_byte;
    std::unique_ptr<QSaveFile> m_accanto;
};
