// The receive engine: the telegrams of the robot's storage (types 42, 45, 47).
#include "tests/link/BancoRicezione.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray blocco(int k, const QByteArray &corpo)
{
    const int n = static_cast<int>(corpo.size());
    return b({45, k, n & 0xFF, n >> 8}) + corpo;
}

QByteArray elenco(int k, int x, const QByteArray &corpo)
{
    return b({47, k, x, static_cast<int>(corpo.size())}) + corpo;
}

} // namespace

TEST(StatoMemoria, GoesToTheWindowWithChannelAndValue)
{
    for (const int x : {0, 1, 4, 128, 255}) {
        BancoRicezione p;
        p.banco.BarraStato.setPanels(3, u"prima"_s);
        ASSERT_TRUE(p.digerisci(b({42, 3, x, 31, 8})));
        EXPECT_EQ(p.file.registro, QStringList{u"stato 3 %1"_s.arg(x)});
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
        EXPECT_TRUE(p.porta.scritture.isEmpty());
        EXPECT_EQ(p.pannello(3), u"prima"_s);
    }
}

TEST(StatoMemoria, WithTheWindowClosedConsumes3BytesAndDoesNothing)
{
    for (const int x : {0, 7, 255}) {
        BancoRicezione p;
        p.file.inVista = false;
        ASSERT_TRUE(p.digerisci(b({42, 6, x, 31, 8})));
        EXPECT_TRUE(p.file.registro.isEmpty());
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
    }
}

TEST(StatoMemoria, WithTheWindowOpenWaitsForItsThirdByte)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({42, 6})));
    EXPECT_EQ(p.accumulatore().lunghezza(), 2);
    EXPECT_TRUE(p.file.registro.isEmpty());
    ASSERT_TRUE(p.digerisci(b({9})));
    EXPECT_EQ(p.file.registro, QStringList{u"stato 6 9"_s});
    EXPECT_EQ(p.pannello(2), u"<42>"_s);
}

TEST(StatoMemoria, WithTheWindowClosedDoesNotWaitForItsThirdByte)
{
    BancoRicezione p;
    p.file.inVista = false;
    ASSERT_TRUE(p.digerisci(b({42, 6})));
    // The next byte counts as a new telegram.
    ASSERT_TRUE(p.digerisci(b({9})));
    EXPECT_EQ(p.pannello(2), u"<9>"_s);
}

TEST(BloccoElenco, GoesToTheWindowWithChannelValueAndBody)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(elenco(4, 16, "FOTO") + b({0, 31, 8})));
    EXPECT_EQ(p.file.registro, QStringList{u"VisualizzaElenco 4 16 4"_s});
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"});
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}

TEST(BloccoElenco, WithExactlyNPlus4BytesIsAcceptedAndLeavesNothing)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(elenco(4, 16, "FOTO")));
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"});
    EXPECT_EQ(p.pannello(2), u"<47>"_s);
    // The next byte begins a new telegram.
    ASSERT_TRUE(p.digerisci(b({99})));
    EXPECT_EQ(p.pannello(2), u"<99>"_s);
}

TEST(BloccoElenco, WithOneByteLessWaits)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(elenco(4, 16, "FOTO").chopped(1)));
    EXPECT_TRUE(p.file.registro.isEmpty());
    EXPECT_EQ(p.accumulatore().lunghezza(), 7);
    ASSERT_TRUE(p.digerisci("O"));
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"});
}

TEST(BloccoElenco, CutAtEveryByteGoesToTheWindowOnce)
{
    const QByteArray flusso = elenco(4, 2, "FOTO") + b({0, 31, 8});
    for (qsizetype taglio = 1; taglio < flusso.size(); ++taglio) {
        BancoRicezione p;
        ASSERT_TRUE(p.arriva(flusso.first(taglio)));
        ASSERT_TRUE(p.digerisci(flusso.sliced(taglio)));
        EXPECT_EQ(p.file.registro, QStringList{u"VisualizzaElenco 4 2 4"_s}) << taglio;
        EXPECT_EQ(p.file.corpi, QList<QByteArray>{"FOTO"}) << taglio;
    }
}

TEST(BloccoElenco, MayBeEmptyAndMayHold255Bytes)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(elenco(1, 2, {}) + b({0})));
    ASSERT_TRUE(p.digerisci(elenco(1, 2, QByteArray(255, 'x')) + b({0})));
    EXPECT_EQ(p.file.corpi, (QList<QByteArray>{{}, QByteArray(255, 'x')}));
}

TEST(BloccoElenco, WithTheWindowClosedIsConsumedWhole)
{
    BancoRicezione p;
    p.file.inVista = false;
    ASSERT_TRUE(p.digerisci(elenco(4, 16, b({31, 1, 31, 1})) + b({0, 31, 8})));
    EXPECT_TRUE(p.file.registro.isEmpty());
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Temperatura:8"_s});
}

