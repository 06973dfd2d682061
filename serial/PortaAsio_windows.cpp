// The serial line of Windows. A read of one byte is always pending in the system; when it ends,
// bytes have arrived. The system reports how many there are, and exactly these are read, so that no
// read waits. The read time-outs of Windows could do the same, but drivers treat them differently.
#include "serial/PortaAsio.h"

#include "base/Errore.h"
#include "serial/LineaSeriale.h"
#include "serial/Presenza.h"

#include <QWinEventNotifier>
#include <asio/io_context.hpp>
#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

// Time limit for a write, in ms, and what is added for each byte; after it the line counts as lost.
// At 9600 baud a byte takes about 1 ms.
constexpr DWORD attesaScrittura = 500;
constexpr DWORD attesaPerByte = 2;

// One overlapped operation: the system works on it while the program goes on.
class Operazione
{
public:
    Operazione() : m_evento(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}
    ~Operazione() { ::CloseHandle(m_evento); }
    Q_DISABLE_COPY_MOVE(Operazione)

    HANDLE evento() const { return m_evento; }
    OVERLAPPED *nuova()
    {
        m_stato = {};
        // The lowest bit keeps the result out of Asio's completion queue, which is never read.
        m_stato.hEvent = reinterpret_cast<HANDLE>(reinterpret_cast<quintptr>(m_evento) | 1U);
        return &m_stato;
    }
    bool finita() const { return HasOverlappedIoCompleted(&m_stato); }
    // Waits for the end. Returns the number of bytes, or -1 if the operation failed.
    qint64 esito(HANDLE linea)
    {
        DWORD quanti = 0;
        return ::GetOverlappedResult(linea, &m_stato, &quanti, TRUE) ? qint64{quanti} : -1;
    }
    // Cancels the operation and waits until the system no longer uses its memory.
    void annulla(HANDLE linea)
    {
        ::CancelIoEx(linea, &m_stato);
        esito(linea);
    }

private:
    HANDLE m_evento;
    OVERLAPPED m_stato{};
};

// True if an operation has ended at once or is pending; subito: the result of the system's call.
bool avviata(BOOL subito)
{
    return subito || ::GetLastError() == ERROR_IO_PENDING;
}

} // namespace

struct PortaAsio::Linea
{
    asio::io_context contesto;
    asio::serial_port porta{contesto};
    Operazione attesa;
    char primo = 0;
    std::unique_ptr<QWinEventNotifier> avvisatore;
    Presenza presenza;
    bool sorvegliata = false;

    Linea()
    {
        presenza.perduta = [this] { aggiornaAvvisatore(); };
    }
    void aggiornaAvvisatore() { avvisatore->setEnabled(sorvegliata && !presenza.persa()); }
    // Waits until the system has sent the bytes: unsent ones are lost when the program ends.
    Presenza::Scrittura scrivi(QByteArrayView byte)
    {
        Operazione scrittura;
        const bool presa =
            avviata(::WriteFile(porta.native_handle(), byte.data(), static_cast<DWORD>(byte.size()),
                                nullptr, scrittura.nuova())) &&
            scrittura.esito(porta.native_handle()) == byte.size();
        // A time-out counts as a lost line: a far end that takes no bytes blocks the window once.
        return presa ? Presenza::Scrittura::Presa : Presenza::Scrittura::Mancata;
    }
    void aspettaUnByte()
    {
        if (!avviata(
                ::ReadFile(porta.native_handle(), &primo, sizeof primo, nullptr, attesa.nuova())))
            presenza.perdi();
    }
    // True if the pending read has got its byte.
    bool arrivato()
    {
        if (presenza.persa() || !attesa.finita())
            return false;
        const qint64 quanti = attesa.esito(porta.native_handle());
        if (quanti < 0)
            presenza.perdi();
        else if (quanti == 0)
            aspettaUnByte();
        return quanti > 0;
    }
    // Appends the bytes that the system has already received, up to massimo.
    void prendiIlResto(QByteArray &letti, qsizetype massimo)
    {
        DWORD errori = 0;
        COMSTAT stato{};
        if (!::ClearCommError(porta.native_handle(), &errori, &stato))
            return;
        const qsizetype presenti = qMin(qsizetype{stato.cbInQue}, massimo);
        if (presenti <= 0)
            return;
        QByteArray resto(presenti, Qt::Uninitialized);
        Operazione lettura;
        qint64 quanti = 0;
        if (avviata(::ReadFile(porta.native_handle(), resto.data(), static_cast<DWORD>(presenti),
                               nullptr, lettura.nuova())))
            quanti = lettura.esito(porta.native_handle());
        letti += resto.first(qMax(quanti, qint64{0}));
    }
};

