#include "console/Parlato.h"

#include "base/Numeri.h"
#include "link/ComandiTessaro.h"
#include "link/FrasiSuoni.h"

using namespace Qt::StringLiterals;

namespace {

// The number of which the text is the exact form, else 0.
int esatto(const QString &testo)
{
    const int numero = testo.toInt();
    return testo == QString::number(numero) ? numero : 0;
}

Azione riproduci(const QString &riga, const QString &numero, int primo)
{
    return {riga + numero,
            [numero, primo](ControlloSeriale &COM) {
                ComandiTessaro::Riproduci(COM, Numeri::Intero(Numeri::Valore(numero) + primo));
            },
            {}};
}

Azione messaggio(const QString &numero, const QString &cosa,
                 void (*comando)(ControlloSeriale &, quint8))
{
    return {u"Mex "_s + numero + u' ' + cosa,
            [numero, comando](ControlloSeriale &COM) { comando(COM, Numeri::Byte(numero)); },
            {}};
}

} // namespace

namespace Parlato {

QString nomeFrase(const QString &numero)
{
    const QString testo = FrasiSuoni::frase(esatto(numero));
    return testo.isEmpty() ? QString() : u'"' + testo + u'"';
}

QString nomeSuono(const QString &numero)
{
    return FrasiSuoni::suonoConsole(esatto(numero));
}

QString limitato(const QString &numero, int massimo)
{
    const double valore = Numeri::Valore(numero);
    if (valore > massimo)
        return QString::number(massimo);
    // Empty, 0, or pasted text that is no number.
    return valore < 1 ? u"1"_s : numero;
}

Azione frase(const QString &numero)
{
    return riproduci(u"Frase "_s, numero, FrasiSuoni::primaDelleFrasi);
}

Azione suono(const QString &numero)
{
    return riproduci(u"Suono "_s, numero, FrasiSuoni::primaDeiSuoni);
}

Azione suonaMessaggio(const QString &numero)
{
    return messaggio(numero, u"play"_s, ComandiTessaro::MexPlay);
}

Azione registraMessaggio(const QString &numero)
{
    return messaggio(numero, u"registra"_s, ComandiTessaro::MexRegistra);
}

Azione cancellaMessaggio(const QString &numero)
{
    return messaggio(numero, u"cancella"_s, ComandiTessaro::MexCancella);
}

Azione fermaMessaggio()
{
    return {u"Mex stop"_s, [](ControlloSeriale &COM) { ComandiTessaro::MexStop(COM); }, {}};
}

Azione avviaProgramma(const QString &numero)
{
    return {
        u"Prog interno "_s + numero,
        [numero](ControlloSeriale &COM) { ComandiTessaro::ProgInterno(COM, Numeri::Byte(numero)); },
        u"Programma interno del ROBOT avviato."_s};
}

Azione fermaProgramma()
{
    return {u"Prog interno Stop"_s,
            [](ControlloSeriale &COM) { ComandiTessaro::ProgInterno(COM, 0); },
            u"Programma interno del ROBOT arrestato."_s};
}

int bordo(double x, double y, double larghezza, double altezza)
{
    constexpr double margine = 50;
    const bool dentro =
        x >= margine && x <= larghezza - margine && y >= margine && y <= altezza - margine;
    return dentro ? 1 : 0;
}

} // namespace Parlato
