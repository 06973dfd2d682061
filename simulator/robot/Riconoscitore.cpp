#include "simulator/robot/Riconoscitore.h"
#include "simulator/robot/Descrizione.h"

inline namespace tessaro_sim {
namespace {
constexpr int manca = 0;   // more bytes are needed to tell
constexpr int ignoto = -1; // the first byte starts nothing

int byteIn(const QByteArray &b, qsizetype i)
{
    return static_cast<quint8>(b.at(i));
}

// Length of a command whose bytes are fixed in part: -2 in the pattern stands for any value.
int lunghezzaSchema(const QByteArray &b, std::initializer_list<int> schema)
{
    qsizetype i = 0;
    for (const int atteso : schema) {
        if (i >= b.size())
            return manca;
        if (atteso >= 0 && byteIn(b, i) != atteso)
            return ignoto;
        ++i;
    }
    return static_cast<int>(schema.size());
}

int lunghezzaAttuatore(const QByteArray &b)
{
    if (b.size() < 2)
        return manca;
    switch (byteIn(b, 1)) {
    case 2:
    case 3:
    case 33:
    case 34:
    case 35:
    case 36:
    case 37:
    case 38:
    case 65:
    case 66:
    case 67:
    case 68:
    case 73:
    case 97:
    case 99:
    case 129:
    case 130:
    case 131:
    case 139:
    case 140:
    case 161:
        return b.size() < 3 ? manca : 3;
    default:
        return ignoto;
    }
}

int lunghezzaPercorso(const QByteArray &b)
{
    if (b.size() < 3)
        return manca;
    const int intera = 3 + byteIn(b, 2);
    return b.size() < intera ? manca : intera;
}

// The whole length of the command at the start of `b`, or `manca`, or `ignoto`.
int lunghezza(const QByteArray &b)
{
    constexpr int x = -2;
    switch (byteIn(b, 0)) {
    case 1:
        return 1;
    case 3:
        return lunghezzaSchema(b, {3, 1, 1});
    case 4:
        return 1;
    case 10:
        return lunghezzaSchema(b, {10, x, 128, x});
    case 11:
        return lunghezzaSchema(b, {11, 160, 0});
    case 12:
        return 1;
    case 19:
        return lunghezzaAttuatore(b);
    case 27:
        return lunghezzaSchema(b, {27, 70});
    case 28:
        return lunghezzaSchema(b, {28, 103});
    case 29:
        return lunghezzaSchema(b, {29, 132});
    case 40:
        return lunghezzaPercorso(b);
    case 41:
        return lunghezzaSchema(b, {41, x});
    case 44:
        return lunghezzaSchema(b, {44, x, x, x});
    case 46:
        return lunghezzaSchema(b, {46, x});
    default:
        return ignoto;
    }
}
} // namespace

void Riconoscitore::ricevi(const QByteArray &byte)
{
    m_coda += byte;
    while (!m_coda.isEmpty()) {
        const int n = lunghezza(m_coda);
        if (n == manca)
            return;
        if (n == ignoto) {
            const char primo = m_coda.at(0);
            m_coda.remove(0, 1);
            if (suIgnoto)
                suIgnoto(primo);
            continue;
        }
        const Comando comando = descrivi(m_coda.left(n));
        m_coda.remove(0, n);
        if (suComando)
            suComando(comando);
    }
}
} // namespace tessaro_sim
