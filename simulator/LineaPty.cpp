#include "LineaPty.h"
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
    errore_ = u"%1: %2"_s.arg(dove, QString::fromLocal8Bit(std::strerror(errno)));
    chiudi();
    return false;
}

bool LineaPty::apri()
{
    chiudi();
    errore_.clear();
    std::array<char, 256> nome{};
    if (::openpty(&capo_, &presa_, nome.data(), nullptr, nullptr) != 0)
        return fallisci(u"openpty"_s);
    percorso_ = QFile::decodeName(nome.data());
    ::fcntl(capo_, F_SETFL, O_NONBLOCK);
    ::fcntl(capo_, F_SETFD, FD_CLOEXEC);
    ::fcntl(presa_, F_SETFD, FD_CLOEXEC);
    libera();

    guardia_ = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (guardia_ < 0 || ::inotify_add_watch(guardia_, nome.data(), IN_OPEN | IN_CLOSE) < 0)
        return fallisci(u"inotify"_s);
    notaAperture_ = std::make_unique<QSocketNotifier>(guardia_, QSocketNotifier::Read);
    QObject::connect(notaAperture_.get(), &QSocketNotifier::activated, notaAperture_.get(),
                     [this] { guardaAperture(); });
    notaLettura_ = std::make_unique<QSocketNotifier>(capo_, QSocketNotifier::Read);
    QObject::connect(notaLettura_.get(), &QSocketNotifier::activated, notaLettura_.get(), [this] {
        guardaAperture();
        leggi();
    });
    return true;
}

void LineaPty::chiudi()
{
    // A callback of a notifier may be what brought us here: it dies when the event loop is back.
    for (auto *nota : {&notaLettura_, &notaAperture_}) {
        if (*nota) {
            (*nota)->setEnabled(false);
            nota->release()->deleteLater();
        }
    }
    for (int *fd : {&guardia_, &presa_, &capo_}) {
        if (*fd >= 0)
            ::close(*fd);
        *fd = -1;
    }
    ascoltata_ = false;
    percorso_.clear();
}

// Raw, unread bytes gone, and no claim of the last program left on it.
void LineaPty::libera()
{
    termios modo{};
    if (::tcgetattr(presa_, &modo) == 0) {
        ::cfmakeraw(&modo);
        ::cfsetspeed(&modo, B9600);
        ::tcsetattr(presa_, TCSANOW, &modo);
    }
    ::ioctl(presa_, TIOCNXCL);
    ::tcflush(presa_, TCIFLUSH);
}

bool LineaPty::ascoltata()
{
    guardaAperture();
    return ascoltata_;
}

// Takes all openings and closings that are waiting. The system merges equal ones, so that they
// cannot be counted.
LineaPty::Eventi LineaPty::leggiEventi()
{
    Eventi eventi;
    alignas(inotify_event) std::array<char, 4096> spazio{};
    ssize_t n = 0;
    while (guardia_ >= 0 && (n = ::read(guardia_, spazio.data(), spazio.size())) > 0) {
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
    ::ioctl(presa_, TIOCGEXCL, &esclusiva);
    ::ioctl(presa_, TIOCNXCL);
    ::close(presa_);
    pollfd stato{capo_, 0, 0};
    ::poll(&stato, 1, 0);
    presa_ = ::open(QFile::encodeName(percorso_).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    const bool qualcuno = !(stato.revents & POLLHUP);
    if (qualcuno && esclusiva)
        ::ioctl(presa_, TIOCEXCL);
    leggiEventi(); // our own
    return qualcuno;
}

void LineaPty::guardaAperture()
{
    const Eventi eventi = leggiEventi();
    if (!eventi.aperta && !eventi.chiusa)
        return;
    const bool prima = ascoltata_;
    ascoltata_ = ascoltata_ || eventi.aperta;
    if (eventi.chiusa) {
        leggi(); // what the program wrote before it closed still arrives
        if (capo_ < 0)
            return;
        ascoltata_ = restaQualcuno();
        // Nothing was sent since the closing: all that lies unread was meant for who has left.
        if (!ascoltata_)
            libera();
        else if (eventi.riaperta)
            ::tcflush(presa_, TCIFLUSH);
    }
    if ((prima != ascoltata_ || eventi.riaperta) && suAscolto)
        suAscolto(ascoltata_);
}

void LineaPty::leggi()
{
    std::array<char, 4096> spazio{};
    while (capo_ >= 0) {
        const ssize_t n = ::read(capo_, spazio.data(), spazio.size());
        if (n <= 0)
            return;
        ascoltata_ = true; // whoever writes is there
        if (suLettura)
            suLettura(QByteArray(spazio.data(), n));
    }
}

qsizetype LineaPty::scrivi(const QByteArray &byte)
{
    if (capo_ < 0 || !ascoltata())
        return byte.size();
    const ssize_t n = ::write(capo_, byte.constData(), static_cast<std::size_t>(byte.size()));
    return n > 0 ? n : 0;
}
} // namespace tessaro_sim
