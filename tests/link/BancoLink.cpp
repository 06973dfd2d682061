#include "tests/link/BancoLink.h"

using namespace Qt::StringLiterals;

Banco::Banco(std::unique_ptr<Porta> porta, const QString &cartella)
    : COM(u"COM"_s, nullptr, std::move(porta), cartella),
      tmrElabInput(u"tmrElabInput"_s, nullptr),
      tmrSensori(u"tmrSensori"_s, nullptr),
      tmrControllaConn(u"tmrControllaConn"_s, nullptr),
      tmrChiusuraAutomatica(u"tmrChiusuraAutomatica"_s, nullptr),
      BarraStato(u"BarraStato"_s, &finestra, {130, 56, 0}),
      BarraPulsanti(u"BarraPulsanti"_s, &finestra, &immagini),
      BarraCaricamento(u"BarraCaricamento"_s, &finestra, 1, 100000),
      lblTemperatura(u"lblTemperatura"_s, &finestra),
      imgBattLogica(u"imgBattLogica"_s, &finestra),
      imgBattMotori(u"imgBattMotori"_s, &finestra),
      imgLivBattLogica(u"imgLivBattLogica"_s, &finestra),
      imgLivBattMotori(u"imgLivBattMotori"_s, &finestra),
      shpUltrasuoniDx(u"shpUltrasuoniDx"_s, &finestra),
      shpUltrasuoniCe(u"shpUltrasuoniCe"_s, &finestra),
      shpUltrasuoniSx(u"shpUltrasuoniSx"_s, &finestra)
{
    tmrElabInput.setInterval(1);
    tmrSensori.setInterval(300);
    tmrControllaConn.setInterval(5000);
    tmrChiusuraAutomatica.setInterval(1000);
    tmrChiusuraAutomatica.setTag(u"0"_s);
    BarraPulsanti.aggiungi(1, u"Connetti ad Tessaro"_s);
    for (QWidget *nascosto :
         std::initializer_list<QWidget *>{&imgLivBattLogica, &imgLivBattMotori, &shpUltrasuoniDx,
                                          &shpUltrasuoniCe, &shpUltrasuoniSx})
        nascosto->setVisible(false);
}

ControlliTelemetria Banco::telemetria()
{
    return {BarraStato,       lblTemperatura,  imgBattLogica,   imgBattMotori,  imgLivBattLogica,
            imgLivBattMotori, shpUltrasuoniDx, shpUltrasuoniCe, shpUltrasuoniSx};
}

ControlliSessione Banco::sessione()
{
    return {BarraStato,       BarraPulsanti, BarraCaricamento, tmrChiusuraAutomatica,
            tmrControllaConn, tmrSensori,    tmrElabInput};
}

void VideoFinto::CalcolaRiga(const QByteArray &riga)
{
    righe << riga;
    if (durante)
        durante();
}

void FileFinto::stato(quint8 k, quint8 x)
{
    registro << u"stato %1 %2"_s.arg(k).arg(x);
    if (durante)
        durante();
}

void FileFinto::VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo)
{
    registro << u"VisualizzaElenco %1 %2 %3"_s.arg(k).arg(x).arg(corpo.size());
    corpi << corpo;
}

void FileFinto::blocco(quint8 k, const QByteArray &contenuto)
{
    registro << u"blocco %1 %2"_s.arg(k).arg(contenuto.size());
    corpi << contenuto;
    if (durante)
        durante();
}
