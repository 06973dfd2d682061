#include "simulator/line/LineaPty.h"
#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
LineaPty::~LineaPty()
{
    chiudi();
}

bool LineaPty::fallisci(const QString &dove)
{
    m_errore = u"%1: %2"_s.arg(dove, QString::fromLocal8Bit(std::strerror(errno)));
    chiudi();
    return false;
}

bool LineaPty::apri()
{
    chiudi();
    m_errore.clear();
    std::array<char, 256> nome{};
    if (::openpty(&m_capo, &m_presa, nome.data(), nullptr, nullptr) != 0)
        return fallisci(u"openpty"_s);
    m_percorso = QFile::decodeName(nome.data());
    ::fcntl(m_capo, F_SETFL, O_NONBLOCK);
    ::fcntl(m_capo, F_SETFD, FD_CLOEXEC);
    ::fcntl(m_presa, F_SETFD, FD_CLOEXEC);
    libera();

    m_guardia = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (m_guardia < 0 || ::inotify_add_watch(m_guardia, nome.data(), IN_OPEN | IN_CLOSE) < 0)
        return fallisci(u"inotify"_s);
    m_notaAperture = std::make_unique<QSocketNotifier>(m_guardia, QSocketNotifier::Read);
    QObject::connect(m_notaAperture.get(), &QSocketNotifier::activated, m_notaAperture.get(),
                     [this] { guardaAperture(); });
    m_notaLettura = std::make_unique<QSocketNotifier>(m_capo, QSocketNotifier::Read);
    QObject::connect(m_notaLettura.get(), &QSocketNotifier::activated, m_notaLettura.get(), [this] {
        guardaAperture();
        leggi();
    });
    return true;
}

void LineaPty::chiudi()
{
    // A callback of a notifier may be what brought us here: it dies when the event loop is back.
    for (auto *nota : {&m_notaLettura, &m_notaAperture}) {
        if (*nota) {
            (*nota)->setEnabled(false);
            nota->release()->deleteLater();
        }
    }
    for (int *fd : {&m_guardia, &m_presa, &m_capo}) {
        if (*fd >= 0)
            ::close(*fd);
        *fd = -1;
    }
    m_ascoltata = false;
    m_percorso.clear();
}

// Raw, unread bytes gone, and no claim of the last program left on it.
void LineaPty::libera()
{
    termios modo{};
    if (::tcgetattr(m_presa, &modo) == 0) {
        ::cfmakeraw(&modo);
        ::cfsetspeed(&modo, B9600);
        ::tcsetattr(m_presa, TCSANOW, &modo);
    }
    ::ioctl(m_presa, TIOCNXCL);
    ::tcflush(m_presa, TCIFLUSH);
}

bool LineaPty::ascoltata()
{
    guardaAperture();
    return m_ascoltata;
}

// Takes all openings and closings that are waiting. The system merges equal ones, so that they
// cannot be counted.
LineaPty::Eventi LineaPty::leggiEventi()
{
    Eventi eventi;
    alignas(inotify_event) std::array<char, 4096> spazio{};
    ssize_t n = 0;
    while (m_guardia >= 0 && (n = ::read(m_guardia, spazio.data(), spazio.size())) > 0) {
        for (ssize_t i = 0; i < n;) {
            inotify_event evento{};
            std::memcpy(&evento, spazio.data() + i, sizeof evento);
            i += static_cast<ssize_t>(sizeof evento + evento.len);
            eventi.aperta = eventi.aperta || (evento.mask & IN_OPEN);
            eventi.chiusa = eventi.chiusa || (evento.mask & IN_CLOSE);
            eventi.riaperta = eventi.chiusa && (evento.mask & IN_OPEN);
        }
    }
    return eventi;
}

// Lets go of the other end for a moment: the line hangs up if nobody else holds it.
bool LineaPty::restaQualcuno()
{
    int esclusiva = 0;
    ::ioctl(m_presa, TIOCGEXCL, &esclusiva);
    ::ioctl(m_presa, TIOCNXCL);
    ::close(m_presa);
    pollfd stato{m_capo, 0, 0};
    ::poll(&stato, 1, 0);
    m_presa = ::open(QFile::encodeName(m_percorso).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    const bool qualcuno = !(stato.revents & POLLHUP);
    if (qualcuno && esclusiva)
        ::ioctl(m_presa, TIOCEXCL);
    leggiEventi(); // our own
    return qualcuno;
}

void LineaPty::guardaAperture()
{
    const Eventi eventi = leggiEventi();
    if (!eventi.aperta && !eventi.chiusa)
        return;
    const bool prima = m_ascoltata;
    m_ascoltata = m_ascoltata || eventi.aperta;
    if (eventi.chiusa) {
        leggi(); // what the program wrote before it closed still arrives
        if (m_capo < 0)
            return;
        m_ascoltata = restaQualcuno();
        // Nothing was sent since the closing: all that lies unread was meant for who has left.
        if (!m_ascoltata)
            libera();
        else if (eventi.riaperta)
            ::tcflush(m_presa, TCIFLUSH);
    }
    if ((prima != m_ascoltata || eventi.riaperta) && suAscolto)
        suAscolto(m_ascoltata);
}

void LineaPty::leggi()
{
    std::array<char, 4096> spazio{};
    while (m_capo >= 0) {
        const ssize_t n = ::read(m_capo, spazio.data(), spazio.size());
        if (n <= 0)
            return;
        m_ascoltata = true; // whoever writes is there
        if (suLettura)
            suLettura(QByteArray(spazio.data(), n));
    }
}

qsizetype LineaPty::scrivi(const QByteArray &byte)
{
    if (m_capo < 0 || !ascoltata())
        return byte.size();
    const ssize_t n = ::write(m_capo, byte.constData(), static_cast<std::size_t>(byte.size()));
    return n > 0 ? n : 0;
}
} // namespace tessaro_sim
