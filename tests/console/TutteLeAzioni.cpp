#include "tests/console/TutteLeAzioni.h"

QPoint suRiga(Elenco &lista, int riga)
{
    return lista.visualItemRect(lista.item(riga)).center();
}

void apriComparsa(ConsoleInProva &c, bool destro, bool accendi)
{
    Superficie &testa = c.finestra.ImgTesta;
    const QPoint dove(destro ? 8 : testa.width() - 8, 80);
    c.muovi(testa, dove);
    c.clicca(testa, accendi ? Qt::LeftButton : Qt::RightButton, dove);
}

namespace {

using C = ConsoleInProva;

void base(C &c)
{
    c.finestra.opzBase.setValue(true);
    c.finestra.cbVelocità.setListIndex(0);
    c.finestra.cbModGiro.setListIndex(0);
}

void braccia(C &c)
{
    c.finestra.opzBraccia.setValue(true);
    c.finestra.cbVelocità.setListIndex(1);
    c.finestra.cbModGiro.setListIndex(1);
}

void testa(C &c)
{
    c.finestra.opzTesta.setValue(true);
    c.finestra.cbStepV.setListIndex(3);
    c.finestra.cbStepO.setListIndex(11);
}

void giroSenzaFine(C &c)
{
    base(c);
    c.finestra.cbModGiro.setListIndex(2);
}

std::function<void(C &)> tasto(Qt::Key quale)
{
    return [quale](C &c) { c.tasto(quale); };
}

std::function<void(C &)> freccia(int Index)
{
    return [Index](C &c) { c.clicca(c.finestra.imgFreccia(Index)); };
}

template <class Controllo>
std::function<void(C &)> clic(Controllo frmPrincipale::*controllo,
                              Qt::MouseButton pulsante = Qt::LeftButton)
{
    return [controllo, pulsante](C &c) { c.clicca(c.finestra.*controllo, pulsante); };
}

void aggiungiMovimenti(std::vector<AzioneManuale> &a)
{
    a.push_back({u"su, base"_s, base, tasto(Qt::Key_Up), u"Avanti piano"_s, b({19, 65, 1}),
                 u"Tessaro sta andando avanti"_s});
    a.push_back({u"giù, base"_s, base, tasto(Qt::Key_Down), u"Indietro piano"_s, b({19, 66, 1}),
                 u"Tessaro sta andando all'indietro"_s});
    a.push_back({u"sinistra, base"_s, base, tasto(Qt::Key_Left), u"Sinistra ½"_s, b({19, 68, 18}),
                 u"Robot svoltato a sinistra per ½ di giro"_s});
    a.push_back({u"destra, base"_s, base, tasto(Qt::Key_Right), u"Destra ½"_s, b({19, 67, 18}),
                 u"Robot svoltato a destra per ½ di giro"_s});
    a.push_back({u"sinistra, senza fine"_s, giroSenzaFine, tasto(Qt::Key_Left), u"Sinistra "_s,
                 b({19, 68, 16}), u"Tessaro sta girando verso sinistra"_s});
    a.push_back({u"destra, senza fine"_s, giroSenzaFine, tasto(Qt::Key_Right), u"Destra "_s,
                 b({19, 67, 16}), u"Tessaro sta girando verso destra"_s});
    a.push_back({u"su, braccia"_s, braccia, tasto(Qt::Key_Up), u"Avanti veloce"_s, b({19, 65, 2}),
                 u"Tessaro sta andando avanti"_s});
    a.push_back({u"destra, braccia"_s, braccia, tasto(Qt::Key_Right), u"Destra ¼"_s,
                 b({19, 67, 17}), u"Robot svoltato a destra per ¼ di giro"_s});
    a.push_back({u"su, testa"_s, testa, tasto(Qt::Key_Up), u"Testa su 4"_s, b({19, 33, 4}),
                 u"Testa alzata di 4 step"_s});
    a.push_back({u"giù, testa"_s, testa, tasto(Qt::Key_Down), u"Testa giu 4"_s, b({19, 34, 4}),
                 u"Testa abbassata di 4 step"_s});
    a.push_back({u"sinistra, testa"_s, testa, tasto(Qt::Key_Left), u"Testa sinistra 12"_s,
                 b({19, 36, 12}), u"Testa spostata a sinistra di 12 step"_s});
    a.push_back({u"destra, testa"_s, testa, tasto(Qt::Key_Right), u"Testa destra 12"_s,
                 b({19, 35, 12}), u"Testa spostata a destra di 12 step"_s});
    a.push_back({u"freccia 1"_s, base, freccia(1), u"Avanti piano"_s, b({19, 65, 1}),
                 u"Tessaro sta andando avanti"_s});
    a.push_back({u"freccia 2"_s, base, freccia(2), u"Sinistra ½"_s, b({19, 68, 18}),
                 u"Robot svoltato a sinistra per ½ di giro"_s});
    a.push_back({u"freccia 3"_s, base, freccia(3), u"Destra ½"_s, b({19, 67, 18}),
                 u"Robot svoltato a destra per ½ di giro"_s});
    a.push_back({u"freccia 4, testa"_s, testa, freccia(4), u"Testa giu 4"_s, b({19, 34, 4}),
                 u"Testa abbassata di 4 step"_s});
    a.push_back(
        {u"freccia 5"_s, base, freccia(5), u"Bacino Alza"_s, b({19, 73, 4}), u"Bacino Alzato"_s});
    a.push_back({u"freccia 6"_s, testa, freccia(6), u"Bacino Abbassa"_s, b({19, 73, 8}),
                 u"Bacino Abbassato"_s});
    a.push_back({u"freccia 7"_s, braccia, freccia(7), u"Braccio Sx Alza"_s, b({19, 129, 2}),
                 u"Braccio sinistro alzato"_s});
    a.push_back({u"freccia 8"_s, braccia, freccia(8), u"Braccio Dx Alza"_s, b({19, 130, 2}),
                 u"Braccio destro alzato"_s});
    a.push_back({u"freccia 9"_s, braccia, freccia(9), u"Braccio Sx Abbassa"_s, b({19, 129, 4}),
                 u"Braccio sinistro abbassato"_s});
    a.push_back({u"freccia 10"_s, braccia, freccia(10), u"Braccio Dx Abbassa"_s, b({19, 130, 4}),
                 u"Braccio destro abbassato"_s});
    a.push_back({u"STOP, base"_s, base, clic(&frmPrincipale::lblStop), u"Stop"_s, b({19, 65, 0}),
                 u"Robot stoppato"_s});
    a.push_back({u"STOP, braccia"_s, braccia, clic(&frmPrincipale::lblStop), u"Braccia Stop"_s,
                 b({19, 129, 0, 19, 130, 0}), u"Braccia stoppate"_s});
    a.push_back({u"spazio, base"_s, base, tasto(Qt::Key_Space), u"Stop"_s, b({19, 65, 0}),
                 u"Robot stoppato"_s});
}

void aggiungiLed(std::vector<AzioneManuale> &a)
{
    struct Riga
    {
        int numero;
        bool destro;
        QString nome;
        int maschera;
        QString parole;
    };
    const Riga righe[] = {
        {0, true, u"Vd"_s, 128, u"verde destro"_s},
        {1, true, u"Gd"_s, 32, u"giallo destro"_s},
        {2, true, u"Rd"_s, 64, u"rosso destro"_s},
        {3, true, u"Bd"_s, 16, u"dell'orecchio destro"_s},
        {0, false, u"Vs"_s, 8, u"verde sinistro"_s},
        {1, false, u"Gs"_s, 2, u"giallo sinistro"_s},
        {2, false, u"Rs"_s, 4, u"rosso sinistro"_s},
        {3, false, u"Bs"_s, 1, u"dell'orecchio sinistro"_s},
    };
    for (const Riga &riga : righe) {
        for (const bool accendi : {true, false}) {
            const int numero = riga.numero;
            const auto lista =
                accendi ? &frmPrincipale::mnuComparsaOn : &frmPrincipale::mnuComparsaOff;
            a.push_back({riga.nome + (accendi ? u" acceso"_s : u" spento"_s),
                         [numero, lista, destro = riga.destro, accendi](C &c) {
                             apriComparsa(c, destro, accendi);
                             Elenco &elenco = c.finestra.*lista;
                             c.muovi(*elenco.viewport(), suRiga(elenco, numero));
                         },
                         [numero, lista](C &c) {
                             Elenco &elenco = c.finestra.*lista;
                             c.clicca(*elenco.viewport(), Qt::LeftButton, suRiga(elenco, numero));
                         },
                         u"Testa LED "_s + riga.nome + (accendi ? u" on"_s : u" off"_s),
                         b({19, accendi ? 37 : 38, riga.maschera}),
                         u"LED "_s + riga.parole + (accendi ? u" acceso"_s : u" spento"_s)});
        }
    }
    a.push_back({u"tutti accesi"_s, base, clic(&frmPrincipale::lblAccLED), u"Testa LED tutti on"_s,
                 b({19, 37, 8, 19, 37, 128, 19, 37, 4, 19, 37, 64,
                    19, 37, 2, 19, 37, 32,  19, 37, 1, 19, 37, 16}),
                 u"Tutti i LED sono stati accesi"_s});
    a.push_back({u"tutti spenti"_s, base, clic(&frmPrincipale::lblSpLED), u"Testa LED tutti off"_s,
                 b({19, 38, 8, 19, 38, 128, 19, 38, 4, 19, 38, 64,
                    19, 38, 2, 19, 38, 32,  19, 38, 1, 19, 38, 16}),
                 u"Tutti i LED sono stati spenti"_s});
}

void aggiungiAttrezzi(std::vector<AzioneManuale> &a)
{
    struct Interruttore
    {
        Immagine frmPrincipale::*immagine;
        QString riga;
        int byte;
        QString parole;
        QString acceso;
        QString spento;
    };
    const Interruttore interruttori[] = {
        {&frmPrincipale::imgLEDPos, u"LED Posizione "_s, 131, u"LED di posizione "_s, u"accesi"_s,
         u"spenti"_s},
        {&frmPrincipale::imgToolDx, u"Tool Destro "_s, 140, u"Tool destro "_s, u"acceso"_s,
         u"spento"_s},
        {&frmPrincipale::imgToolSx, u"Tool Sinistro "_s, 139, u"Tool sinistro "_s, u"acceso"_s,
         u"spento"_s},
    };
    for (const Interruttore &i : interruttori) {
        for (const Qt::MouseButton pulsante : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
            const bool acceso = pulsante == Qt::LeftButton;
            const auto sopra = [immagine = i.immagine](C &c) {
                base(c);
                c.muovi(c.finestra.*immagine);
            };
            a.push_back({i.parole + QString::number(pulsante), sopra, clic(i.immagine, pulsante),
                         i.riga + (acceso ? u"ON"_s : u"OFF"_s), b({19, i.byte, acceso ? 255 : 0}),
                         i.parole + (acceso ? i.acceso : i.spento)});
        }
    }
    a.push_back({u"pinza aperta"_s,
                 base,
                 clic(&frmPrincipale::imgPinzaAperta),
                 u"Pinza Apri"_s,
                 b({19, 161, 1}),
                 {}});
    a.push_back({u"pinza chiusa"_s,
                 base,
                 clic(&frmPrincipale::imgPinzaChiusa),
                 u"Pinza Chiudi"_s,
                 b({19, 161, 2}),
                 {}});
    a.push_back({u"foto"_s, base, clic(&frmPrincipale::lblScattaFoto), u"Foto"_s, b({19, 3, 1}),
                 u"Tessaro ha scattato una foto!"_s});
}

void aggiungiVoce(std::vector<AzioneManuale> &a)
{
    const auto numeri = [](C &c) {
        base(c);
        c.finestra.txtValFrase.setText(u"140"_s);
        c.finestra.txtValSuono.setText(u"15"_s);
        c.finestra.cbMex.setListIndex(2);
        c.finestra.cbProgrammi.setListIndex(1);
    };
    a.push_back(
        {u"frase"_s, numeri, clic(&frmPrincipale::pulFrase), u"Frase 140"_s, b({19, 97, 206}), {}});
    a.push_back(
        {u"suono"_s, numeri, clic(&frmPrincipale::pulSuono), u"Suono 15"_s, b({19, 97, 221}), {}});
    a.push_back({u"Play"_s,
                 numeri,
                 clic(&frmPrincipale::pulPlayMex),
                 u"Mex 3 play"_s,
                 b({19, 99, 131, 19, 99, 131}),
                 {}});
    a.push_back({u"Registra"_s,
                 numeri,
                 clic(&frmPrincipale::pulRegistraMex),
                 u"Mex 3 registra"_s,
                 b({19, 99, 67, 19, 99, 67}),
                 {}});
    a.push_back(
        {u"Stop"_s, numeri, clic(&frmPrincipale::pulStopMex), u"Mex stop"_s, b({19, 99, 0}), {}});
    a.push_back({u"programma avviato"_s, numeri, clic(&frmPrincipale::imgPlayProg),
                 u"Prog interno 2"_s, b({19, 2, 5}), u"Programma interno del ROBOT avviato."_s});
    a.push_back({u"programma fermato"_s, numeri, clic(&frmPrincipale::imgStopProg),
                 u"Prog interno Stop"_s, b({19, 2, 0}),
                 u"Programma interno del ROBOT arrestato."_s});
}

} // namespace

std::vector<AzioneManuale> tutteLeAzioni()
{
    std::vector<AzioneManuale> azioni;
    aggiungiMovimenti(azioni);
    aggiungiLed(azioni);
    aggiungiAttrezzi(azioni);
    aggiungiVoce(azioni);
    return azioni;
}
