#include "serial/PortaAsio.h"

#include "base/Pompa.h"
#include "tests/serial/PseudoTerminale.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <ctime>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <termios.h>

using namespace Qt::StringLiterals;

namespace {

int apertura(Porta &porta, const QString &percorso)
{
    return erroreDi([&] { porta.apri(percorso); });
}

// Another process. It does its work and then waits until it is killed.
class AltroProcesso
{
public:
    // Returns when the work is done.
    explicit AltroProcesso(const std::function<void()> &lavoro)
    {
        int tubo[2];
        if (::pipe(tubo) != 0)
            qFatal("no pipe");
        m_pid = ::fork();
        if (m_pid == 0) {
            lavoro();
            static_cast<void>(!::write(tubo[1], "x", 1));
            for (;;)
                ::pause();
        }
        // If the child ends early, the pipe is closed and the read returns.
        ::close(tubo[1]);
        char pronto = 0;
        static_cast<void>(!::read(tubo[0], &pronto, 1));
        ::close(tubo[0]);
    }
    ~AltroProcesso() { uccidi(); }
    Q_DISABLE_COPY_MOVE(AltroProcesso)

    void uccidi()
    {
        if (m_pid <= 0)
            return;
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
        m_pid = -1;
    }

private:
    pid_t m_pid = -1;
};

// Opens the line in a process of the user nobody and returns the number of the error. An exit code
// is too small for it, so each number has its own code.
int aperturaDaNessuno(const QString &percorso)
{
    const pid_t pid = ::fork();
    if (pid == 0) {
        if (::setgid(65534) != 0 || ::setuid(65534) != 0)
            std::_Exit(99);
        PortaAsio porta;
        switch (apertura(porta, percorso)) {
        case 0:
            std::_Exit(0);
        case Errore::PortaInUso:
            std::_Exit(1);
        case Errore::AccessoNegato:
            std::_Exit(2);
        default:
            std::_Exit(3);
        }
    }
    int esito = 0;
    ::waitpid(pid, &esito, 0);
    switch (WEXITSTATUS(esito)) {
    case 0:
        return 0;
    case 1:
        return Errore::PortaInUso;
    case 2:
        return Errore::AccessoNegato;
    default:
        return -1;
    }
}

double secondiDiProcessore()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

TEST(PortaAsio, OpensAPseudoTerminalAlthoughItHasNoControlLines)
{
    const PseudoTerminale capo;
    PortaAsio porta;
    EXPECT_FALSE(porta.aperta());
    EXPECT_EQ(apertura(porta, capo.percorso()), 0);
    EXPECT_TRUE(porta.aperta());
}

TEST(PortaAsio, Sets9600Baud8BitsNoParity1StopBitAndPassesBytesUnchanged)
{
    const PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    const int linea = ::open(qPrintable(capo.percorso()), O_RDWR | O_NOCTTY);
    ASSERT_GE(linea, 0);
    termios modi{};
    ::tcgetattr(linea, &modi);
    ::close(linea);
    EXPECT_EQ(::cfgetispeed(&modi), speed_t{B9600});
    EXPECT_EQ(::cfgetospeed(&modi), speed_t{B9600});
    EXPECT_EQ(modi.c_cflag & CSIZE, tcflag_t{CS8});
    EXPECT_EQ(modi.c_cflag & (PARENB | CSTOPB | CRTSCTS), 0U);
    EXPECT_EQ(modi.c_lflag & (ICANON | ECHO | ISIG), 0U);
    EXPECT_EQ(modi.c_oflag & OPOST, 0U);
    EXPECT_EQ(modi.c_iflag & (IXON | IXOFF | ICRNL | INLCR | ISTRIP), 0U);
}

TEST(PortaAsio, WhatIsNotASerialLineCannotBeOpened)
{
    const QTemporaryDir cartella;
    QFile file(cartella.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(::mkfifo(qPrintable(cartella.filePath(u"tubo"_s)), 0666), 0);
    ASSERT_TRUE(QFile::link(u"/dev/not-there"_s, cartella.filePath(u"COM1"_s)));
    PortaAsio porta;
    for (const QString &percorso :
         {u"/dev/not-there"_s, u""_s, cartella.path(), cartella.filePath(u"file"_s),
          cartella.filePath(u"tubo"_s), cartella.filePath(u"COM1"_s), u"/dev/null"_s}) {
        EXPECT_EQ(apertura(porta, percorso), Errore::PortaInesistente) << percorso.toStdString();
        EXPECT_FALSE(porta.aperta());
    }
}

TEST(PortaAsio, ALineWhoseFarEndIsGoneCannotBeOpened)
{
    PseudoTerminale capo;
    const QString percorso = capo.percorso();
    capo.chiudi();
    PortaAsio porta;
    EXPECT_EQ(apertura(porta, percorso), Errore::PortaInesistente);
}

TEST(PortaAsio, ALineThatTheUserMayNotOpenGivesAccessDenied)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make a line that another user may not open";
    const PseudoTerminale capo;
    ASSERT_EQ(::chmod(qPrintable(capo.percorso()), 0600), 0);
    EXPECT_EQ(aperturaDaNessuno(capo.percorso()), Errore::AccessoNegato);
}

TEST(PortaAsio, BytesAreSentAndReceivedUnchanged)
{
    PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(i);
    porta.scrivi(tutti);
    EXPECT_EQ(capo.leggiAlmeno(256), tutti);
    capo.scrivi(tutti);
    QByteArray letti;
    EXPECT_TRUE(attendi([&] {
        letti += porta.leggi(1000);
        return letti.size() >= 256;
    }));
    EXPECT_EQ(letti, tutti);
}

TEST(PortaAsio, WrittenBytesAreWithTheSystemWhenTheCallReturns)
{
    PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    porta.scrivi("\x13\x41\x01");
    // No event loop runs here.
    QByteArray letti;
    for (int i = 0; i < 1000 && letti.size() < 3; ++i) {
        letti += capo.leggi();
        ::usleep(1000);
    }
    EXPECT_EQ(letti, "\x13\x41\x01");
}

TEST(PortaAsio, WrittenBytesReachTheFarEndEvenIfTheProcessEndsAtOnce)
{
    PseudoTerminale capo;
    AltroProcesso altro([&] {
        PortaAsio porta;
        porta.apri(capo.percorso());
        porta.scrivi("\x04");
        ::kill(::getpid(), SIGKILL);
    });
    EXPECT_EQ(capo.leggiAlmeno(1), "\x04");
}

TEST(PortaAsio, ReadingTakesNoMoreBytesThanRequested)
{
    PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    capo.scrivi("abcdef");
    QByteArray primi;
    ASSERT_TRUE(attendi([&] { return !(primi = porta.leggi(2)).isEmpty(); }));
    EXPECT_EQ(primi, "ab");
    EXPECT_EQ(porta.leggi(0), "");
    EXPECT_EQ(porta.leggi(100), "cdef");
    EXPECT_EQ(porta.leggi(100), "");
}

TEST(PortaAsio, CanBeClosedAndOpenedManyTimes)
{
    PseudoTerminale capo;
    PortaAsio porta;
    for (int i = 0; i < 200; ++i) {
        porta.sorveglia(i % 2 == 0);
        ASSERT_EQ(apertura(porta, capo.percorso()), 0) << i;
        porta.scrivi("x");
        porta.chiudi();
        porta.chiudi();
    }
    EXPECT_EQ(capo.leggiAlmeno(200), QByteArray(200, 'x'));
}

TEST(PortaAsio, OpeningAnotherLineClosesTheFirst)
{
    PseudoTerminale uno;
    PseudoTerminale due;
    PortaAsio porta;
    porta.apri(uno.percorso());
    porta.apri(due.percorso());
    porta.scrivi("x");
    EXPECT_EQ(due.leggiAlmeno(1), "x");
    PortaAsio altra;
    EXPECT_EQ(apertura(altra, uno.percorso()), 0);
}

TEST(PortaAsio, ASecondOpeningInTheSameProcessFindsItInUse)
{
    const PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    PortaAsio seconda;
    EXPECT_EQ(apertura(seconda, capo.percorso()), Errore::PortaInUso);
    EXPECT_FALSE(seconda.aperta());
    EXPECT_TRUE(porta.aperta());
    porta.chiudi();
    EXPECT_EQ(apertura(seconda, capo.percorso()), 0);
}

TEST(PortaAsio, ALineThatThisProgramHasOpenInAnotherProcessIsInUse)
{
    const PseudoTerminale capo;
    AltroProcesso altro([&] { (new PortaAsio)->apri(capo.percorso()); });
    PortaAsio porta;
    EXPECT_EQ(apertura(porta, capo.percorso()), Errore::PortaInUso);
    altro.uccidi();
    EXPECT_EQ(apertura(porta, capo.percorso()), 0);
}

TEST(PortaAsio, ALineThatAnotherProgramHasLockedIsInUse)
{
    const PseudoTerminale capo;
    AltroProcesso altro([&] {
        ::flock(::open(qPrintable(capo.percorso()), O_RDWR | O_NOCTTY), LOCK_EX | LOCK_NB);
    });
    PortaAsio porta;
    EXPECT_EQ(apertura(porta, capo.percorso()), Errore::PortaInUso);
}

TEST(PortaAsio, ALineThatAnotherProgramHasOpenedExclusivelyIsInUse)
{
    const PseudoTerminale capo;
    AltroProcesso altro(
        [&] { ::ioctl(::open(qPrintable(capo.percorso()), O_RDWR | O_NOCTTY), TIOCEXCL); });
    PortaAsio porta;
    EXPECT_EQ(apertura(porta, capo.percorso()), Errore::PortaInUso);
}

TEST(PortaAsio, ASecondOpeningDoesNotTakeTheBytesOfTheFirst)
{
    PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    capo.scrivi("abc");
    PortaAsio seconda;
    EXPECT_EQ(apertura(seconda, capo.percorso()), Errore::PortaInUso);
    QByteArray letti;
    EXPECT_TRUE(attendi([&] { return (letti += porta.leggi(10)).size() >= 3; }));
    EXPECT_EQ(letti, "abc");
}

TEST(PortaAsio, ANormalUserCanOpenTheLineAgainAfterAProcessWasKilled)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can become another user";
    const PseudoTerminale capo;
    ASSERT_EQ(::chmod(qPrintable(capo.percorso()), 0666), 0);
    AltroProcesso altro([&] { (new PortaAsio)->apri(capo.percorso()); });
    EXPECT_EQ(aperturaDaNessuno(capo.percorso()), Errore::PortaInUso);
    altro.uccidi();
    EXPECT_EQ(aperturaDaNessuno(capo.percorso()), 0);
    PortaAsio porta;
    EXPECT_EQ(apertura(porta, capo.percorso()), 0);
}

