// The whole simulator on a real pseudo-terminal, opened by its path.
#include "simulator/Simulatore.h"
#include "simulator/robot/Memoria.h"
#include "tests/simulator/PortaDiProva.h"
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/ioctl.h>

using namespace Qt::StringLiterals;

namespace {
// A simulator without a speed limit, and a program that has opened its device.
struct Filo : testing::Test
{
    Simulatore sim;
    std::unique_ptr<Porta> porta;

    void SetUp() override
    {
        ASSERT_TRUE(sim.apri()) << sim.errore().toStdString();
        sim.impostaBaud(0);
        riapri();
    }
    void riapri()
    {
        porta = std::make_unique<Porta>(sim.percorso());
        ASSERT_TRUE(porta->aperta());
    }
    bool arrivano(const QByteArray &byte)
    {
        return attendi([&] { return porta->letti() == byte; });
    }
    bool apriSessione()
    {
        porta->scrivi(b({3, 1, 1}));
        return attendi([&] { return porta->letti().size() >= 5; });
    }
};
} // namespace

TEST_F(Filo, ASessionIsOpenedThroughTheDevice)
{
    sim.robot().impostaBatterie(200, 100);
    sim.robot().impostaTemperatura(22);
    porta->scrivi(b({3, 1, 1}));
    EXPECT_TRUE(arrivano(b({32, 200, 100, 31, 22})));
    EXPECT_TRUE(sim.robot().stato().sessioneAperta);
}

TEST_F(Filo, AllByteValuesPassBothWays)
{
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(static_cast<quint8>(i));
    sim.inviaGrezzo(tutti);
    EXPECT_TRUE(arrivano(tutti));
    porta->scrivi(tutti);
    EXPECT_TRUE(attendi([&] { return sim.ricevuti() == tutti; }));
    EXPECT_EQ(sim.letture().join(), tutti);
}

TEST_F(Filo, RawBytesPassSilenceAndFaults)
{
    sim.guasti().silenzio = true;
    sim.guasti().persi = 1.0;
    sim.guasti().ritardo = 100000;
    sim.inviaGrezzo(b({31, 20}));
    EXPECT_TRUE(arrivano(b({31, 20})));
}

TEST_F(Filo, ReceivedBytesCanBeForgotten)
{
    porta->scrivi(b({27, 70}));
    ASSERT_TRUE(attendi([&] { return sim.ricevuti() == b({27, 70}); }));
    sim.dimentica();
    EXPECT_TRUE(sim.ricevuti().isEmpty());
    porta->scrivi(b({4}));
    EXPECT_TRUE(attendi([&] { return sim.ricevuti() == b({4}); }));
}

TEST_F(Filo, TheDeviceCanBeClosedAndReopenedAnyNumberOfTimes)
{
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(apriSessione());
        EXPECT_TRUE(sim.portaAperta());
        porta->scrivi(b({4}));
        porta->chiudi();
        ASSERT_TRUE(attendi([&] { return !sim.portaAperta(); }));
        EXPECT_FALSE(sim.robot().stato().sessioneAperta);
        riapri();
    }
}

TEST_F(Filo, WhatIsWrittenRightBeforeClosingStillArrives)
{
    porta->scrivi(b({3, 1, 1, 19, 37, 8, 4}));
    porta->chiudi();
    EXPECT_TRUE(attendi([&] { return sim.ricevuti() == b({3, 1, 1, 19, 37, 8, 4}); }));
    EXPECT_EQ(sim.robot().stato().ledTesta, LedVs);
}

TEST_F(Filo, BytesThatNobodyHearsAreNotFoundLater)
{
    ASSERT_TRUE(apriSessione());
    porta->chiudi();
    ASSERT_TRUE(attendi([&] { return !sim.portaAperta(); }));
    sim.robot().impostaTemperatura(33);
    ASSERT_TRUE(attendi([&] { return sim.inCoda() == 0; }));
    riapri();
    sim.inviaGrezzo(b({99}));
    EXPECT_TRUE(arrivano(b({99})));
}

TEST_F(Filo, BytesLeftUnreadAreGoneAfterClosing)
{
    sim.inviaGrezzo(b({1, 2, 3}));
    ASSERT_TRUE(attendi([&] {
        int pronti = 0;
        ::ioctl(porta->fd(), FIONREAD, &pronti);
        return pronti == 3;
    }));
    porta->chiudi();
    ASSERT_TRUE(attendi([&] { return !sim.portaAperta(); }));
    riapri();
    sim.inviaGrezzo(b({99}));
    EXPECT_TRUE(arrivano(b({99})));
}

