#include "link/MotoreRicezione.h"

#include "base/Pompa.h"
#include "link/DescriviBatteria.h"
#include "shell/Abilita_Disabilita.h"
#include "shell/Gest_Variabili.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

enum Tipo : quint8 {
    RigaVideo = 13,
    Temperatura = 31,
    Batterie = 32,
    Ultrasuoni = 33,
    StatoMemoria = 42,
    BloccoFile = 45,
    BloccoElenco = 47,
};

constexpr qsizetype lunghezzaRiga = 161;  // the type and 80 pixels of 2 bytes
constexpr quint8 temperaturaMassima = 50; // degrees; more is taken for a false reading

} // namespace

MotoreRicezione::MotoreRicezione(ControlloSeriale &com, TemporizzatoreIngresso &timer,
                                 const ControlliTelemetria &controlli)
    : COM(com), tmrElabInput(timer), m_accumulatore(timer.accumulatore), c(controlli)
{
    tmrElabInput.Timer.collega([this] { tmrElabInput_Timer(); });
    COM.Arrivo.collega(this, &MotoreRicezione::riprendi);
    m_accumulatore.cresciuto = [this] { riprendiPresto(); };
    m_accumulatore.gettato = [this] {
        if (m_file)
            m_file->byteGettati();
    };
}

MotoreRicezione::~MotoreRicezione()
{
    m_accumulatore.cresciuto = nullptr;
    m_accumulatore.gettato = nullptr;
    COM.avvisa(false);
    COM.Arrivo.collega(std::function<void()>());
    if (m_sospeso)
        m_sospeso.destroy();
}

void MotoreRicezione::LeggiIngresso()
{
    passaErrori([&] { m_accumulatore.aggiungi(COM.Input()); });
}

Scatto MotoreRicezione::tmrElabInput_Timer()
{
    const Temporizzatore::ScattoAperto aperto(tmrElabInput);
    do {
        const quint8 tipo = co_await byte(1);
        LeggiIngresso();
        qsizetype consumati = 1;
        switch (tipo) {
        case RigaVideo:
            if (m_accumulatore.lunghezza() < lunghezzaRiga)
                co_return;
            videoRiga();
            consumati = lunghezzaRiga;
            break;
        case Temperatura: {
            const quint8 t = co_await byte(2);
            consumati = 2;
            temperatura(t);
            break;
        }
        case Batterie: {
            const quint8 l = co_await byte(2);
            const quint8 m = co_await byte(3);
            consumati = 3;
            batterie(l, m);
            break;
        }
        case Ultrasuoni: {
            c.shpUltrasuoniDx.setVisible(co_await byte(2) != 0);
            c.shpUltrasuoniCe.setVisible(co_await byte(3) != 0);
            c.shpUltrasuoniSx.setVisible(co_await byte(4) != 0);
            consumati = 4;
            riferisciUltrasuoni();
            break;
        }
        case StatoMemoria: {
            const quint8 k = co_await byte(2);
            consumati = 3;
            if (m_file && m_file->visibile()) {
                const quint8 x = co_await byte(3);
                m_file->stato(k, x);
            }
            break;
        }
        case BloccoFile: {
            const quint8 k = co_await byte(2);
            const quint8 basso = co_await byte(3);
            const quint8 alto = co_await byte(4);
            const qsizetype n = basso + 256 * alto;
            if (m_file)
                m_file->bloccoInArrivo();
            // n + 5 bytes are consumed, but the block is taken only when n + 6 are there. One
            // reading takes 1024 bytes at most, so the port is read until it gives no more.
            for (qsizetype prima = -1;
                 m_accumulatore.lunghezza() - 5 <= n && m_accumulatore.lunghezza() != prima;) {
                prima = m_accumulatore.lunghezza();
                LeggiIngresso();
            }
            if (m_accumulatore.lunghezza() - 5 <= n)
                co_return;
            if (m_file)
                m_file->blocco(k, m_accumulatore.parte(5, n));
            consumati = n + 5;
            break;
        }
        case BloccoElenco: {
            const quint8 k = co_await byte(2);
            const qsizetype n = co_await byte(4);
            // n + 5 bytes are consumed, but n + 4 are enough: the last one is not used.
            if (m_accumulatore.lunghezza() - 4 < n)
                co_return;
            if (m_file && m_file->visibile()) {
                const quint8 x = co_await byte(3);
                m_file->VisualizzaElenco(k, x, m_accumulatore.parte(5, n));
            }
            consumati = n + 5;
            break;
        }
        default:
            break;
        }
        if (tipo != RigaVideo)
            c.BarraStato.setPanels(2, u'<' + QString::number(tipo) + u'>');
        m_accumulatore.taglia(consumati);
    } while (!m_accumulatore.vuoto());
}

