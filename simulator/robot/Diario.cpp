#include "simulator/robot/Diario.h"
#include <algorithm>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
QString numeri(const QByteArray &byte)
{
    // A path or a garbled stretch can be long: the line stays readable, the entry keeps all.
    constexpr qsizetype mostrati = 12;
    QStringList parti;
    for (const char c : byte.left(mostrati))
        parti << QString::number(static_cast<quint8>(c));
    if (byte.size() > mostrati)
        parti << u"…(%1)"_s.arg(byte.size());
    return parti.join(u' ');
}

bool eRichiesta(const QString &testo)
{
    return testo == u"RichiediSensori" || testo == u"RichiediStatoA" || testo == u"RichiediStatoB";
}
} // namespace

QString VoceDiario::riga() const
{
    QString riga = u"%1  %2  %3"_s.arg(ms, 9).arg(numeri(byte), -16).arg(testo);
    if (!nota.isEmpty())
        riga += u"  [%1]"_s.arg(nota);
    return riga;
}

Diario::Diario(QObject *parent) : QObject(parent)
{
    m_orologio.start();
}

QStringList Diario::righe() const
{
    QStringList righe;
    righe.reserve(m_voci.size());
    for (const VoceDiario &voce : m_voci)
        righe << voce.riga();
    return righe;
}

QStringList Diario::comandi(bool conRichieste) const
{
    QStringList testi;
    for (const VoceDiario &voce : m_voci) {
        if (voce.tipo == VoceDiario::Tipo::Comando && (conRichieste || !eRichiesta(voce.testo)))
            testi << voce.testo;
    }
    return testi;
}

int Diario::conta(const QString &testo) const
{
    return static_cast<int>(
        std::count_if(m_voci.cbegin(), m_voci.cend(),
                      [&](const VoceDiario &voce) { return voce.testo == testo; }));
}

QByteArray Diario::nonCapiti() const
{
    QByteArray byte;
    for (const VoceDiario &voce : m_voci) {
        if (voce.tipo == VoceDiario::Tipo::NonCapito)
            byte += voce.byte;
    }
    return byte;
}

void Diario::aggiungi(VoceDiario::Tipo tipo, const QString &testo, const QByteArray &byte,
                      const QString &nota)
{
    if (m_voci.size() >= massimo)
        m_voci.remove(0, massimo / 10);
    m_voci.append({tipo, m_orologio.elapsed(), testo, byte, nota});
    // A copy: whoever listens may empty the diary.
    const VoceDiario voce = m_voci.constLast();
    Q_EMIT aggiunta(voce);
}

void Diario::svuota()
{
    m_voci.clear();
    Q_EMIT svuotato();
}
} // namespace tessaro_sim
