#pragma once
#include "tests/simulator/RobotInProva.h"
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

// The program's side: a device opened as a program would, read without blocking.
class Porta
{
public:
    explicit Porta(const QString &percorso)
        : m_fd(::open(QFile::encodeName(percorso).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
    }
    ~Porta() { chiudi(); }
    Porta(const Porta &) = delete;
    Porta &operator=(const Porta &) = delete;

    bool aperta() const { return m_fd >= 0; }
    int fd() const { return m_fd; }
    void chiudi()
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
    }
    bool scrivi(const QByteArray &byte)
    {
        return ::write(m_fd, byte.constData(), static_cast<size_t>(byte.size())) == byte.size();
    }
    // Takes what has come; all that came so far.
    const QByteArray &letti()
    {
        char spazio[4096];
        ssize_t n = 0;
        while ((n = ::read(m_fd, spazio, sizeof spazio)) > 0)
            m_letti.append(spazio, n);
        m_svanita = n == 0 || (n < 0 && errno != EAGAIN);
        return m_letti;
    }
    // Takes what has come and tells whether the other end has hung up.
    bool svanita()
    {
        letti();
        return m_svanita;
    }

private:
    int m_fd = -1;
    QByteArray m_letti;
    bool m_svanita = false;
};