TEST(PortaAsio, AProgramThatIsStartedDoesNotInheritTheLine)
{
    const PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::execlp("sleep", "sleep", "60", nullptr);
        std::_Exit(1);
    }
    // Until execlp has succeeded, the child is a copy of this process.
    const auto eseguito = [pid] {
        QFile riga(u"/proc/%1/comm"_s.arg(pid));
        return riga.open(QIODevice::ReadOnly) && riga.readAll().startsWith("sleep");
    };
    EXPECT_TRUE(attendi(eseguito));
    porta.chiudi();
    EXPECT_EQ(apertura(porta, capo.percorso()), 0);
    ::kill(pid, SIGKILL);
    ::waitpid(pid, nullptr, 0);
}

TEST(PortaAsio, AFarEndThatDoesNotReadBlocksNothing)
{
    PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    int errore = 0;
    for (int i = 0; i < 100000 && errore == 0; ++i)
        errore = erroreDi([&] { porta.scrivi("0123456789"); });
    EXPECT_EQ(errore, Errore::LineaPersa);
    EXPECT_TRUE(porta.aperta());
    // The line is not lost: when the far end reads, it takes bytes again.
    EXPECT_TRUE(attendi([&] {
        capo.leggi();
        return erroreDi([&] { porta.scrivi("x"); }) == 0;
    }));
    porta.chiudi();
}

