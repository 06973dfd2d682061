#pragma once
#include "Aiuti.h"
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

/// The program's side: a device opened as a program would, read without blocking.
class Porta
{
public:
    explicit Porta(const QString &percorso)
        : fd_(::open(QFile::encodeName(percorso).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
    }
    ~Porta() { chiudi(); }
    Porta(const Porta &) = delete;
    Porta &operator=(const Porta &) = delete;

    bool aperta() const { return fd_ >= 0; }
    int fd() const { return fd_; }
    void chiudi()
    {
        if (fd_ >= 0)
            ::close(fd_);
        fd_ = -1;
    }
    bool scrivi(const QByteArray &byte)
    {
        return ::write(fd_, byte.constData(), static_cast<size_t>(byte.size())) == byte.size();
    }
    /// Takes what has come; all that came so far.
    const QByteArray &letti()
    {
        char spazio[4096];
        ssize_t n = 0;
        while ((n = ::read(fd_, spazio, sizeof spazio)) > 0)
            letti_.append(spazio, n);
        svanita_ = n == 0 || (n < 0 && errno != EAGAIN);
        return letti_;
    }
    /// Takes what has come and tells whether the other end has hung up.
    bool svanita()
    {
        letti();
        return svanita_;
    }

private:
    int fd_ = -1;
    QByteArray letti_;
    bool svanita_ = false;
};
