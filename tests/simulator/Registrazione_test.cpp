#include "simulator/line/Registrazione.h"
#include "tests/simulator/RobotInProva.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
QString scritto(const QTemporaryDir &cartella, const QByteArray &testo)
{
    const QString nome = cartella.filePath(u"filo.txt"_s);
    QFile f(nome);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(testo);
    return nome;
}
} // namespace

TEST(Registrazione, WhatWasWrittenIsReadBack)
{
    QTemporaryDir cartella;
    const QString nome = cartella.filePath(u"filo.txt"_s);
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(static_cast<quint8>(i));
    Registratore registratore;
    ASSERT_TRUE(registratore.apri(nome));
    registratore.scrivi(true, b({3, 1, 1}));
    registratore.scrivi(false, tutti);
    QList<Registrazione::Tratto> tratti;
    QString errore;
    ASSERT_TRUE(Registrazione::leggi(nome, tratti, errore)) << errore.toStdString();
    ASSERT_EQ(tratti.size(), 2);
    EXPECT_TRUE(tratti.at(0).versoRobot);
    EXPECT_EQ(tratti.at(0).byte, b({3, 1, 1}));
    EXPECT_EQ(tratti.at(0).ms, 0);
    EXPECT_FALSE(tratti.at(1).versoRobot);
    EXPECT_EQ(tratti.at(1).byte, tutti);
}

TEST(Registrazione, ALineIsReadable)
{
    EXPECT_EQ(Registrazione::riga({14, false, b({32, 210, 180})}), "14 < 32 210 180\n");
}

TEST(Registrazione, CommentsAndEmptyLinesArePassedOver)
{
    QTemporaryDir cartella;
    QList<Registrazione::Tratto> tratti;
    QString errore;
    EXPECT_TRUE(Registrazione::leggi(scritto(cartella, "# nota\r\n\r\n5 < 1\r\n"), tratti, errore));
    ASSERT_EQ(tratti.size(), 1);
    EXPECT_EQ(tratti.at(0).byte, b({1}));
}

TEST(Registrazione, ALineThatIsNoStretchIsNamed)
{
    for (const QByteArray &testo : {QByteArray("5 < 256"), QByteArray("x < 1"), QByteArray("5 ? 1"),
                                    QByteArray("5 <"), QByteArray("-1 < 1"), QByteArray("5 < a")}) {
        QTemporaryDir cartella;
        QList<Registrazione::Tratto> tratti;
        QString errore;
        EXPECT_FALSE(
            Registrazione::leggi(scritto(cartella, "0 > 3\n" + testo + "\n"), tratti, errore));
        EXPECT_TRUE(errore.contains(u"riga 2"_s)) << testo.toStdString();
    }
}

TEST(Registrazione, AMissingFileIsToldByName)
{
    QList<Registrazione::Tratto> tratti;
    QString errore;
    EXPECT_FALSE(Registrazione::leggi(u"/non/esiste"_s, tratti, errore));
    EXPECT_TRUE(errore.contains(u"/non/esiste"_s));
}