void MotoreRicezione::videoRiga()
{
    if (!m_video || !m_video->cameraAperta())
        return;
    m_video->CalcolaRiga(m_accumulatore.parte(2, lunghezzaRiga));
    LeggiIngresso();
    pompa();
}

void MotoreRicezione::temperatura(quint8 t)
{
    if (t > temperaturaMassima)
        c.BarraStato.setPanels(2, u"<?>"_s);
    else
        c.lblTemperatura.setCaption(QString::number(t) + u'°');
    riferisci(u"Temperatura:"_s + QString::number(t));
}

void MotoreRicezione::batterie(quint8 l, quint8 m)
{
    c.imgLivBattLogica.setWidth(Proporzione(l, 255, barraPiena));
    c.imgLivBattMotori.setWidth(Proporzione(m, 255, barraPiena));
    c.imgBattLogica.setToolTip(QString::number(l) + u"/255 "_s + DescriviBatteria(l));
    c.imgBattMotori.setToolTip(QString::number(m) + u"/255 "_s + DescriviBatteria(m));
    riferisci(u"Batterie:"_s + QString::number(LivelloBatteria(l)) +
              QString::number(LivelloBatteria(m)));
}

void MotoreRicezione::riferisciUltrasuoni()
{
    const auto cifra = [](const Forma &forma) { return forma.Visible() ? u'1' : u'0'; };
    riferisci(u"Ultrasuoni:"_s + cifra(c.shpUltrasuoniDx) + cifra(c.shpUltrasuoniCe) +
              cifra(c.shpUltrasuoniSx));
}

void MotoreRicezione::riferisci(const QString &testo)
{
    if (m_telemetria && m_telemetria->avviato())
        m_telemetria->VerificaCondizioni(testo);
}

bool MotoreRicezione::Byte::await_ready()
{
    if (motore.m_accumulatore.lunghezza() < posto && motore.m_fermi == 0)
        motore.LeggiIngresso();
    return motore.m_accumulatore.lunghezza() >= posto;
}

void MotoreRicezione::Byte::await_suspend(std::coroutine_handle<> sospeso)
{
    motore.m_sospeso = sospeso;
    motore.m_postoAtteso = posto;
    motore.aggiornaAvviso();
}

void MotoreRicezione::riprendi()
{
    if (!m_sospeso || m_fermi > 0)
        return;
    const std::coroutine_handle<> sospeso = std::exchange(m_sospeso, nullptr);
    if (m_accumulatore.lunghezza() < m_postoAtteso)
        LeggiIngresso();
    if (m_accumulatore.lunghezza() < m_postoAtteso) {
        m_sospeso = sospeso;
        return;
    }
    aggiornaAvviso();
    sospeso.resume();
}

void MotoreRicezione::riprendiPresto()
{
    // From the event loop, not inside the call that has added the bytes.
    if (!m_sospeso || m_ripresaChiesta)
        return;
    m_ripresaChiesta = true;
    QTimer::singleShot(0, this, [this] {
        m_ripresaChiesta = false;
        eseguiGestore([this] { riprendi(); });
    });
}

void MotoreRicezione::aggiornaAvviso()
{
    COM.avvisa(m_sospeso && m_fermi == 0);
}

MotoreRicezione::Fermo::Fermo(MotoreRicezione &motore) : m_motore(motore)
{
    ++m_motore.m_fermi;
    m_motore.aggiornaAvviso();
}

MotoreRicezione::Fermo::~Fermo()
{
    --m_motore.m_fermi;
    m_motore.aggiornaAvviso();
    m_motore.riprendiPresto();
}
