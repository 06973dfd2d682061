#include "movelists/ModoValore.h"

#include "base/Numeri.h"
#include "link/FrasiSuoni.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int pausaMassima = 60000;
constexpr int ripetizioniMassime = 200;
constexpr int secondi = 1;

QStringList ripetizioni()
{
    QStringList voci{u"all'infinito"_s, u"1 volta"_s};
    for (int i = 2; i <= ripetizioniMassime; ++i)
        voci += u"%1 volte"_s.arg(i);
    return voci;
}

} // namespace

namespace Modi {

std::optional<ModoValore> cerca(const QString &nome)
{
    if (nome == u"Pausa")
        return ModoValore{u"Inserisci la durata della pausa"_s,
                          pausaMassima,
                          u"Unità di misura:"_s,
                          {u"Millisecondi"_s, u"Secondi"_s}};
    if (nome == u"Frase")
        return ModoValore{u"Inserisci il numero della frase desiderata"_s, FrasiSuoni::ultimaFrase,
                          u"Frase selezionata:"_s, FrasiSuoni::frasi()};
    if (nome == u"Suono")
        return ModoValore{u"Inserisci il numero del suono desiderato"_s, FrasiSuoni::ultimoSuono,
                          u"Suono selezionato:"_s, FrasiSuoni::suoniDialogo()};
    if (nome == u"Ripeti")
        return ModoValore{u"Indica quante volte si devono ripetere i comandi"_s, ripetizioniMassime,
                          u"Ripeti:"_s, ripetizioni()};
    return {};
}

QString riga(const QString &nome, const QString &valore, int voce, const QString &testoVoce)
{
    if (nome == u"Ripeti")
        return nome + u' ' + testoVoce;
    if (nome == u"Pausa" && voce == secondi)
        return nome + u' ' + QString::number(Numeri::Valore(valore) * 1000, 'g', 15);
    return nome + u' ' + valore;
}

} // namespace Modi
