#include "PortaAsio.h"

#include "Errore.h"

#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <asio/io_context.hpp>
#include <asio/serial_port.hpp>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>

using namespace Qt::StringLiterals;

struct PortaAsio::Linea
{
    asio::io_context contesto;
    asio::serial_port porta{contesto};
    std::unique_ptr<QSocketNotifier> avvisatore;
    // The far end went away: open in name, but nothing is read or waited for any more.
    bool persa = false;
    bool sorvegliata = false;

    bool pronta(short evento)
    {
        pollfd attesa{porta.native_handle(), evento, 0};
        return ::poll(&attesa, 1, 0) > 0 && (attesa.revents & (evento | POLLHUP | POLLERR)) != 0;
    }
    void aggiornaAvvisatore() { avvisatore->setEnabled(sorvegliata && !persa); }
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
        return Errore(Errore::AccessoNegato,
                      u"Non hai i permessi per usare la porta seriale %1: il tuo utente deve far "
                      "parte del gruppo \"%2\""_s.arg(percorso, QFileInfo(percorso).group()));
    default:
        return Errore(Errore::PortaInesistente);
    }
}

// The flag keeps out other programs, the lock another program of our own kind even where the user
// may open a line in spite of the flag.
static bool riserva(int linea)
{
    int giaRiservata = 0;
    if (::ioctl(linea, TIOCGEXCL, &giaRiservata) == 0 && giaRiservata != 0)
        return false;
    if (::flock(linea, LOCK_EX | LOCK_NB) != 0)
        return false;
    ::ioctl(linea, TIOCEXCL);
    return true;
}

void PortaAsio::apri(const QString &percorso)
{
    using opzione = asio::serial_port_base;
    chiudi();
    asio::error_code errore;
    asio::serial_port &porta = m_linea->porta;
    porta.open(QFile::encodeName(percorso).toStdString(), errore);
    if (errore)
        throw erroreDiApertura(errore, percorso);
    if (!riserva(porta.native_handle())) {
        porta.close(errore);
        throw Errore(Errore::PortaInUso);
    }
    const auto imposta = [&](const auto &valore) {
        if (!errore)
            porta.set_option(valore, errore);
    };
    imposta(opzione::baud_rate(9600));
    imposta(opzione::character_size(8));
    imposta(opzione::parity(opzione::parity::none));
    imposta(opzione::stop_bits(opzione::stop_bits::one));
    imposta(opzione::flow_control(opzione::flow_control::none));
    if (errore) {
        chiudi();
        throw Errore(Errore::PortaInesistente);
    }
    // A pseudo-terminal has no control lines: that is no error.
    int linee = TIOCM_DTR | TIOCM_RTS;
    ::ioctl(porta.native_handle(), TIOCMBIS, &linee);

    m_linea->persa = false;
    m_linea->avvisatore =
        std::make_unique<QSocketNotifier>(porta.native_handle(), QSocketNotifier::Read);
    QObject::connect(m_linea->avvisatore.get(), &QSocketNotifier::activated,
                     m_linea->avvisatore.get(), [this] {
                         if (arrivo)
                             arrivo();
                     });
    m_linea->aggiornaAvvisatore();
}

void PortaAsio::chiudi()
{
    if (!aperta())
        return;
    if (m_linea->avvisatore) {
        // The notifier may be the one whose call we are in.
        m_linea->avvisatore->setEnabled(false);
        m_linea->avvisatore.release()->deleteLater();
    }
    // The flag outlives the descriptor on a pseudo-terminal.
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
    while (!byte.isEmpty()) {
        asio::error_code errore;
        size_t scritti = 0;
        if (!m_linea->persa && m_linea->pronta(POLLOUT))
            scritti = m_linea->porta.write_some(
                asio::buffer(byte.data(), static_cast<size_t>(byte.size())), errore);
        if (errore || scritti == 0)
            throw Errore(Errore::LineaPersa);
        byte = byte.sliced(static_cast<qsizetype>(scritti));
    }
}

QByteArray PortaAsio::leggi(qsizetype massimo)
{
    if (!aperta() || m_linea->persa || massimo <= 0 || !m_linea->pronta(POLLIN))
        return {};
    QByteArray letti(massimo, Qt::Uninitialized);
    asio::error_code errore;
    const size_t quanti =
        m_linea->porta.read_some(asio::buffer(letti.data(), static_cast<size_t>(massimo)), errore);
    if (errore) {
        m_linea->persa = true;
        m_linea->aggiornaAvvisatore();
        return {};
    }
    letti.truncate(static_cast<qsizetype>(quanti));
    return letti;
}

void PortaAsio::sorveglia(bool attiva)
{
    m_linea->sorvegliata = attiva;
    if (aperta())
        m_linea->aggiornaAvvisatore();
}