TEST(PortaAsio, AWriteThatIsTooLargeForTheLineBlocksNothing)
{
    const PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    EXPECT_EQ(erroreDi([&] { porta.scrivi(QByteArray(10000000, 'x')); }), Errore::LineaPersa);
}

TEST(PortaAsio, WhenTheFarEndGoesAwayItStillCountsAsOpen)
{
    PseudoTerminale capo;
    PortaAsio porta;
    porta.apri(capo.percorso());
    capo.chiudi();
    EXPECT_TRUE(porta.aperta());
    EXPECT_EQ(porta.leggi(10), "");
    EXPECT_EQ(porta.leggi(10), "");
    EXPECT_EQ(erroreDi([&] { porta.scrivi("x"); }), Errore::LineaPersa);
    EXPECT_TRUE(porta.aperta());
    porta.chiudi();
    EXPECT_FALSE(porta.aperta());
}

TEST(PortaAsio, CallsWhenBytesArriveWhileItIsWatched)
{
    PseudoTerminale capo;
    PortaAsio porta;
    QByteArray letti;
    porta.arrivo = [&] { letti += porta.leggi(100); };
    porta.sorveglia(true);
    porta.apri(capo.percorso());
    capo.scrivi("abc");
    EXPECT_TRUE(attendi([&] { return letti == "abc"; }));
}

