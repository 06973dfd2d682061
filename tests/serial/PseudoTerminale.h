// A pseudo-terminal: the test holds the far end of the line.
#pragma once

#include "tests/support/Controlli.h"

#include <fcntl.h>
#include <unistd.h>

class PseudoTerminale
{
public:
    // Its other end is opened as a serial line, under percorso().
    PseudoTerminale() : m_capo(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        if (::grantpt(m_capo) != 0 || ::unlockpt(m_capo) != 0)
            qFatal("no pseudo-terminal");
        m_percorso = QString::fromLocal8Bit(::ptsname(m_capo));
    }
    ~PseudoTerminale() { chiudi(); }
    Q_DISABLE_COPY_MOVE(PseudoTerminale)

    const QString &percorso() const { return m_percorso; }
    void chiudi()
    {
        if (m_capo >= 0)
            ::close(m_capo);
        m_capo = -1;
    }
    void scrivi(const QByteArray &byte)
    {
        ASSERT_EQ(::write(m_capo, byte.constData(), static_cast<size_t>(byte.size())), byte.size());
    }
    // The bytes that have arrived, without waiting.
    QByteArray leggi()
    {
        QByteArray letti(65536, Qt::Uninitialized);
        const ssize_t quanti = ::read(m_capo, letti.data(), static_cast<size_t>(letti.size()));
        letti.truncate(quanti > 0 ? quanti : 0);
        return letti;
    }
    // Waits until at least this number of bytes has arrived, 20 seconds at most.
    QByteArray leggiAlmeno(qsizetype quanti)
    {
        QByteArray letti;
        attendi([&] {
            letti += leggi();
            return letti.size() >= quanti;
        });
        return letti;
    }

private:
    int m_capo;
    QString m_percorso;
};