TEST(BloccoFile, GoesToTheWindowByteForByte)
{
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti.append(static_cast<char>(i));
    BancoRicezione p;
    // The 31 begins the next telegram; its tick waits for the second byte.
    ASSERT_TRUE(p.arriva(blocco(5, tutti) + b({0, 31})));
    ASSERT_TRUE(aspetta([&] { return p.accumulatore().lunghezza() == 1; }));
    EXPECT_EQ(p.file.registro, QStringList{u"blocco 5 256"_s});
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{tutti});
    EXPECT_EQ(p.pannello(2), u"<45>"_s);
    EXPECT_TRUE(p.cartella.elenco().isEmpty());
    EXPECT_TRUE(p.porta.scritture.isEmpty());
}

TEST(BloccoFile, GoesToTheWindowEvenIfItIsClosed)
{
    BancoRicezione p;
    p.file.inVista = false;
    ASSERT_TRUE(p.digerisci(blocco(5, "abc") + b({0, 31, 8})));
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"abc"});
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}

TEST(BloccoFile, WithExactlyNPlus5BytesWaitsForOneMore)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(blocco(5, "abc") + b({31})));
    EXPECT_TRUE(p.file.registro.isEmpty());
    EXPECT_EQ(p.accumulatore().lunghezza(), 8);
    ASSERT_TRUE(p.digerisci(b({31, 8})));
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"abc"});
    // Byte n + 5 is consumed with the block; the next one begins a new telegram.
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}

TEST(BloccoFile, IsAnnouncedAtEveryTick)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({45, 5, 3})));
    EXPECT_EQ(p.file.sguardi, 0);
    ASSERT_TRUE(p.arriva(b({0})));
    EXPECT_TRUE(aspetta([&] { return p.file.sguardi >= 3; }));
    EXPECT_TRUE(p.file.registro.isEmpty());
}

TEST(BloccoFile, CutAtEveryByteGoesToTheWindowOnce)
{
    const QByteArray flusso = blocco(5, "un corpo") + b({0, 0});
    for (qsizetype taglio = 1; taglio < flusso.size(); ++taglio) {
        BancoRicezione p;
        ASSERT_TRUE(p.arriva(flusso.first(taglio)));
        ASSERT_TRUE(p.digerisci(flusso.sliced(taglio)));
        ASSERT_EQ(p.file.registro, QStringList{u"blocco 5 8"_s}) << taglio;
        ASSERT_EQ(p.file.corpi, QList<QByteArray>{"un corpo"}) << taglio;
    }
}

TEST(BloccoFile, ComingByteByByteGoesToTheWindowOnce)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arrivaUnoAlla(blocco(5, "un corpo") + b({0})));
    EXPECT_TRUE(p.file.registro.isEmpty());
    ASSERT_TRUE(p.digerisci(b({0})));
    EXPECT_EQ(p.file.corpi, QList<QByteArray>{"un corpo"});
}

TEST(BloccoFile, HoldsUpTo65535Bytes)
{
    BancoRicezione p;
    QByteArray corpo(65535, 'x');
    corpo[0] = 'a';
    corpo[65534] = 'z';
    ASSERT_TRUE(p.digerisci(blocco(1, corpo) + b({0, 31, 8})));
    ASSERT_EQ(p.file.corpi.size(), 1);
    EXPECT_TRUE(p.file.corpi.constFirst() == corpo);
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"8°"_s);
}

TEST(BloccoFile, MayBeEmpty)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(blocco(1, {}) + b({0, 0})));
    EXPECT_EQ(p.file.registro, QStringList{u"blocco 1 0"_s});
}

TEST(ByteGettati, AreReportedToTheWindow)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(blocco(5, "abc").first(5)));
    p.accumulatore().svuota();
    EXPECT_EQ(p.file.registro, QStringList{u"byteGettati"_s});
    p.file.registro.clear();
    ASSERT_TRUE(p.arriva(b({42})));
    p.tmrElabInput().setTag(u"*5"_s);
    EXPECT_TRUE(p.file.registro.isEmpty());
    p.tmrElabInput().setTag(u"!"_s);
    EXPECT_EQ(p.file.registro, QStringList{u"byteGettati"_s});
}

TEST(ByteGettati, AreNotReportedWhenTheEngineCutsTelegrams)
{
    BancoRicezione p;
    ASSERT_TRUE(p.digerisci(b({31, 8, 32, 1, 2, 42, 1, 0})));
    EXPECT_EQ(p.file.registro, QStringList{u"stato 1 0"_s});
}
