#include "simulator/Simulatore.h"
#include "simulator/line/CollegamentoPorta.h"
#include "simulator/line/Linea.h"
#include "simulator/line/Registrazione.h"
#include "simulator/line/Riproduttore.h"
#include "simulator/line/Uscita.h"
#include "simulator/robot/Telegrammi.h"
#include <QTimer>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
constexpr int passo = 20;                   // ms of the robot's clock
constexpr qint64 massimoRicevuti = 1 << 20; // bytes kept of what was received
constexpr int righeAlSecondo = 600;         // video without a line's limit: ten pictures a second
} // namespace

class Simulatore::Interno
{
public:
    explicit Interno(Simulatore &di) : q(di), robot(diario), linea(creaLinea()), uscita(*linea)
    {
        orologio.start();
        linea->suLettura = [this](const QByteArray &byte) { arrivati(byte); };
        linea->suAscolto = [this](bool aperta) {
            diario.aggiungi(VoceDiario::Tipo::Sessione, aperta ? u"Porta aperta dal programma"_s
                                                               : u"Porta chiusa dal programma"_s);
            Q_EMIT q.portaCambiata(aperta);
        };
        uscita.suInvio = [this](const QByteArray &byte) {
            quantiInviati += byte.size();
            registratore.scrivi(false, byte);
            Q_EMIT q.inviato(byte);
        };
        uscita.suFame = [this] { sfama(); };
        riproduttore.suByte = [this](const QByteArray &byte) { accoda(byte); };
        riproduttore.suFine = [this] { Q_EMIT q.riproduzioneFinita(); };
        connect(&robot, &Robot::telegramma, &robot,
                [this](const QByteArray &byte) { spedisci(byte); });
        connect(&robot, &Robot::videoFermato, &robot, [this] { uscita.interrompi(); });
        connect(&battito, &QTimer::timeout, &battito, [this] { batti(); });
        battito.start(passo);
    }

    void arrivati(const QByteArray &byte)
    {
        if (perduta())
            return;
        letture << byte;
        quantiRicevuti += byte.size();
        while (quantiRicevuti > massimoRicevuti)
            quantiRicevuti -= letture.takeFirst().size();
        registratore.scrivi(true, byte);
        Q_EMIT q.ricevuto(byte);
        riproduttore.scatta();
        const Guasti &guasti = robot.guasti();
        robot.ricevi(guasti.ancheInArrivo ? filtro.linea(byte, guasti) : byte);
        sfama();
    }

    // The robot's own telegrams pass the faults; a delay keeps their order.
    void spedisci(const QByteArray &telegramma)
    {
        if (riproduttore.attivo())
            return;
        const QByteArray byte = filtro.telegramma(telegramma, robot.guasti());
        if (!differisci(byte))
            accoda(byte);
    }

    void spedisciRiga(const QByteArray &riga)
    {
        const QByteArray byte = filtro.telegramma(riga, robot.guasti());
        if (!differisci(byte))
            uscita.accodaRiga(byte);
    }

    // False where nothing delays what is sent now.
    bool differisci(const QByteArray &byte)
    {
        const int ritardo = robot.guasti().ritardo;
        if (ritardo <= 0 && inAttesa.isEmpty())
            return false;
        const qint64 quando = orologio.elapsed() + qMax(ritardo, 0);
        inAttesa.append(
            {inAttesa.isEmpty() ? quando : qMax(quando, inAttesa.constLast().first), byte});
        QTimer::singleShot(qMax(ritardo, 0), Qt::PreciseTimer, &battito, [this] { rilascia(); });
        return true;
    }

    void rilascia()
    {
        while (!inAttesa.isEmpty() && inAttesa.constFirst().first <= orologio.elapsed())
            accoda(inAttesa.takeFirst().second);
    }

    void accoda(const QByteArray &byte)
    {
        if (const qsizetype persi = uscita.accoda(byte); persi > 0)
            diario.aggiungi(VoceDiario::Tipo::Nota, u"Coda piena: %1 byte perduti"_s.arg(persi));
    }

    // What has no end (video, a flood, a recording) is made only as the line takes it.
    void sfama()
    {
        riproduttore.avanti();
        if (riproduttore.attivo())
            return;
        const StatoRobot &stato = robot.stato();
        if (!stato.videoAttivo)
            inizioVideo = -1;
        else if (inizioVideo < 0) {
            inizioVideo = orologio.elapsed();
            righeVideo = 0;
        }
        while (stato.videoAttivo && uscita.inCoda() == 0 && rigaDovuta()) {
            const QByteArray riga = robot.prossimaRiga();
            if (riga.isEmpty())
                break;
            ++righeVideo;
            spedisciRiga(riga);
            if (!inAttesa.isEmpty())
                break;
        }
        const Guasti &guasti = robot.guasti();
        while (guasti.alluvione && !guasti.silenzio && stato.sessioneAperta &&
               uscita.inCoda() < 512)
            accoda(filtro.telegramma(Telegrammi::temperatura(stato.temperatura), guasti));
    }

