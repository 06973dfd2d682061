#include "tests/support/Sistema.h"

#include <QFile>
#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

struct DiscoPieno::Prima
{
    rlimit limite{};
    void (*segnale)(int) = nullptr;
};

bool DiscoPieno::possibile()
{
    return true;
}

DiscoPieno::DiscoPieno(qsizetype byte) : m_prima(std::make_unique<Prima>())
{
    m_prima->segnale = std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &m_prima->limite);
    const rlimit stretto{static_cast<rlim_t>(byte), m_prima->limite.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &stretto);
}

DiscoPieno::~DiscoPieno()
{
    ::setrlimit(RLIMIT_FSIZE, &m_prima->limite);
    std::signal(SIGXFSZ, m_prima->segnale);
}

bool SenzaDiritti::possibile()
{
    return true;
}

SenzaDiritti::SenzaDiritti(const QString &cartella) : m_cartella(cartella)
{
    // Without write permission for the group as well, because the process keeps root's group.
    QFile::setPermissions(m_cartella, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                          QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    if (::geteuid() == 0)
        m_eraRoot = ::seteuid(65534) == 0;
}

SenzaDiritti::~SenzaDiritti()
{
    if (m_eraRoot) {
        EXPECT_EQ(::seteuid(0), 0);
    }
    QFile::setPermissions(m_cartella, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool mettiIlleggibile(const QString &nome)
{
    const QByteArray percorso = QFile::encodeName(nome);
    sockaddr_un indirizzo{};
    indirizzo.sun_family = AF_UNIX;
    if (percorso.size() >= qsizetype(sizeof indirizzo.sun_path))
        return false;
    std::copy(percorso.begin(), percorso.end(), indirizzo.sun_path);
    // The name of a socket stays after the socket is closed.
    const int presa = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool legata =
        ::bind(presa, reinterpret_cast<const sockaddr *>(&indirizzo), sizeof indirizzo) == 0;
    ::close(presa);
    return legata;
}

bool collega(const QString &file, const QString &nome)
{
    return QFile::link(file, nome);
}

bool virgoletteNeiNomi()
{
    return true;
}

bool permessiContano()
{
    return ::geteuid() != 0;
}