TEST_F(Filo, ASecondOpenerThatLeavesDisturbsNobody)
{
    ASSERT_TRUE(apriSessione());
    {
        Porta altra(sim.percorso());
        ASSERT_TRUE(altra.aperta());
    }
    EXPECT_TRUE(sim.portaAperta());
    const QByteArray prima = porta->letti();
    sim.inviaGrezzo(b({99}));
    EXPECT_TRUE(arrivano(prima + b({99})));
}

TEST_F(Filo, AClaimLeftBehindDoesNotOutliveTheProgram)
{
    ASSERT_EQ(::ioctl(porta->fd(), TIOCEXCL), 0);
    porta->chiudi();
    ASSERT_TRUE(attendi([&] { return !sim.portaAperta(); }));
    riapri();
    int esclusiva = -1;
    ASSERT_EQ(::ioctl(porta->fd(), TIOCGEXCL, &esclusiva), 0);
    EXPECT_EQ(esclusiva, 0);
}

TEST_F(Filo, OpeningAndClosingStandInTheDiary)
{
    ASSERT_TRUE(attendi([&] { return sim.portaAperta(); }));
    porta->chiudi();
    EXPECT_TRUE(attendi([&] { return sim.diario().conta(u"Porta chiusa dal programma"_s) == 1; }));
    EXPECT_EQ(sim.diario().conta(u"Porta aperta dal programma"_s), 1);
}

TEST_F(Filo, HangingUpIsSeenAndComingBackGivesANewLine)
{
    ASSERT_TRUE(apriSessione());
    sim.sgancia();
    EXPECT_TRUE(sim.percorso().isEmpty());
    EXPECT_TRUE(attendi([&] { return porta->svanita(); }));
    ASSERT_TRUE(sim.riaggancia());
    riapri();
    EXPECT_TRUE(apriSessione());
}

TEST_F(Filo, ALostLineLosesBothWaysAndComesBack)
{
    ASSERT_TRUE(apriSessione());
    sim.dimentica();
    sim.perdiLinea(3600000);
    porta->scrivi(b({19, 37, 8}));
    sim.inviaGrezzo(b({200}));
    // The pseudo-terminal keeps the order: once the end of the loss is seen, so is what was lost.
    ASSERT_TRUE(attendi([&] { return sim.inCoda() == 0; }));
    ASSERT_TRUE(attendi([&] {
        int inViaggio = -1;
        ::ioctl(porta->fd(), TIOCOUTQ, &inViaggio);
        return inViaggio == 0;
    }));
    sim.perdiLinea(0);
    const QByteArray prima = porta->letti();
    porta->scrivi(b({19, 37, 1}));
    EXPECT_TRUE(arrivano(prima + b({33, 0, 0, 0})));
    EXPECT_EQ(sim.robot().stato().ledTesta, LedBs);
    EXPECT_EQ(sim.ricevuti(), b({19, 37, 1}));
}

TEST_F(Filo, ALostLineComesBackByItself)
{
    ASSERT_TRUE(apriSessione());
    const QByteArray prima = porta->letti();
    sim.perdiLinea(50);
    EXPECT_TRUE(attendi([&] {
        porta->scrivi(b({27, 70}));
        return porta->letti().size() > prima.size();
    }));
}

TEST_F(Filo, ASlowRobotAnswersInOrder)
{
    sim.guasti().ritardo = 40;
    sim.robot().impostaTemperatura(20);
    porta->scrivi(b({3, 1, 1}));
    ASSERT_TRUE(attendi([&] { return sim.robot().stato().sessioneAperta; }));
    EXPECT_TRUE(porta->letti().isEmpty());
    sim.robot().impostaTemperatura(21);
    sim.guasti().ritardo = 0;
    sim.robot().impostaTemperatura(22);
    const StatoRobot &s = sim.robot().stato();
    EXPECT_TRUE(arrivano(b({32, s.batteriaLogica, s.batteriaMotori, 31, 20, 31, 21, 31, 22})));
}

TEST_F(Filo, FaultsOfChanceTouchTelegramsOnTheWire)
{
    ASSERT_TRUE(apriSessione());
    const QByteArray prima = porta->letti();
    sim.guasti().doppi = 1.0;
    sim.robot().impostaTemperatura(7);
    EXPECT_TRUE(arrivano(prima + b({31, 31, 7, 7})));
}

