// The serial line of Linux.
#include "serial/PortaAsio.h"

#include "base/Cartella.h"
#include "base/Errore.h"
#include "serial/LineaSeriale.h"
#include "serial/PermessiPorta.h"
#include "serial/Presenza.h"

#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <asio/io_context.hpp>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

struct PortaAsio::Linea
{
    asio::io_context contesto;
    asio::serial_port porta{contesto};
    std::unique_ptr<QSocketNotifier> avvisatore;
    Presenza presenza;
    bool sorvegliata = false;

    Linea()
    {
        presenza.perduta = [this] { aggiornaAvvisatore(); };
    }
    bool staccata()
    {
        pollfd attesa{porta.native_handle(), 0, 0};
        return ::poll(&attesa, 1, 0) > 0 && (attesa.revents & (POLLHUP | POLLERR)) != 0;
    }
    void aggiornaAvvisatore() { avvisatore->setEnabled(sorvegliata && !presenza.persa()); }
    // Never waits: Asio opens the line in non-blocking mode.
    Presenza::Scrittura scrivi(QByteArrayView byte)
    {
        while (!byte.isEmpty()) {
            const ssize_t scritti =
                ::write(porta.native_handle(), byte.data(), static_cast<size_t>(byte.size()));
            if (scritti > 0)
                byte = byte.sliced(scritti);
            else if (scritti < 0 && errno == EAGAIN)
                return Presenza::Scrittura::SenzaPosto;
            else if (scritti == 0 || errno != EINTR)
                return Presenza::Scrittura::Mancata;
        }
        return Presenza::Scrittura::Presa;
    }
};

PortaAsio::PortaAsio() : m_linea(std::make_unique<Linea>()) {}

PortaAsio::~PortaAsio()
{
    chiudi();
}

static Errore erroreDiApertura(const asio::error_code &errore, const QString &percorso)
{
    switch (errore.value()) {
    case EBUSY:
        return Errore(Errore::PortaInUso);
    case EACCES:
    case EPERM:
        return Errore(Errore::AccessoNegato, spiegaPermessi(permessiPorta(percorso)));
    default:
        return Errore(Errore::PortaInesistente);
    }
}

// Reserves the line for this program; false if another one has it. The lock keeps out programs that
// ask for it, also those of root, on which the exclusive flag has no effect. The flag keeps out
// programs that do not ask. It is not set on a pseudo-terminal, where it would outlive the process:
// after a crash the line could not be opened again.
static bool riserva(int linea)
{
    int giaRiservata = 0;
    if (::ioctl(linea, TIOCGEXCL, &giaRiservata) == 0 && giaRiservata != 0)
        return false;
    if (::flock(linea, LOCK_EX | LOCK_NB) != 0)
        return false;
    int lineeDiControllo = 0;
    const bool pseudoTerminale = ::ioctl(linea, TIOCMGET, &lineeDiControllo) != 0;
    if (!pseudoTerminale)
        ::ioctl(linea, TIOCEXCL);
    return true;
}

void PortaAsio::apri(const QString &percorso)
{
    chiudi();
    asio::error_code errore;
    asio::serial_port &porta = m_linea->porta;
    porta.open(QFile::encodeName(percorso).toStdString(), errore);
    if (errore)
        throw erroreDiApertura(errore, percorso);
    // Programs that this one starts must not inherit the line.
    ::fcntl(porta.native_handle(), F_SETFD, FD_CLOEXEC);
    if (!riserva(porta.native_handle())) {
        porta.close(errore);
        throw Errore(Errore::PortaInUso);
    }
    errore = impostaParametri(porta);
    if (errore) {
        chiudi();
        throw Errore(Errore::PortaInesistente);
    }
    // Fails on a pseudo-terminal, which has no control lines: no error.
    int linee = TIOCM_DTR | TIOCM_RTS;
    ::ioctl(porta.native_handle(), TIOCMBIS, &linee);

    m_linea->presenza.ricomincia();
    m_linea->avvisatore =
        std::make_unique<QSocketNotifier>(porta.native_handle(), QSocketNotifier::Read);
    QObject::connect(m_linea->avvisatore.get(), &QSocketNotifier::activated,
                     m_linea->avvisatore.get(), [this] {
                         // Without a far end the line always counts as readable.
                         if (m_linea->staccata())
                             m_linea->presenza.perdi();
                         else if (arrivo)
                             arrivo();
                     });
    m_linea->aggiornaAvvisatore();
}

void PortaAsio::chiudi()
{
    if (!aperta())
        return;
    if (m_linea->avvisatore) {
        // Deleted later, because this may run inside a call from the notifier.
        m_linea->avvisatore->setEnabled(false);
        m_linea->avvisatore.release()->deleteLater();
    }
    ::ioctl(m_linea->porta.native_handle(), TIOCNXCL);
    asio::error_code ignorato;
    m_linea->porta.close(ignorato);
}

bool PortaAsio::aperta() const
{
    return m_linea->porta.is_open();
}

void PortaAsio::scrivi(QByteArrayView byte)
{
    if (!aperta())
        throw Errore(Errore::LineaPersa);
    m_linea->presenza.scrivi([&] { return m_linea->scrivi(byte); });
}

QByteArray PortaAsio::leggi(qsizetype massimo)
{
    if (!aperta() || m_linea->presenza.persa() || massimo <= 0)
        return {};
    QByteArray letti(massimo, Qt::Uninitialized);
    ssize_t quanti = 0;
    do {
        quanti = ::read(m_linea->porta.native_handle(), letti.data(), static_cast<size_t>(massimo));
    } while (quanti < 0 && errno == EINTR);
    if (quanti > 0) {
        letti.truncate(quanti);
        return letti;
    }
    if (quanti == 0 || errno != EAGAIN)
        m_linea->presenza.perdi();
    return {};
}

void PortaAsio::sorveglia(bool attiva)
{
    m_linea->sorvegliata = attiva;
    if (aperta())
        m_linea->aggiornaAvvisatore();
}

QString percorsoPorta(int numero, const QString &cartella)
{
    const QFileInfo collegamento(conSeparatore(cartella) + u"COM%1"_s.arg(numero));
    if (collegamento.exists() || collegamento.isSymLink())
        return collegamento.filePath();
    return u"/dev/ttyS%1"_s.arg(numero - 1);
}
