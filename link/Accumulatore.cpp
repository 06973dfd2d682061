#include "link/Accumulatore.h"

#include "base/Codifica.h"

QByteArray Accumulatore::parte(qsizetype posto, qsizetype quanti) const
{
    return m_byte.mid(m_tagliati + posto - 1, quanti);
}

void Accumulatore::aggiungi(const QByteArray &byte)
{
    if (byte.isEmpty())
        return;
    m_byte += byte;
    if (cresciuto)
        cresciuto();
}

void Accumulatore::taglia(qsizetype quanti)
{
    m_tagliati += qMin(quanti, lunghezza());
    // The bytes cut off are removed only when they are at least as many as those left, so that on
    // average each byte is moved at most once.
    if (m_tagliati >= m_byte.size() - m_tagliati) {
        m_byte.remove(0, m_tagliati);
        m_tagliati = 0;
    }
}

void Accumulatore::svuota()
{
    m_byte.clear();
    m_tagliati = 0;
    if (gettato)
        gettato();
}

void Accumulatore::sostituisci(const QByteArray &byte)
{
    const QByteArray prima = tutto();
    if (byte.startsWith(prima)) {
        aggiungi(byte.sliced(prima.size()));
    } else {
        svuota();
        aggiungi(byte);
    }
}

QString TemporizzatoreIngresso::Tag() const
{
    return Codifica::daByte(accumulatore.tutto());
}

void TemporizzatoreIngresso::setTag(const QString &tag)
{
    accumulatore.sostituisci(Codifica::inByte(tag));
}
