// A temporary working directory for a test.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// While an object of this class exists, the current directory is a new empty folder. Its destructor
// restores the old one and deletes the folder with its contents.
class CartellaDiProva
{
public:
    CartellaDiProva();
    ~CartellaDiProva();
    Q_DISABLE_COPY_MOVE(CartellaDiProva)

    QString percorso() const { return m_cartella.path(); }
    QString percorso(const QString &nome) const { return m_cartella.filePath(nome); }

    void scrivi(const QString &nome, const QByteArray &contenuto) const;
    // Empty, with a failed expectation, if there is no such file.
    QByteArray leggi(const QString &nome) const;
    bool contiene(const QString &nome) const;
    // Names of all files, folders and links, sorted.
    QStringList elenco() const;

private:
    QString m_prima;
    QTemporaryDir m_cartella;
};
