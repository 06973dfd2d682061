#include "tests/app/TutteLeFinestre.h"

#include "tests/app/Tastiera.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Visita = std::function<void(Finestra &, const QString &)>;

namespace {

void mostrata(Finestra &finestra, const QString &stato, const Visita &fai)
{
    SCOPED_TRACE((finestra.objectName() + u' ' + stato).toStdString());
    finestra.Mostra();
    portaAvanti(finestra);
    fai(finestra, stato);
}

// A frame as the robot sends it.
QImage scena()
{
    return immaginePiena(qRgb(200, 200, 200));
}

} // namespace

TutteLeFinestre::TutteLeFinestre() : visione("\"Uno\",1,1,255\r\"Due\",1,1,13027014")
{
    visione.cartella.scrivi(u"giro.sqm"_s, " 0 \r\nStop\r\n");
    visione.cartella.scrivi(u"prog.dat"_s, "0;no,no,25,no,no");
    visione.collega();
    principale.lblTemperatura.setCaption(u"24°"_s);
}

void TutteLeFinestre::perLaConsole(const Visita &fai)
{
    frmPrincipale &f = principale;
    for (CasellaOpzione *modo : {&f.opzBraccia, &f.opzTesta, &f.opzBase}) {
        modo->setValue(true);
        mostrata(f, modo->objectName(), fai);
    }
    for (const int pulsante : {1, 2}) {
        f.ImgTesta.MouseMove(0, 0, 100, 900);
        f.ImgTesta.MouseDown(pulsante, 0, 100, 900);
        mostrata(f, u"LED "_s + QString::number(pulsante), fai);
        f.ImgTesta.MouseDown(pulsante, 0, 100, 900);
    }
}

void TutteLeFinestre::perOgnuna(const Visita &fai)
{
    perLaConsole(fai);
    for (Finestra *dialogo :
         std::initializer_list<Finestra *>{&principale.opzioni, &principale.impostaPorta}) {
        mostrata(*dialogo, {}, fai);
        dialogo->Scarica();
    }

    mostrata(editor, u"vuoto"_s, fai);
    editor.lstMosse.AddItem(u"Avanti piano"_s);
    editor.lblFile.setCaption(u"giro.sqm"_s);
    for (const int valore : {0, 1}) {
        editor.opzInsComandi.setValue(valore);
        mostrata(editor, QString::number(valore), fai);
    }
    for (const QString &modo : {u"Pausa"_s, u"Frase"_s, u"Suono"_s, u"Ripeti"_s}) {
        editor.valore.setTag(modo);
        mostrata(editor.valore, modo, fai);
        editor.valore.Nascondi();
        portaAvanti(editor);
    }

    mostrata(processor, u"fermo"_s, fai);
    processor.lstFile.setSelected(0, true);
    mostrata(processor, u"scelta"_s, fai);
    processor.lstFile.setListIndex(0);
    mostrata(processor.impCondizioni, u"temperatura"_s, fai);
    processor.impCondizioni.Scarica();
    processor.lstFile.setTag(u"True"_s);
    processor.Scarica();

    esplora.Mostra();
    esplora.setTag({});
    esplora.lstCartelle.AddItem(u"disk"_s);
    esplora.lstFile.AddItem(u"salotto.jpg"_s);
    mostrata(esplora, u"elenco"_s, fai);
    esplora.intitolaFoto(u"salotto.jpg"_s);
    esplora.lblNomeFoto.setVisible(true);
    esplora.imgFoto.setVisible(true);
    mostrata(esplora, u"foto"_s, fai);
    esplora.Scarica();

    principale.BarraPulsanti.setTag(u"Camera"_s);
    mostrata(visione.camera, u"avviata"_s, fai);
    visione.manda(scena());
    mostrata(visione.camera, u"immagine"_s, fai);
    mostrata(visione.nome, u"copia"_s, fai);
    visione.nome.pulOK.setEnabled(true);
    visione.nome.lblAttesa.hide();
    mostrata(visione.nome, u"pronta"_s, fai);
    visione.nome.Scarica();
    visione.camera.Scarica();
    mostrata(visione.acquisite, {}, fai);
    visione.acquisite.Scarica();
}
