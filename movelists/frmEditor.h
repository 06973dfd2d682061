// The Sequor: the window in which a move list is built, stored and run.
#pragma once

#include "art/Disegni.h"
#include "controls/Elenco.h"
#include "controls/EtichettaAbbreviata.h"
#include "controls/Finestra.h"
#include "controls/FinestraFile.h"
#include "controls/Grafica.h"
#include "controls/Temporizzatore.h"
#include "controls/VoceMenu.h"
#include "movelists/Corsa.h"
#include "movelists/FinestraAccanto.h"
#include "movelists/ListaMosse.h"
#include "movelists/frmValore.h"

#include <array>

class frmEditor : public Finestra
{
    Q_OBJECT

public:
    // console: the window beside which this one opens. cartella: the program's folder.
    frmEditor(const Finestra &console, ControlloSeriale &COM, const QString &cartella);

    // Loads a list after stopping the one that runs. Errors are those of ListaMosse::leggi.
    void ApriLista(const QString &percorso);

    // The user asks for the runner, or for the start condition of the open list.
    Evento<> VigilioChiesto;
    Evento<> CondizioneChiesta;
    // The window is about to close; true keeps it open.
    Evento<bool &> InChiusura;

    ListaImmagini lstImgVigilio{Disegni::lstImgVigilio()};
    ListaImmagini imgPulsanti{Disegni::imgPulsantiEditor()};
    FinestraFile Finestre{u"Finestre"_s, this};
    // Its Tag is the loop's counter.
    Temporizzatore tmrEseguiMosse{u"tmrEseguiMosse"_s, this};
    // The runner's clock.
    Temporizzatore tmrAttivaAut{u"tmrAttivaAut"_s, this};

    BarraMenu barraMenu{this};
    QMenu *mnuFile = barraMenu.aggiungi(u"mnuFile"_s, u"File"_s);
    VoceMenu mnuFileNuovo{u"mnuFileNuovo"_s, mnuFile, u"Nuovo"_s};
    VoceMenu mnuFileApri{u"mnuFileApri"_s, mnuFile, u"Apri"_s};
    VoceMenu mnuFileSalva{u"mnuFileSalva"_s, mnuFile, u"Salva"_s};
    VoceMenu mnuFileSalvacome{u"mnuFileSalvacome"_s, mnuFile, u"Salva con nome"_s};
    VoceMenu mnuFileEsci{u"mnuFileEsci"_s, mnuFile, u"Esci"_s};
    QMenu *mnuIns = barraMenu.aggiungi(u"mnuIns"_s, u"Inserisci"_s);
    VoceMenu mnuInsPausa{u"mnuInsPausa"_s, mnuIns, u"Pausa"_s};
    VoceMenu mnuInsFrase{u"mnuInsFrase"_s, mnuIns, u"Frase"_s};
    VoceMenu mnuInsSuono{u"mnuInsSuono"_s, mnuIns, u"Suono"_s};
    QMenu *mnuInsT = BarraMenu::aggiungi(mnuIns, u"mnuInsT"_s, u"Testa"_s);
    VoceMenu mnuInsTDx{u"mnuInsTDx"_s, mnuInsT, u"Destra (2 st)"_s};
    VoceMenu mnuInsTSx{u"mnuInsTSx"_s, mnuInsT, u"Sinistra (2 st)"_s};
    VoceMenu mnuInsTSu{u"mnuInsTSu"_s, mnuInsT, u"Su (2 st)"_s};
    VoceMenu mnuInsTGiu{u"mnuInsTGiu"_s, mnuInsT, u"Giu (2 st)"_s};
    QMenu *mnuInsB = BarraMenu::aggiungi(mnuIns, u"mnuInsB"_s, u"Base"_s);
    VoceMenu mnuInsBAvanti{u"mnuInsBAvanti"_s, mnuInsB, u"Avanti veloce"_s};
    VoceMenu mnuInsBIndietro{u"mnuInsBIndietro"_s, mnuInsB, u"Indietro veloce"_s};
    VoceMenu mnuInsBDx{u"mnuInsBDx"_s, mnuInsB, u"Destra"_s};
    VoceMenu mnuInsBSx{u"mnuInsBSx"_s, mnuInsB, u"Sinistra"_s};
    VoceMenu mnuInsBStop{u"mnuInsBStop"_s, mnuInsB, u"Stop"_s};
    VoceMenu mnuInsCamera{u"mnuInsCamera"_s, mnuIns, u"Visione camera"_s};
    VoceMenu mnuInsProg{u"mnuInsProg"_s, mnuIns, u"Apri un programma..."_s};
    // Its Tag is the row to which a loop goes back.
    VoceMenu mnuInsRipeti{u"mnuInsRipeti"_s, mnuIns, u"Ripeti comandi..."_s};
    VoceMenu mnuInsCondizione{u"mnuInsCondizione"_s, mnuIns, u"Condizione di avvio"_s};

    EtichettaAbbreviata lblFile{u"lblFile"_s, this};
    // The document. Its Tag tells whether there is nothing to save.
    Elenco lstMosse{u"lstMosse"_s, this};
    Immagine pulSu{u"pulSu"_s, this, &imgPulsanti, 3};
    Immagine pulGiu{u"pulGiu"_s, this, &imgPulsanti, 4};
    Immagine pulCanc{u"pulCanc"_s, this, &imgPulsanti, 1};
    Immagine pulPausa{u"pulPausa"_s, this, &imgPulsanti, 2};
    Immagine pulFrase{u"pulFrase"_s, this, &imgPulsanti, 5};
    Immagine pulSuono{u"pulSuono"_s, this, &imgPulsanti, 6};
    Immagine imgVigilio{u"imgVigilio"_s, this, &lstImgVigilio, 1};
    CasellaSpunta opzInsComandi{u"opzInsComandi"_s, this, {}};
    // Its Tag is the row that was run last.
    Pulsante pulEsegui{u"pulEsegui"_s, this, u"ESEGUI"_s};

    frmValore valore;

    ListaMosse documento{lstMosse};
    Corsa corsa;

protected:
    void Disegno() override;
    void Load() override;
    void Unload(bool &Cancel) override;
    void MouseMove() override;

    bool eventFilter(QObject *oggetto, QEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

private:
    // A picture button with the numbers of its two pictures.
    struct Disegnato
    {
        Immagine *pulsante;
        int normale;
        int sotto;
    };

    void collegaGestori();
    void collegaMenu();

    bool ChiediSalvataggio();
    bool ListaVuota(bool mostra);
    void mnuFileNuovo_Click();
    void mnuFileApri_Click();
    void mnuFileSalva_Click();
    void mnuFileSalvacome_Click();
    void mnuInsProg_Click();
    void inserisciValore(const QString &modo);
    void pulCanc_Click();
    void pulSu_Click();
    void pulGiu_Click();
    void pulsante_MouseMove(const Disegnato &disegnato, double X, double Y);
    // Every picture button as it looks without the pointer on it.
    void normali();
    void lstMosse_KeyDown(int &KeyCode, int Shift);
    void lstMosse_MouseDown();
    void lstMosse_MouseMove(int Button);
    void opzInsComandi_Click();
    void lblFile_Change();

    FinestraAccanto m_accanto;
    std::array<Disegnato, 6> m_disegnati{{{&pulCanc, 1, 7},
                                          {&pulPausa, 2, 8},
                                          {&pulSu, 3, 9},
                                          {&pulGiu, 4, 10},
                                          {&pulFrase, 5, 11},
                                          {&pulSuono, 6, 12}}};
};
