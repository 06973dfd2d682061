#include "console/Movimento.h"

#include "base/Numeri.h"
#include "controls/Tasti.h"
#include "link/ComandiTessaro.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Comando = void (*)(ControlloSeriale &, quint8);

// The endless turn.
constexpr int giroSenzaFine = 2;

Azione passo(Comando comando, const QString &verso, const QString &esito, const QString &passi)
{
    return {u"Testa "_s + verso + u' ' + passi,
            [comando, passi](ControlloSeriale &COM) { comando(COM, Numeri::Byte(passi)); },
            u"Testa "_s + esito + u" di "_s + passi + u" step"_s};
}

Azione corsa(Comando comando, const QString &verso, const QString &esito,
             const ValoriMovimento &valori)
{
    const auto v = static_cast<quint8>(valori.indiceVelocita + 1);
    return {verso + u' ' + valori.velocita,
            [comando, v](ControlloSeriale &COM) { comando(COM, v); },
            u"Tessaro sta andando "_s + esito};
}

Azione giro(Comando comando, const QString &verso, const ValoriMovimento &valori)
{
    const auto v = static_cast<quint8>(valori.indiceGiro + 1);
    const bool senzaFine = valori.indiceGiro == giroSenzaFine;
    const QString inPiccolo = verso.toLower();
    return {verso + u' ' + (senzaFine ? QString() : valori.giro),
            [comando, v](ControlloSeriale &COM) { comando(COM, v); },
            senzaFine
                ? u"Tessaro sta girando verso "_s + inPiccolo
                : u"Robot svoltato a "_s + inPiccolo + u" per "_s + valori.giro + u" di giro"_s};
}

Azione testa(int KeyCode, const ValoriMovimento &valori)
{
    using namespace ComandiTessaro;
    switch (KeyCode) {
    case Tasti::Su:
        return passo(TestaSu, u"su"_s, u"alzata"_s, valori.passiV);
    case Tasti::Giu:
        return passo(TestaGiu, u"giu"_s, u"abbassata"_s, valori.passiV);
    case Tasti::Sinistra:
        return passo(TestaSinistra, u"sinistra"_s, u"spostata a sinistra"_s, valori.passiO);
    default:
        return passo(TestaDestra, u"destra"_s, u"spostata a destra"_s, valori.passiO);
    }
}

Azione base(int KeyCode, const ValoriMovimento &valori)
{
    using namespace ComandiTessaro;
    switch (KeyCode) {
    case Tasti::Su:
        return corsa(BaseAvanti, u"Avanti"_s, u"avanti"_s, valori);
    case Tasti::Giu:
        return corsa(BaseIndietro, u"Indietro"_s, u"all'indietro"_s, valori);
    case Tasti::Sinistra:
        return giro(BaseSinistra, u"Sinistra"_s, valori);
    default:
        return giro(BaseDestra, u"Destra"_s, valori);
    }
}

Azione braccio(quint8 a, quint8 v, const QString &riga, const QString &esito)
{
    return {u"Braccio "_s + riga,
            [a, v](ControlloSeriale &COM) { ComandiTessaro::Braccio(COM, a, v); },
            u"Braccio "_s + esito};
}

// Arrows 1 to 4 in the order of their keys.
constexpr std::array<int, 4> tasti = {Tasti::Su, Tasti::Sinistra, Tasti::Destra, Tasti::Giu};

bool inSu(int Index)
{
    return Index == 5 || Index == 7 || Index == 8;
}

} // namespace

namespace Movimento {

std::optional<Azione> freccia(int KeyCode, bool diTesta, const ValoriMovimento &valori)
{
    if (frecciaDelTasto(KeyCode) == 0)
        return {};
    return diTesta ? testa(KeyCode, valori) : base(KeyCode, valori);
}

std::optional<Azione> bacinoOBraccia(int Index)
{
    using namespace ComandiTessaro;
    switch (Index) {
    case 5:
        return Azione{u"Bacino Alza"_s, [](ControlloSeriale &COM) { Bacino(COM, 1); },
                      u"Bacino Alzato"_s};
    case 6:
        return Azione{u"Bacino Abbassa"_s, [](ControlloSeriale &COM) { Bacino(COM, 2); },
                      u"Bacino Abbassato"_s};
    case 7:
        return braccio(0, 2, u"Sx Alza"_s, u"sinistro alzato"_s);
    case 8:
        return braccio(1, 2, u"Dx Alza"_s, u"destro alzato"_s);
    case 9:
        return braccio(0, 4, u"Sx Abbassa"_s, u"sinistro abbassato"_s);
    case 10:
        return braccio(1, 4, u"Dx Abbassa"_s, u"destro abbassato"_s);
    default:
        return {};
    }
}

Azione stop(bool diBase)
{
    using namespace ComandiTessaro;
    if (diBase)
        return {u"Stop"_s, [](ControlloSeriale &COM) { BaseStop(COM); }, u"Robot stoppato"_s};
    return {u"Braccia Stop"_s,
            [](ControlloSeriale &COM) {
                Braccio(COM, 0, 0);
                // One click, one message: the second arm would only say the same again.
                if (COM.PortOpen())
                    Braccio(COM, 1, 0);
            },
            u"Braccia stoppate"_s};
}

int frecciaDelTasto(int KeyCode)
{
    for (size_t i = 0; i < tasti.size(); ++i) {
        if (tasti[i] == KeyCode)
            return static_cast<int>(i) + 1;
    }
    return 0;
}

int tastoDellaFreccia(int Index)
{
    return Index >= 1 && Index <= 4 ? tasti[static_cast<size_t>(Index - 1)] : 0;
}

int disegnoARiposo(int Index)
{
    if (Index <= 4)
        return Index;
    return inSu(Index) ? 1 : 4;
}

int disegnoPremuta(int Index)
{
    return disegnoARiposo(Index) + 4;
}

} // namespace Movimento