TEST_F(Filo, ArrivingBytesAreDisturbedOnlyWhenAsked)
{
    ASSERT_TRUE(apriSessione());
    sim.guasti().persi = 1.0;
    porta->scrivi(b({19, 37, 8}));
    ASSERT_TRUE(attendi([&] { return sim.robot().stato().ledTesta == LedVs; }));
    sim.guasti().ancheInArrivo = true;
    porta->scrivi(b({19, 37, 1}));
    ASSERT_TRUE(attendi([&] { return sim.ricevuti().endsWith(b({19, 37, 1})); }));
    EXPECT_EQ(sim.robot().stato().ledTesta, LedVs);
}

TEST_F(Filo, AFloodNeverEndsUntilItIsEnded)
{
    ASSERT_TRUE(apriSessione());
    sim.guasti().alluvione = true;
    EXPECT_TRUE(attendi([&] { return porta->letti().size() > 20000; }));
    EXPECT_LT(sim.inCoda(), 10000);
    sim.guasti().alluvione = false;
    EXPECT_TRUE(attendi([&] { return porta->letti(), sim.inCoda() == 0; }));
}

TEST_F(Filo, AReaderThatDoesNotReadCostsNeitherOrderNorBytes)
{
    QByteArray molto;
    for (int i = 0; i < 100000; ++i)
        molto += static_cast<char>(static_cast<quint8>(i % 251));
    sim.inviaGrezzo(molto);
    // The operating system takes some; the rest waits here.
    ASSERT_TRUE(attendi([&] { return sim.quantiInviati() > 0; }));
    EXPECT_GT(sim.inCoda(), 0);
    EXPECT_TRUE(arrivano(molto));
    EXPECT_EQ(sim.quantiInviati(), molto.size());
}

TEST_F(Filo, TheQueueIsBoundedAndItsLossIsNoted)
{
    sim.inviaGrezzo(QByteArray(400 * 1024, 'x'));
    EXPECT_LE(sim.inCoda(), 256 * 1024);
    EXPECT_TRUE(sim.diario().voci().constLast().testo.startsWith(u"Coda piena"_s));
}

TEST_F(Filo, TheLinePacesAtItsSpeed)
{
    sim.impostaBaud(9600);
    QElapsedTimer orologio;
    orologio.start();
    sim.inviaGrezzo(QByteArray(480, 'x'));
    // At no moment has more come than the line can have carried in the time that has passed.
    EXPECT_TRUE(attendi([&] {
        const auto n = porta->letti().size();
        EXPECT_LE(n, orologio.elapsed() * 960 / 1000 + 1);
        return n == 480;
    }));
}

TEST_F(Filo, VideoFlowsInWholeRowsWithTelemetryBetween)
{
    ASSERT_TRUE(apriSessione());
    const auto prima = porta->letti().size();
    porta->scrivi(b({10, 10, 128, 0, 11, 160, 0}));
    ASSERT_TRUE(attendi([&] { return porta->letti().size() > prima + 4 + 61 * 161; }));
    porta->scrivi(b({27, 70}));
    ASSERT_TRUE(attendi([&] { return porta->letti().size() > prima + 4 + 63 * 161; }));
    // Cut as the console would: nothing is left over but the row that is on its way, and nothing is
    // unknown.
    QByteArray resto = porta->letti().mid(prima);
    int righe = 0;
    bool sensori = false;
    while (!resto.isEmpty()) {
        const int tipo = resto.at(0);
        ASSERT_TRUE(tipo == 13 || tipo == 33 || tipo == 31) << tipo;
        const int lungo = tipo == 13 ? 161 : tipo == 33 ? 4 : 2;
        if (lungo > resto.size())
            break;
        righe += tipo == 13;
        sensori = sensori || tipo == 31;
        resto.remove(0, lungo);
    }
    EXPECT_GE(righe, 61);
    EXPECT_TRUE(sensori);
}

TEST_F(Filo, VideoStopsAtOnceInTheMiddleOfARowAndWhatWaitsBehindItStillComes)
{
    ASSERT_TRUE(apriSessione());
    sim.robot().impostaTemperatura(44);
    ASSERT_TRUE(attendi([&] { return sim.inCoda() == 0; }));
    sim.impostaBaud(1200);
    const auto prima = porta->letti().size();
    porta->scrivi(b({11, 160, 0}));
    ASSERT_TRUE(attendi([&] { return porta->letti().size() > prima + 8; }));
    porta->scrivi(b({28, 103, 12}));
    ASSERT_TRUE(attendi([&] { return !sim.robot().stato().videoAttivo; }));
    sim.impostaBaud(0);
    ASSERT_TRUE(attendi([&] { return sim.inCoda() == 0; }));
    // The answer that was asked for before, and the one to the stop.
    ASSERT_TRUE(attendi([&] { return porta->letti().endsWith(b({31, 44, 33, 0, 0, 0})); }));
    EXPECT_LT(porta->letti().size(), prima + 161);
}

