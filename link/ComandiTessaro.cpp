#include "link/ComandiTessaro.h"

#include "controls/Messaggi.h"

#include <QScopedValueRollback>
#include <array>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

// One piece of a command: the bytes of one write.
QByteArray pezzo(std::initializer_list<int> byte)
{
    QByteArray scritti;
    for (const int b : byte)
        scritti.append(static_cast<char>(b & 0xFF));
    return scritti;
}

// Sends the pieces one by one and stops at the first that fails. True if all were sent.
bool manda(ControlloSeriale &COM, std::initializer_list<QByteArray> pezzi)
{
    try {
        for (const QByteArray &byte : pezzi)
            COM.Output(byte);
        return true;
    } catch (const Errore &errore) {
        ComandiTessaro::SegnalaNonCollegato(errore);
        return false;
    }
}

// Three pieces of one byte each: the form of most commands that move something.
bool manda3(ControlloSeriale &COM, int primo, int secondo, int terzo)
{
    return manda(COM, {pezzo({primo}), pezzo({secondo}), pezzo({terzo})});
}

bool led(ControlloSeriale &COM, bool acceso, const QString &nome)
{
    return manda3(COM, 19, acceso ? 37 : 38, ComandiTessaro::MascheraLed(nome));
}

struct NomeLed
{
    QLatin1StringView nome;
    quint8 maschera;
};

// In the order in which LedTestaTutti switches them.
constexpr std::array<NomeLed, 8> ledTesta = {{{"Vs"_L1, 8},
                                              {"Vd"_L1, 128},
                                              {"Rs"_L1, 4},
                                              {"Rd"_L1, 64},
                                              {"Gs"_L1, 2},
                                              {"Gd"_L1, 32},
                                              {"Bs"_L1, 1},
                                              {"Bd"_L1, 16}}};

} // namespace

