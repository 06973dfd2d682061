#include "tests/support/CartellaDiProva.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

CartellaDiProva::CartellaDiProva() : m_prima(QDir::currentPath())
{
    QDir::setCurrent(m_cartella.path());
}

CartellaDiProva::~CartellaDiProva()
{
    QDir::setCurrent(m_prima);
}

void CartellaDiProva::scrivi(const QString &nome, const QByteArray &contenuto) const
{
    QFile file(percorso(nome));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << nome.toStdString();
    ASSERT_EQ(file.write(contenuto), contenuto.size());
}

QByteArray CartellaDiProva::leggi(const QString &nome) const
{
    QFile file(percorso(nome));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << nome.toStdString();
    return file.isOpen() ? file.readAll() : QByteArray();
}

bool CartellaDiProva::contiene(const QString &nome) const
{
    return QFileInfo::exists(percorso(nome));
}

QStringList CartellaDiProva::elenco() const
{
    return QDir(m_cartella.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}
