#include "simulator/robot/Esempi.h"
#include "simulator/robot/Prospettiva.h"
#include "simulator/robot/Stanza.h"
#include "simulator/robot/StatoRobot.h"
#include <QDir>
#include <QFile>
#include <QtEndian>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
bool scrivi(const QString &file, const QByteArray &contenuto)
{
    QFile f(file);
    return f.open(QIODevice::WriteOnly) && f.write(contenuto) == contenuto.size();
}

template <typename T>
QByteArray numero(T valore)
{
    QByteArray byte(sizeof(T), '\0');
    qToLittleEndian(valore, byte.data());
    return byte;
}

// Three falling notes, 8 bit mono.
QByteArray campanella()
{
    constexpr quint32 campioni = 8000;
    QByteArray dati;
    for (const double nota : {1318.5, 1046.5, 784.0}) {
        const int durata = static_cast<int>(campioni * 0.3);
        for (int i = 0; i < durata; ++i) {
            const double t = i / static_cast<double>(campioni);
            const double onda = std::sin(2.0 * std::numbers::pi * nota * t) * std::exp(-t * 9.0);
            dati += static_cast<char>(static_cast<quint8>(128 + std::lround(onda * 100.0)));
        }
    }
    const auto n = static_cast<quint32>(dati.size());
    return QByteArray("RIFF") + numero<quint32>(36 + n) + "WAVEfmt " + numero<quint32>(16) +
           numero<quint16>(1) + numero<quint16>(1) + numero<quint32>(campioni) +
           numero<quint32>(campioni) + numero<quint16>(1) + numero<quint16>(8) + "data" +
           numero<quint32>(n) + dati;
}

bool foto(const QString &file, double x, double y, double direzione)
{
    StatoRobot dove;
    dove.x = x;
    dove.y = y;
    dove.direzione = direzione;
    return disegnaProspettiva(dove, Stanza(), 320, 240).save(file, "JPG", 85);
}
} // namespace

bool creaEsempi(const QString &cartella)
{
    const QDir dir(cartella);
    bool bene = true;
    for (const QString &nome : {u"disk/foto"_s, u"disk/suoni"_s, u"disk/testi"_s, u"disk/vuota"_s,
                                u"mmc/gite"_s, u"usb"_s})
        bene = dir.mkpath(nome) && bene;
    const auto in = [&](const QString &nome) { return dir.filePath(nome); };
    bene = scrivi(in(u"disk/leggimi.txt"_s),
                  "Memoria del robot Tessaro.\r\n"
                  "foto: le immagini scattate\r\nsuoni: i suoni\r\ntesti: i promemoria\r\n") &&
           bene;
    bene = scrivi(in(u"disk/testi/promemoria.txt"_s),
                  "Caricare le batterie.\r\nPulire le ruote.\r\n") &&
           bene;
    bene = scrivi(in(u"disk/testi/vuoto.txt"_s), {}) && bene;
    bene = scrivi(in(u"disk/suoni/campanella.wav"_s), campanella()) && bene;
    bene = foto(in(u"disk/foto/finestra.jpg"_s), 160, 230, 285) && bene;
    bene = foto(in(u"disk/foto/palla.jpg"_s), 150, 150, 25) && bene;
    bene = foto(in(u"disk/salotto.jpg"_s), 60, 250, 325) && bene;
    bene = foto(in(u"mmc/porta.jpg"_s), 300, 120, 160) && bene;
    bene = scrivi(in(u"mmc/gite/diario.txt"_s), "Oggi ho esplorato il salotto.\r\n") && bene;
    bene = scrivi(in(u"usb/ricambi.txt"_s), "2 ruote\r\n1 pinza\r\n") && bene;
    return bene;
}
} // namespace tessaro_sim