TEST(PortaAsio, DoesNotCallWhileItIsNotWatched)
{
    PseudoTerminale capo;
    PortaAsio porta;
    int volte = 0;
    porta.arrivo = [&] {
        ++volte;
        porta.leggi(100);
    };
    porta.apri(capo.percorso());
    capo.scrivi("abc");
    for (int i = 0; i < 1000; ++i)
        pompa();
    EXPECT_EQ(volte, 0);
    porta.sorveglia(true);
    EXPECT_TRUE(attendi([&] { return volte > 0; }));
    porta.sorveglia(false);
    const int prima = volte;
    capo.scrivi("abc");
    for (int i = 0; i < 1000; ++i)
        pompa();
    EXPECT_EQ(volte, prima);
}

TEST(PortaAsio, CanBeClosedInsideItsOwnCall)
{
    PseudoTerminale capo;
    PortaAsio porta;
    int volte = 0;
    porta.arrivo = [&] {
        ++volte;
        porta.chiudi();
    };
    porta.sorveglia(true);
    porta.apri(capo.percorso());
    capo.scrivi("abc");
    EXPECT_TRUE(attendi([&] { return volte > 0; }));
    EXPECT_FALSE(porta.aperta());
    EXPECT_EQ(apertura(porta, capo.percorso()), 0);
}

TEST(PortaAsio, ALostLineThatIsNotReadDoesNotKeepTheProcessorBusy)
{
    PseudoTerminale capo;
    PortaAsio porta;
    int volte = 0;
    porta.arrivo = [&] { ++volte; };
    porta.sorveglia(true);
    porta.apri(capo.percorso());
    capo.chiudi();
    const double prima = secondiDiProcessore();
    QElapsedTimer orologio;
    orologio.start();
    bool passati = false;
    QTimer::singleShot(500, qApp, [&] { passati = true; });
    while (!passati)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_LT(volte, 10);
    EXPECT_LT(secondiDiProcessore() - prima, 0.4 * static_cast<double>(orologio.elapsed()) / 1000);
}
