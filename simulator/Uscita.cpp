#include "Uscita.h"
#include "Linea.h"
#include <utility>

inline namespace tessaro_sim {
Uscita::Uscita(Linea &linea) : linea_(linea)
{
    orologio_.start();
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { spedisci(); });
}

qsizetype Uscita::accoda(const QByteArray &byte)
{
    const qsizetype posto = qMin(byte.size(), massimo - coda_.size());
    coda_ += byte.left(posto);
    if (!coda_.isEmpty() && !timer_.isActive()) {
        // The pace starts now, not when the timer first comes round.
        ritmo_.permessi(orologio_.elapsed(), coda_.size());
        timer_.start(ritmo_.baud() > 0 ? 4 : 0);
    }
    return byte.size() - posto;
}

qsizetype Uscita::accodaRiga(const QByteArray &byte)
{
    if (coda_.isEmpty())
        riga_ = byte.size();
    return accoda(byte);
}

void Uscita::interrompi()
{
    scartati_ += riga_;
    coda_.remove(0, std::exchange(riga_, 0));
}

void Uscita::svuota()
{
    scartati_ += coda_.size();
    coda_.clear();
    riga_ = 0;
    ritmo_.riposa();
    timer_.stop();
}

void Uscita::spedisci()
{
    const qsizetype quanti = ritmo_.permessi(orologio_.elapsed(), coda_.size());
    if (quanti > 0) {
        const QByteArray pezzo = coda_.left(quanti);
        scartati_ = 0;
        const qsizetype presi = perduta_ ? quanti : linea_.scrivi(pezzo);
        // Writing can bring a reading, and that can empty the queue or stop the row.
        const qsizetype restano = qMax(presi - scartati_, qsizetype{0});
        coda_.remove(0, restano);
        riga_ = qMax(riga_ - restano, qsizetype{0});
        ritmo_.usciti(presi);
        if (presi < quanti)
            ritmo_.riposa(); // nobody reads: no burst afterwards
        timer_.setInterval(presi < quanti ? 10 : ritmo_.baud() > 0 ? 4 : 0);
        if (suInvio && presi > 0)
            suInvio(pezzo.left(presi));
    }
    if (suFame)
        suFame();
    if (coda_.isEmpty()) {
        ritmo_.riposa();
        timer_.stop();
    }
}
} // namespace tessaro_sim
