#include "Sistema.h"

#include <QFile>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
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
    QFile::setPermissions(m_cartella,
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
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

bool permessiContano()
{
    return ::geteuid() != 0;
}