namespace ComandiTessaro {

void SegnalaNonCollegato(const Errore &errore)
{
    static bool aperto = false;
    if (errore.numero() != Errore::PORT_NOT_OPEN || aperto)
        return;
    const QScopedValueRollback mostrato(aperto, true);
    messaggio(u"Non sono collegato al robot"_s, Icona::Informazione);
}

void ApriSessione(ControlloSeriale &COM)
{
    passaErrori([&] { COM.Output(pezzo({3})); });
    passaErrori([&] { COM.Output(pezzo({1})); });
    passaErrori([&] { COM.Output(pezzo({1})); });
}

void ChiudiSessione(ControlloSeriale &COM)
{
    passaErrori([&] { COM.Output(pezzo({4})); });
}

void FermaVideo(ControlloSeriale &COM)
{
    passaErrori([&] { COM.Output(pezzo({12})); });
}

bool AvviaVideo(ControlloSeriale &COM, quint8 a, quint8 b, EsitoVideo &esito,
                const Abbandono &abbandono)
{
    const auto abbandonato = [&] { return abbandono && abbandono(); };
    esito.mostraMessaggio(u"Impostazione del video"_s);
    if (!manda(COM, {pezzo({10}), pezzo({a}), pezzo({128}), pezzo({b})}))
        return false;
    esito.MostraInvio(u"Impostazione del video OK"_s, abbandono);
    if (abbandonato())
        return false;
    esito.mostraMessaggio(u"Richiesta partenza del video"_s);
    if (!manda3(COM, 11, 160, 0))
        return false;
    esito.MostraInvio(u"Video partito"_s, abbandono);
    return !abbandonato();
}

void TestaSu(ControlloSeriale &COM, quint8 n)
{
    manda3(COM, 19, 33, n);
}

void TestaGiu(ControlloSeriale &COM, quint8 n)
{
    manda3(COM, 19, 34, n);
}

void TestaDestra(ControlloSeriale &COM, quint8 n)
{
    manda3(COM, 19, 35, n);
}

void TestaSinistra(ControlloSeriale &COM, quint8 n)
{
    manda3(COM, 19, 36, n);
}

quint8 MascheraLed(const QString &nome)
{
    for (const NomeLed &led : ledTesta) {
        if (nome == led.nome)
            return led.maschera;
    }
    return 0;
}

void LedTesta(ControlloSeriale &COM, bool acceso, const QString &nome)
{
    led(COM, acceso, nome);
}

void LedTestaTutti(ControlloSeriale &COM, bool acceso)
{
    // Stops at the first failure, so that a closed port is reported once and not eight times.
    for (const NomeLed &uno : ledTesta) {
        if (!led(COM, acceso, uno.nome))
            return;
    }
}

void Tool(ControlloSeriale &COM, quint8 n, bool acceso)
{
    manda(COM, {pezzo({19}), pezzo({141 - n, acceso ? 255 : 0})});
}

void Pinza(ControlloSeriale &COM, bool apri)
{
    manda(COM, {pezzo({19, 161, apri ? 1 : 2})});
}

void BaseAvanti(ControlloSeriale &COM, quint8 v)
{
    manda3(COM, 19, 65, v);
}

void BaseIndietro(ControlloSeriale &COM, quint8 v)
{
    manda3(COM, 19, 66, v);
}

void BaseDestra(ControlloSeriale &COM, quint8 v)
{
    manda3(COM, 19, 67, 19 - v);
}

void BaseSinistra(ControlloSeriale &COM, quint8 v)
{
    manda3(COM, 19, 68, 19 - v);
}

void BaseStop(ControlloSeriale &COM)
{
    manda3(COM, 19, 65, 0);
}

void Braccio(ControlloSeriale &COM, quint8 a, quint8 v)
{
    manda3(COM, 19, 129 + a, v);
}

void Bacino(ControlloSeriale &COM, quint8 v)
{
    manda(COM, {pezzo({19, 73, v * 4})});
}

void LedPosizione(ControlloSeriale &COM, qint16 v)
{
    manda3(COM, 19, 131, v);
}

void ScattaFoto(ControlloSeriale &COM)
{
    manda(COM, {pezzo({19, 3, 1})});
}

void Riproduci(ControlloSeriale &COM, qint16 n)
{
    manda3(COM, 19, 97, n);
}

void MexPlay(ControlloSeriale &COM, quint8 v)
{
    if (manda3(COM, 19, 99, v + 128))
        manda3(COM, 19, 99, v + 128);
}

void MexRegistra(ControlloSeriale &COM, quint8 v)
{
    if (manda3(COM, 19, 99, v + 64))
        manda3(COM, 19, 99, v + 64);
}

void MexCancella(ControlloSeriale &COM, quint8 v)
{
    manda3(COM, 19, 99, v + 32);
}

void MexStop(ControlloSeriale &COM)
{
    manda3(COM, 19, 99, 0);
}

void ProgInterno(ControlloSeriale &COM, quint8 n)
{
    manda(COM, {pezzo({19, 2}), pezzo({n == 0 ? 0 : n * 4 - 3})});
}

void RichiediSensori(ControlloSeriale &COM)
{
    manda(COM, {pezzo({27, 70})});
}

void RichiediStatoA(ControlloSeriale &COM)
{
    manda(COM, {pezzo({29, 132})});
}

void RichiediStatoB(ControlloSeriale &COM)
{
    manda(COM, {pezzo({28, 103})});
}

void ApriPercorso(ControlloSeriale &COM, quint8 n, const QByteArray &percorso)
{
    manda(COM, {pezzo({40, n, static_cast<int>(percorso.size())}) + percorso});
}

void ChiudiCanale(ControlloSeriale &COM, quint8 c)
{
    manda(COM, {pezzo({41, c})});
}

void LeggiBlocco(ControlloSeriale &COM, quint8 c, quint8 a, quint8 b)
{
    manda(COM, {pezzo({44, c, a, b})});
}

void LeggiElenco(ControlloSeriale &COM, quint8 c)
{
    manda(COM, {pezzo({46, c})});
}

} // namespace ComandiTessaro