PortaAsio::PortaAsio() : m_linea(std::make_unique<Linea>()) {}

PortaAsio::~PortaAsio()
{
    chiudi();
}

// On Windows a denied access means that another program has opened the port.
static Errore erroreDiApertura(const asio::error_code &errore)
{
    switch (errore.value()) {
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
        return Errore(Errore::PortaInUso);
    default:
        return Errore(Errore::PortaInesistente);
    }
}

void PortaAsio::apri(const QString &percorso)
{
    chiudi();
    asio::error_code errore;
    asio::serial_port &porta = m_linea->porta;
    porta.open(percorso.toLocal8Bit().toStdString(), errore);
    if (errore)
        throw erroreDiApertura(errore);
    errore = impostaParametri(porta);
    COMMTIMEOUTS tempi{};
    tempi.WriteTotalTimeoutConstant = attesaScrittura;
    tempi.WriteTotalTimeoutMultiplier = attesaPerByte;
    if (errore || !::SetCommTimeouts(porta.native_handle(), &tempi)) {
        porta.close(errore);
        throw Errore(Errore::PortaInesistente);
    }

    m_linea->presenza.ricomincia();
    m_linea->avvisatore = std::make_unique<QWinEventNotifier>(m_linea->attesa.evento());
    QObject::connect(m_linea->avvisatore.get(), &QWinEventNotifier::activated,
                     m_linea->avvisatore.get(), [this] {
                         if (m_linea->arrivato() && arrivo)
                             arrivo();
                     });
    m_linea->aggiornaAvvisatore();
    m_linea->aspettaUnByte();
}

void PortaAsio::chiudi()
{
    if (!aperta())
        return;
    // Deleted later, because this may run inside a call from the notifier.
    m_linea->avvisatore->setEnabled(false);
    m_linea->avvisatore.release()->deleteLater();
    // A read may be pending on a lost line as well.
    if (!m_linea->attesa.finita())
        m_linea->attesa.annulla(m_linea->porta.native_handle());
    asio::error_code ignorato;
    m_linea->porta.close(ignorato);
}

bool PortaAsio::aperta() const
{
    return m_linea->porta.is_open();
}

void PortaAsio::scrivi(QByteArrayView byte)
{
    if (byte.isEmpty())
        return;
    if (!aperta())
        throw Errore(Errore::LineaPersa);
    m_linea->presenza.scrivi([&] { return m_linea->scrivi(byte); });
}

QByteArray PortaAsio::leggi(qsizetype massimo)
{
    if (!aperta() || massimo <= 0 || !m_linea->arrivato())
        return {};
    QByteArray letti(1, m_linea->primo);
    m_linea->prendiIlResto(letti, massimo - 1);
    m_linea->aspettaUnByte();
    return letti;
}

void PortaAsio::sorveglia(bool attiva)
{
    m_linea->sorvegliata = attiva;
    if (aperta())
        m_linea->aggiornaAvvisatore();
}

QString percorsoPorta(int numero, const QString &)
{
    return u"\\\\.\\COM%1"_s.arg(numero);
}
