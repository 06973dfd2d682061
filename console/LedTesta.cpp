#include "console/LedTesta.h"

#include "link/ComandiTessaro.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Colore
{
    QLatin1StringView lettera;
    QLatin1StringView parola;
};

// The last row is the LED of the ear. Each word brings its blank, which stays where no side
// follows.
constexpr std::array<Colore, 4> colori = {{{"V"_L1, "verde "_L1},
                                           {"G"_L1, "giallo "_L1},
                                           {"R"_L1, "rosso "_L1},
                                           {"B"_L1, "dell'orecchio "_L1}}};

const Colore *colore(int riga)
{
    return riga >= 0 && riga < static_cast<int>(colori.size()) ? &colori[static_cast<size_t>(riga)]
                                                               : nullptr;
}

} // namespace

namespace LedTesta {

QString lato(double x, double larghezza)
{
    return larghezza / 2 > x ? u"destro"_s : u"sinistro"_s;
}

QString nome(int riga, const QString &lato)
{
    const Colore *scelto = colore(riga);
    return (scelto ? QString(scelto->lettera) : QString()) + (lato == u"destro"_s ? u'd' : u's');
}

Azione azione(int riga, const QString &lato, bool acceso)
{
    const Colore *scelto = colore(riga);
    const QString led = nome(riga, lato);
    return {u"Testa LED "_s + led + (acceso ? u" on"_s : u" off"_s),
            [acceso, led](ControlloSeriale &COM) { ComandiTessaro::LedTesta(COM, acceso, led); },
            u"LED "_s + (scelto ? QString(scelto->parola) : QString()) + lato +
                (acceso ? u" acceso"_s : u" spento"_s)};
}

QString suggerimento(int riga, const QString &lato, bool acceso)
{
    const Colore *scelto = colore(riga);
    if (!scelto)
        return {};
    return (acceso ? u"Accendi"_s : u"Spegni"_s) + u" il LED "_s + scelto->parola + lato;
}

Azione tutti(bool acceso)
{
    return {acceso ? u"Testa LED tutti on"_s : u"Testa LED tutti off"_s,
            [acceso](ControlloSeriale &COM) { ComandiTessaro::LedTestaTutti(COM, acceso); },
            u"Tutti i LED sono stati "_s + (acceso ? u"accesi"_s : u"spenti"_s)};
}

int rigaSotto(double y, double altezzaRiga)
{
    const auto altezza = static_cast<int>(std::nearbyint(altezzaRiga));
    return altezza > 0 ? static_cast<int>(std::nearbyint(y)) / altezza : -1;
}

quint8 passoSeguente(quint8 passo)
{
    return passo > 200 ? quint8(0) : static_cast<quint8>(passo + 30);
}

std::array<Punto, 4> frecce(quint8 passo, const QString &lato, double larghezza)
{
    const double yA = passo + 300;
    const double yB = 1500 - passo;
    double x1 = 0;
    double x2 = 0;
    if (lato == u"destro"_s) {
        x1 = passo + 30;
        x2 = 1000 - passo;
    } else if (lato == u"sinistro"_s) {
        x1 = passo + 900;
        x2 = larghezza - 500 - passo;
    }
    return {{{x1, yB}, {x1, yA}, {x2, yA}, {x2, yB}}};
}

} // namespace LedTesta
