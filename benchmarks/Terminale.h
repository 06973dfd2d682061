// A pseudo-terminal: the program has one end, the benchmark the other.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <stdexcept>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

class Terminale
{
public:
    Terminale() : m_capo(::posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (m_capo < 0 || ::grantpt(m_capo) != 0 || ::unlockpt(m_capo) != 0)
            throw std::runtime_error("no pseudo-terminal");
        termios grezzo{};
        ::tcgetattr(m_capo, &grezzo);
        ::cfmakeraw(&grezzo);
        ::tcsetattr(m_capo, TCSANOW, &grezzo);
        // The program's folder with the link to the port and the settings. The program does not
        // connect at its start.
        QFile::link(QString::fromLocal8Bit(::ptsname(m_capo)), percorso("COM1"));
        scriviFile("Porta COM", "1\r\n");
        scriviFile("prog.dat", "0;");
    }
    ~Terminale() { ::close(m_capo); }
    Q_DISABLE_COPY_MOVE(Terminale)

    int capo() const { return m_capo; }
    QString cartella() const { return m_cartella.path(); }

    void scrivi(QByteArrayView byte) const
    {
        while (!byte.isEmpty()) {
            const auto n = ::write(m_capo, byte.data(), static_cast<size_t>(byte.size()));
            if (n <= 0)
                return;
            byte = byte.sliced(n);
        }
    }

private:
    QString percorso(const char *nome) const
    {
        return m_cartella.filePath(QString::fromLatin1(nome));
    }
    void scriviFile(const char *nome, const char *testo) const
    {
        QFile file(percorso(nome));
        if (file.open(QIODevice::WriteOnly))
            file.write(testo);
    }

    QTemporaryDir m_cartella;
    int m_capo;
};