TEST_F(Filo, TheLinkIsMadeFollowsTheLineAndGoesAway)
{
    QTemporaryDir cartella;
    const QString nome = cartella.filePath(u"COM7"_s);
    {
        Simulatore altro;
        ASSERT_TRUE(altro.apri());
        ASSERT_TRUE(altro.collegaPorta(cartella.path(), 7));
        EXPECT_EQ(QFileInfo(nome).symLinkTarget(), altro.percorso());
        altro.sgancia();
        ASSERT_TRUE(altro.riaggancia());
        EXPECT_EQ(QFileInfo(nome).symLinkTarget(), altro.percorso());
        Porta attraverso(nome);
        EXPECT_TRUE(attraverso.aperta());
    }
    EXPECT_FALSE(QFileInfo(nome).isSymLink());
}

TEST_F(Filo, AFileOfThatNameIsNeverReplacedByTheLink)
{
    QTemporaryDir cartella;
    QFile f(cartella.filePath(u"COM1"_s));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    EXPECT_FALSE(sim.collegaPorta(cartella.path(), 1));
    EXPECT_FALSE(sim.errore().isEmpty());
    EXPECT_TRUE(f.exists());
}

TEST_F(Filo, APortNumberOutOfRangeIsRefused)
{
    QTemporaryDir cartella;
    EXPECT_FALSE(sim.collegaPorta(cartella.path(), 0));
    EXPECT_FALSE(sim.collegaPorta(cartella.path(), 100));
}

TEST_F(Filo, ARecordedSessionPlaysBackTheSameBytes)
{
    QTemporaryDir cartella;
    const QString file = cartella.filePath(u"filo.txt"_s);
    ASSERT_TRUE(sim.registra(file));
    ASSERT_TRUE(apriSessione());
    sim.robot().impostaTemperatura(44);
    porta->scrivi(b({19, 65, 1}));
    ASSERT_TRUE(attendi([&] { return porta->letti().size() == 11; }));
    const QByteArray sentiti = porta->letti();
    sim.registra({});

    Simulatore altro;
    ASSERT_TRUE(altro.apri());
    altro.impostaBaud(0);
    ASSERT_TRUE(altro.riproduci(file));
    bool finita = false;
    QObject::connect(&altro, &Simulatore::riproduzioneFinita, &altro, [&] { finita = true; });
    Porta ascolto(altro.percorso());
    ASSERT_TRUE(attendi([&] { return altro.portaAperta(); }));
    EXPECT_TRUE(ascolto.letti().isEmpty());
    ascolto.scrivi(b({3, 1, 1}));
    ASSERT_TRUE(attendi([&] { return finita; }));
    EXPECT_TRUE(attendi([&] { return ascolto.letti() == sentiti; }));
}

TEST_F(Filo, ARecordingOfTheRobotAlonePlaysAtOnceAndWithoutItsPauses)
{
    QTemporaryDir cartella;
    QFile f(cartella.filePath(u"filo.txt"_s));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("0 < 31 20\n86400000 < 31 21\n");
    f.close();
    ASSERT_TRUE(attendi([&] { return sim.portaAperta(); }));
    ASSERT_TRUE(sim.riproduci(f.fileName(), false));
    EXPECT_TRUE(arrivano(b({31, 20, 31, 21})));
}

TEST_F(Filo, AFolderIsListedAndAFileFetchedOverTheWire)
{
    QTemporaryDir radice;
    QFile f(radice.filePath(u"a.txt"_s));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(60000, 'q'));
    f.close();
    sim.robot().memoria().impostaRadice(radice.path());
    ASSERT_TRUE(apriSessione());
    const QByteArray prima = porta->letti();
    porta->scrivi(b({40, 1, 5, 'a', '.', 't', 'x', 't'}));
    ASSERT_TRUE(arrivano(prima + b({42, 1, 0})));
    porta->scrivi(b({44, 1, 255, 255}));
    EXPECT_TRUE(
        arrivano(prima + b({42, 1, 0, 45, 1, 0x60, 0xEA}) + QByteArray(60000, 'q') + b({0})));
}
