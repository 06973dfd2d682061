#include "base/Numeri.h"

#include "base/Errore.h"

#include <QString>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

bool bianco(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

bool cifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

template <class Intero>
Intero intero(double valore)
{
    // nearbyint rounds half to even in the default rounding mode.
    const double arrotondato = std::nearbyint(valore);
    if (!(arrotondato >= double(std::numeric_limits<Intero>::min()) &&
          arrotondato <= double(std::numeric_limits<Intero>::max())))
        throw Errore(Errore::Overflow);
    return static_cast<Intero>(arrotondato);
}

} // namespace

namespace Numeri {

double Valore(QStringView testo)
{
    QString numero;
    bool punto = false;
    for (const QChar c : testo) {
        if (bianco(c))
            continue;
        if (c == u'.' && !punto)
            punto = true;
        else if (!cifra(c) && !(numero.isEmpty() && (c == u'-' || c == u'+')))
            break;
        numero += c;
    }
    // toDouble gives 0 for a text without digits ("", "-", "."). A number of hundreds of digits
    // becomes infinity, which Byte, Intero and Lungo refuse.
    return numero.toDouble();
}

double Valore(QByteArrayView testo)
{
    return Valore(QString::fromLatin1(testo));
}

quint8 Byte(double valore)
{
    return intero<quint8>(valore);
}

qint16 Intero(double valore)
{
    return intero<qint16>(valore);
}

qint32 Lungo(double valore)
{
    return intero<qint32>(valore);
}

bool Logico(QStringView testo)
{
    const QStringView nudo = testo.trimmed();
    if (nudo.compare(u"True", Qt::CaseInsensitive) == 0)
        return true;
    if (nudo.compare(u"False", Qt::CaseInsensitive) == 0)
        return false;
    bool numero = false;
    const double valore = nudo.toDouble(&numero);
    // Qt also takes "nan" and "inf" for numbers.
    if (!numero || !std::isfinite(valore))
        throw Errore(Errore::TipoNonCorrispondente);
    return valore != 0;
}

QString TestoLogico(bool valore)
{
    return valore ? u"True"_s : u"False"_s;
}

} // namespace Numeri
