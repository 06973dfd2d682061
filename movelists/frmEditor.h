// The Sequor: the window in which a move list is built, stored and run.
#pragma once

#include "art/Disegni.h"
#include "controls/Elenco.h"
#include "controls/EtichettaAbbreviata.h"
#include "controls/FinestraFile.h"
#include "controls/Grafica.h"
#include "controls/Temporizzatore.h"
#include "movelists/Vicini.h"
#include "controls/VoceMenu.h"
#include "movelists/frmValore.h"

#include <array>

class frmEditor : public Finestra
{
    Q_OBJECT

public:
    // cartella: the program's folder.
    frmEditor(ConsoleEditor &console, const Orologio &orologio, const QString &cartella);

    // They come later; without one what would be asked of it is left out.
    void impostaVigilio(VigilioEditor *vigilio) { m_vigilio = vigilio; }
    void impostaCamera(CameraEditor *camera) { m_camera = camera; }

    // Loads a list; a failure to read it is an Errore, and what was read so far stays.
    void ApriLista(const QString &percorso);
    // Loads and runs the list in that row of the runner, unless it is running already.
    void EseguiLista(qint16 riga);

    ListaImmagini lstImgVigilio{Disegni::lstImgVigilio()};
    ListaImmagini imgPulsanti{Disegni::imgPulsantiEditor()};
    FinestraFile Finestre{u"Finestre"_s, this};
    // Its Tag is the loop's counter.
    Temporizzatore tmrEseguiMosse{u"tmrEseguiMosse"_s, this};
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

    // How the window looks.
    void disponi();
    void disponiPulsanti(class QBoxLayout *colonna);
    void collegaGestori();
    void collegaMenu();
    void colloca();
    // On the screen, the frame included.
    void metti(const QRect &conCornice);
    void rientra();

    bool ChiediSalvataggio();
    bool ListaVuota(bool mostra);
    void mnuFileNuovo_Click();
    void mnuFileApri_Click();
    void mnuFileSalva_Click();
    void mnuFileSalvacome_Click();
    void mnuInsProg_Click();
    void mnuInsCondizione_Click();
    void inserisciValore(const QString &modo);
    void pulCanc_Click();
    void pulSu_Click();
    void pulGiu_Click();
    void scambia(int riga, int con);
    void pulsante_MouseMove(const Disegnato &disegnato, double X, double Y);
    void normali();
    void lstMosse_KeyDown(int &KeyCode, int Shift);
    void lstMosse_MouseDown();
    void lstMosse_MouseMove(int Button);
    void opzInsComandi_Click();
    void lblFile_Change();
    void imgVigilio_Click();

    // The run.
    void pulEsegui_Click();
    void tmrEseguiMosse_Timer();
    void passoCiclo(quint8 volte);
    void tmrAttivaAut_Timer();

    ConsoleEditor &m_console;
    const Orologio &m_orologio;
    QString m_cartella;
    VigilioEditor *m_vigilio = nullptr;
    CameraEditor *m_camera = nullptr;
    // The window was shown, and has not been seen yet.
    bool m_daRivedere = false;
    std::array<Disegnato, 6> m_disegnati{{{&pulCanc, 1, 7},
                                          {&pulPausa, 2, 8},
                                          {&pulSu, 3, 9},
                                          {&pulGiu, 4, 10},
                                          {&pulFrase, 5, 11},
                                          {&pulSuono, 6, 12}}};
};
