// The serial line of Windows. One read of one byte is always waiting in the system: its end says
// that bytes are there. The rest is then read by its count, so that no reading waits. Windows'
// time limits for readings, which could do the same, are not alike on all drivers.
#include "serial/PortaAsio.h"

#include "base/Errore.h"
#include "serial/LineaSeriale.h"
#include "serial/Presenza.h"

#include <QWinEventNotifier>
#include <asio/io_context.hpp>
#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace {

// What the driver may take for a write before the line counts as lost, in ms, and more for each
// byte: at 9600 baud it needs about one.
constexpr DWORD attesaScrittura = 500;
constexpr DWORD attesaPerByte = 2;

// One operation that the system works on while the program goes on.
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
        // The mark keeps the end out of Asio's own queue, which nobody empties.
        m_stato.hEvent = reinterpret_cast<HANDLE>(reinterpret_cast<quintptr>(m_evento) | 1U);
        return &m_stato;
    }
    bool finita() const { return HasOverlappedIoCompleted(&m_stato); }
    // Waits for the end. How many bytes went through; less than 0 where it failed.
    qint64 esito(HANDLE linea)
    {
        DWORD quanti = 0;
        return ::GetOverlappedResult(linea, &m_stato, &quanti, TRUE) ? qint64{quanti} : -1;
    }
    // The system lets go of the memory that it was given.
    void annulla(HANDLE linea)
    {
        ::CancelIoEx(linea, &m_stato);
        esito(linea);
    }

private:
    HANDLE m_evento;
    OVERLAPPED m_stato{};
};

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
    // Waits until the system has sent the bytes: it drops what it has not sent when the program
    // ends.
    Presenza::Scrittura scrivi(QByteArrayView byte)
    {
        Operazione scrittura;
        const bool presa =
            avviata(::WriteFile(porta.native_handle(), byte.data(), static_cast<DWORD>(byte.size()),
                                nullptr, scrittura.nuova())) &&
            scrittura.esito(porta.native_handle()) == byte.size();
        // A far end that does not take them keeps the window waiting: once is enough.
        return presa ? Presenza::Scrittura::Presa : Presenza::Scrittura::Mancata;
    }
    void aspettaUnByte()
    {
        if (!avviata(
                ::ReadFile(porta.native_handle(), &primo, sizeof primo, nullptr, attesa.nuova())))
            presenza.perdi();
    }
    // Whether the read that waits has brought its byte.
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
    // Those that are with the system already.
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

// Windows refuses whoever comes second: that is what it means by a denied access.
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
    // The notifier may be the one whose call we are in.
    m_linea->avvisatore->setEnabled(false);
    m_linea->avvisatore.release()->deleteLater();
    // Also on a lost line a read may still wait.
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