    bool rigaDovuta() const
    {
        return uscita.baud() > 0 ||
               righeVideo * 1000 <= (orologio.elapsed() - inizioVideo) * righeAlSecondo;
    }

    void batti()
    {
        rilascia();
        const qint64 ora = orologio.elapsed();
        // After a long stop of the event loop the robot does not jump across the room.
        robot.avanza(static_cast<int>(qMin<qint64>(ora - ultimoBattito, 200)));
        ultimoBattito = ora;
        uscita.impostaPerduta(perduta());
        sfama();
    }

    bool perduta() const { return fineGuasto > orologio.elapsed(); }

    Simulatore &q;
    Diario diario;
    Robot robot;
    std::unique_ptr<Linea> linea;
    Uscita uscita;
    CollegamentoPorta collegamento;
    FiltroGuasti filtro;
    Registratore registratore;
    Riproduttore riproduttore;
    QElapsedTimer orologio;
    QTimer battito;
    qint64 ultimoBattito = 0;
    qint64 fineGuasto = 0;
    qint64 inizioVideo = -1;
    qint64 righeVideo = 0;
    QList<std::pair<qint64, QByteArray>> inAttesa;
    QList<QByteArray> letture;
    qint64 quantiRicevuti = 0;
    qint64 quantiInviati = 0;
    QString errore;
};

Simulatore::Simulatore(QObject *parent) : QObject(parent), d(std::make_unique<Interno>(*this)) {}

Simulatore::~Simulatore()
{
    // Nothing of ours is heard any more while the parts go down.
    d->linea->suLettura = nullptr;
    d->linea->suAscolto = nullptr;
    d->uscita.svuota();
}

bool Simulatore::apri()
{
    if (!d->linea->apri()) {
        d->errore = d->linea->errore();
        return false;
    }
    return d->collegamento.aggiorna(percorso(), d->errore);
}

QString Simulatore::errore() const
{
    return d->errore;
}

QString Simulatore::percorso() const
{
    return d->linea->percorso();
}

bool Simulatore::collegaPorta(const QString &cartella, int n)
{
    return d->collegamento.crea(cartella, n, percorso(), d->errore);
}

bool Simulatore::portaAperta()
{
    return d->linea->aperta() && d->linea->ascoltata();
}

void Simulatore::sgancia()
{
    d->linea->chiudi();
    d->uscita.svuota();
    d->inAttesa.clear();
    d->diario.aggiungi(VoceDiario::Tipo::Sessione, u"Linea sganciata"_s);
}

bool Simulatore::riaggancia()
{
    if (!apri())
        return false;
    d->diario.aggiungi(VoceDiario::Tipo::Sessione, u"Linea riagganciata"_s);
    return true;
}

void Simulatore::perdiLinea(int ms)
{
    d->fineGuasto = ms > 0 ? d->orologio.elapsed() + ms : 0;
    d->uscita.impostaPerduta(ms > 0);
}

void Simulatore::impostaBaud(int baud)
{
    d->uscita.impostaBaud(baud);
}

int Simulatore::baud() const
{
    return d->uscita.baud();
}

void Simulatore::impostaSeme(quint32 seme)
{
    d->filtro.semina(seme);
}

Robot &Simulatore::robot()
{
    return d->robot;
}

Diario &Simulatore::diario()
{
    return d->diario;
}

Guasti &Simulatore::guasti()
{
    return d->robot.guasti();
}

void Simulatore::inviaGrezzo(const QByteArray &byte)
{
    d->accoda(byte);
}

QByteArray Simulatore::ricevuti() const
{
    return d->letture.join();
}

QList<QByteArray> Simulatore::letture() const
{
    return d->letture;
}

qint64 Simulatore::quantiInviati() const
{
    return d->quantiInviati;
}

qint64 Simulatore::inCoda() const
{
    return d->uscita.inCoda();
}

void Simulatore::dimentica()
{
    d->letture.clear();
    d->quantiRicevuti = 0;
    d->quantiInviati = 0;
}

bool Simulatore::registra(const QString &file)
{
    d->registratore.chiudi();
    if (file.isEmpty() || d->registratore.apri(file))
        return true;
    d->errore = u"%1: %2"_s.arg(file, d->registratore.errore());
    return false;
}

bool Simulatore::riproduci(const QString &file, bool tempiOriginali)
{
    if (d->riproduttore.carica(file, tempiOriginali))
        return true;
    d->errore = d->riproduttore.errore();
    return false;
}
} // namespace tessaro_sim
