#include "tests/support/ProgrammaDiProva.h"

#include <QCoreApplication>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

QString programmaDiProva(const CartellaDiProva &cartella, const QString &nome)
{
    const QString copia = cartella.percorso(nome);
    EXPECT_TRUE(
        QFile::copy(QCoreApplication::applicationDirPath() + u"/" PROGRAMMA_DI_PROVA ""_s, copia));
    return copia;
}

bool programmaFinito(const CartellaDiProva &cartella)
{
    return QFile(cartella.percorso(u"esito.txt"_s)).open(QIODevice::ReadOnly);
}
