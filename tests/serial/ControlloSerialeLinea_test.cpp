// The serial control over a real line.
#include "serial/ControlloSeriale.h"

#include "serial/PortaAsio.h"
#include "tests/serial/PseudoTerminale.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

struct ControlloSerialeSuLinea : ::testing::Test
{
    ControlloSerialeSuLinea()
        : com(u"COM"_s, nullptr, std::make_unique<PortaAsio>(), cartella.path())
    {
        QFile::link(capo.percorso(), cartella.filePath(u"COM7"_s));
        com.setCommPort(7);
    }

    PseudoTerminale capo;
    QTemporaryDir cartella;
    ControlloSeriale com;
};

} // namespace

TEST_F(ControlloSerialeSuLinea, OpensTheEntryOfTheProgramsFolder)
{
    com.setPortOpen(true);
    EXPECT_TRUE(com.PortOpen());
    com.Output("\x03\x01\x01");
    EXPECT_EQ(capo.leggiAlmeno(3), "\x03\x01\x01");
}

TEST_F(ControlloSerialeSuLinea, IsInUseForASecondControl)
{
    com.setPortOpen(true);
    ControlloSeriale seconda(u"COM"_s, nullptr, std::make_unique<PortaAsio>(), cartella.path());
    seconda.setCommPort(7);
    EXPECT_EQ(erroreDi([&] { seconda.setPortOpen(true); }), Errore::PortaInUso);
    EXPECT_FALSE(seconda.PortOpen());
}

TEST_F(ControlloSerialeSuLinea, ANewNumberIsUsedAtTheNextOpening)
{
    com.setPortOpen(true);
    com.setCommPort(8);
    com.Output("x");
    EXPECT_EQ(capo.leggiAlmeno(1), "x");
    com.setPortOpen(false);
    EXPECT_NE(erroreDi([&] { com.setPortOpen(true); }), 0);
    EXPECT_FALSE(com.PortOpen());
}

TEST_F(ControlloSerialeSuLinea, FindsBytesWithoutAnEventLoop)
{
    com.setPortOpen(true);
    capo.scrivi("abc");
    for (int i = 0; i < 1000 && com.InBufferCount() < 3; ++i)
        ::usleep(1000);
    EXPECT_EQ(com.Input(), "abc");
}

TEST_F(ControlloSerialeSuLinea, LosesNoByteIfMoreArriveThanItCanHold)
{
    com.setPortOpen(true);
    QByteArray molti;
    for (int i = 0; i < 3000; ++i)
        molti += static_cast<char>(i % 251);
    capo.scrivi(molti);
    ASSERT_TRUE(attendi([&] { return com.InBufferCount() == 1024; }));
    QByteArray letti;
    EXPECT_TRUE(attendi([&] {
        EXPECT_LE(com.InBufferCount(), 1024);
        letti += com.Input();
        return letti.size() >= 3000;
    }));
    EXPECT_EQ(letti, molti);
}

TEST_F(ControlloSerialeSuLinea, CountsAsOpenWhenTheFarEndGoesAway)
{
    com.setPortOpen(true);
    capo.chiudi();
    EXPECT_EQ(com.InBufferCount(), 0);
    EXPECT_EQ(com.Input(), "");
    const int errore = erroreDi([&] { com.Output("x"); });
    EXPECT_NE(errore, 0);
    EXPECT_NE(errore, 8018);
    EXPECT_TRUE(com.PortOpen());
    com.setPortOpen(false);
    EXPECT_EQ(erroreDi([&] { com.Output("x"); }), 8018);
}

TEST_F(ControlloSerialeSuLinea, BytesHeldAreKeptWhenTheFarEndGoesAway)
{
    com.setPortOpen(true);
    capo.scrivi("abc");
    ASSERT_TRUE(attendi([&] { return com.InBufferCount() == 3; }));
    capo.chiudi();
    EXPECT_EQ(com.Input(), "abc");
    EXPECT_EQ(com.Input(), "");
}
