// A working directory of the test's own.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// While it lives, the current directory is a new empty folder; then the old one again, and the
// folder goes with all that is in it.
class CartellaDiProva
{
public:
    CartellaDiProva();
    ~CartellaDiProva();
    Q_DISABLE_COPY_MOVE(CartellaDiProva)

    QString percorso() const { return m_cartella.path(); }
    QString percorso(const QString &nome) const { return m_cartella.filePath(nome); }

    void scrivi(const QString &nome, const QByteArray &contenuto) const;
    // Empty, with a failed expectation, where there is no such file.
    QByteArray leggi(const QString &nome) const;
    bool contiene(const QString &nome) const;
    // Names of all files, folders and links, sorted.
    QStringList elenco() const;

private:
    QString m_prima;
    QTemporaryDir m_cartella;
};
