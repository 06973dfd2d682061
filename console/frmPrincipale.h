// The console: the main window, from the program's start to its end.
#pragma once

#include "art/Disegni.h"
#include "console/Azione.h"
#include "console/FermoTasti.h"
#include "console/Targa.h"
#include "controls/ArrayControlli.h"
#include "controls/Barre.h"
#include "controls/Combo.h"
#include "controls/Elenco.h"
#include "controls/Finestra.h"
#include "controls/VoceMenu.h"
#include "link/MotoreRicezione.h"
#include "link/Sessione.h"
#include "movelists/ListaMosse.h"
#include "shell/frmOpzioni.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;

// What the console is given.
struct AmbienteConsole
{
    std::unique_ptr<Porta> porta;
    QString cartella;
    // Ends the program at once.
    std::function<void()> fine;
};

// The other windows, where they exist; the console opens them and asks the editor where an action
// goes.
struct FinestreConsole
{
    Finestra *frmCamera = nullptr;
    Finestra *frmEditor = nullptr;
    CasellaSpunta *opzInsComandi = nullptr;
    ListaMosse *documento = nullptr;
    Finestra *frmProcessor = nullptr;
    std::function<void()> Stoppa;
    Finestra *frmEsploraFile = nullptr;
    Finestra *frmImmaginiAcquisite = nullptr;
};

class frmPrincipale : public Finestra, private FinestreSessione
{
    Q_OBJECT

public:
    explicit frmPrincipale(AmbienteConsole ambiente);

    void impostaFinestre(const FinestreConsole &finestre) { m_finestre = finestre; }

    // Whether a manual action becomes a line of the open list.
    bool ListaAttiva() const;
    // Puts a line behind the selected one of the open list, or at the top, and selects it.
    void AggiungiMossa(const QString &riga);
    void MostraInvio(const QString &testo);
    void RidaiFuoco() override;
    bool Collega() { return m_sessione.Collega(); }
    bool collegato() const { return m_sessione.collegato(); }
    bool staTentando() const { return m_sessione.staTentando(); }
    EsitoVideo &esitoVideo() { return m_sessione; }

    ListaImmagini imgPulsanti{Disegni::imgPulsantiConsole()};
    ListaImmagini ListaImg{Disegni::listaImg()};

    ControlloSeriale COM;
    TemporizzatoreIngresso tmrElabInput{u"tmrElabInput"_s, this};
    Temporizzatore tmrSensori{u"tmrSensori"_s, this};
    Temporizzatore tmrControllaConn{u"tmrControllaConn"_s, this};
    Temporizzatore tmrChiusuraAutomatica{u"tmrChiusuraAutomatica"_s, this};
    Temporizzatore tmrAnimazFrecce{u"tmrAnimazFrecce"_s, this};

    // The plates on which the groups lie.
    ArrayControlli<Forma> Shape{u"Shape"_s, 20, 28, this};

    BarraDiPulsanti BarraPulsanti{u"BarraPulsanti"_s, this, &imgPulsanti};
    BarraDiStato BarraStato{u"BarraStato"_s, this, {130, 56, 0}};
    BarraDiCaricamento BarraCaricamento{u"BarraCaricamento"_s, this, 1, 100000};
    Elenco lstImgCamera{u"lstImgCamera"_s, this};

    // Movement.
    Etichetta Label1{u"Label1"_s, this, u"Movimenti"_s};
    CasellaOpzione opzBase{u"opzBase"_s, this, u"Controlla la base"_s};
    CasellaOpzione opzBraccia{u"opzBraccia"_s, this, u"Controlla le braccia"_s};
    CasellaOpzione opzTesta{u"opzTesta"_s, this, u"Controlla la testa"_s};
    Etichetta lblOpzioni{u"lblOpzioni"_s, this};
    Immagine Image1{u"Image1"_s, this, &ListaImg};
    Immagine Image2{u"Image2"_s, this, &ListaImg};
    Combo cbVelocità{u"cbVelocità"_s, this};
    Combo cbModGiro{u"cbModGiro"_s, this, Combo::Stile::Editabile};
    Combo cbStepV{u"cbStepV"_s, this};
    Combo cbStepO{u"cbStepO"_s, this};
    ArrayControlli<Immagine> imgFreccia{u"imgFreccia"_s, 1, 10, this, &ListaImg};
    Etichetta Label2{u"Label2"_s, this, u"Bacino"_s};
    Forma shpStop{u"shpStop"_s, this};
    Etichetta lblStop{u"lblStop"_s, this, u"STOP"_s};

    // Head.
    Etichetta lblLED{u"lblLED"_s, this, u"LED"_s};
    Superficie ImgTesta{u"ImgTesta"_s, this};
    ArrayControlli<Immagine> imgfr{u"imgfr"_s, 0, 3, &ImgTesta};
    Forma Shape3{u"Shape3"_s, &ImgTesta};
    Etichetta lblAccLED{u"lblAccLED"_s, &ImgTesta, u"Accendi tutti"_s};
    Forma Shape4{u"Shape4"_s, &ImgTesta};
    Etichetta lblSpLED{u"lblSpLED"_s, &ImgTesta, u"Spegni tutti"_s};
    Immagine imgLEDPos{u"imgLEDPos"_s, this, Disegni::icona(u"led_posizione")};
    Forma shCappelloOn{u"shCappelloOn"_s, this};
    Etichetta lblOn{u"lblOn"_s, this, u"Accendi LED"_s};
    Elenco mnuComparsaOn{u"mnuComparsaOn"_s, this};
    Forma shCappelloOff{u"shCappelloOff"_s, this};
    Etichetta lblOff{u"lblOff"_s, this, u"Spegni LED"_s};
    Elenco mnuComparsaOff{u"mnuComparsaOff"_s, this};

    // Photo, tools, gripper.
    Etichetta Label11{u"Label11"_s, this, u"Foto"_s};
    Immagine imgFoto{u"imgFoto"_s, this, Disegni::icona(u"foto")};
    Forma Shape12{u"Shape12"_s, this};
    Etichetta lblScattaFoto{u"lblScattaFoto"_s, this, u"Scatta"_s};
    Etichetta Label3{u"Label3"_s, this, u"Tool"_s};
    Etichetta Label4{u"Label4"_s, this, u"Sinistro"_s};
    Etichetta Label5{u"Label5"_s, this, u"Destro"_s};
    Immagine imgToolSx{u"imgToolSx"_s, this, Disegni::icona(u"tool_sinistro")};
    Immagine imgToolDx{u"imgToolDx"_s, this, Disegni::icona(u"tool_destro")};
    Etichetta Label9{u"Label9"_s, this, u"Pinza"_s};
    Immagine imgPinzaAperta{u"imgPinzaAperta"_s, this, Disegni::icona(u"pinza_aperta")};
    Immagine imgPinzaChiusa{u"imgPinzaChiusa"_s, this, Disegni::icona(u"pinza_chiusa")};

    // Voice, messages, programs.
    CasellaTesto txtValFrase{u"txtValFrase"_s, this, u"1"_s};
    ::SuGiu SuGiu1{u"SuGiu1"_s, this, 1, 140, 1};
    Pulsante pulFrase{u"pulFrase"_s, this, u"Pronuncia frase"_s};
    CasellaTesto txtValSuono{u"txtValSuono"_s, this, u"1"_s};
    ::SuGiu SuGiu2{u"SuGiu2"_s, this, 1, 16, 1};
    Pulsante pulSuono{u"pulSuono"_s, this, u"Esegui suono"_s};
    QGroupBox corMex{u"Messaggi"_s, this};
    Combo cbMex{u"cbMex"_s, &corMex};
    Immagine pulPlayMex{u"pulPlayMex"_s, &corMex, Disegni::icona(u"mex_play")};
    Immagine pulRegistraMex{u"pulRegistraMex"_s, &corMex, Disegni::icona(u"mex_registra")};
    Immagine pulStopMex{u"pulStopMex"_s, &corMex, Disegni::icona(u"mex_stop")};
    Immagine pulCancMex{u"pulCancMex"_s, &corMex, Disegni::icona(u"mex_cancella")};
    Etichetta Label6{u"Label6"_s, this, u"Programma"_s};
    Combo cbProgrammi{u"cbProgrammi"_s, this};
    Immagine imgPlayProg{u"imgPlayProg"_s, this, Disegni::icona(u"prog_play")};
    Immagine imgStopProg{u"imgStopProg"_s, this, Disegni::icona(u"prog_stop")};

    // Telemetry.
    Immagine imgSensori{u"imgSensori"_s, this, Disegni::icona(u"sensori")};
    Forma shpUltrasuoniDx{u"shpUltrasuoniDx"_s, this};
    Forma shpUltrasuoniCe{u"shpUltrasuoniCe"_s, this};
    Forma shpUltrasuoniSx{u"shpUltrasuoniSx"_s, this};
    Etichetta Label7{u"Label7"_s, this, u"Logica"_s};
    Forma imgLivBattLogica{u"imgLivBattLogica"_s, this};
    Immagine imgBattLogica{u"imgBattLogica"_s, this, Disegni::icona(u"batteria_logica")};
    Etichetta Label8{u"Label8"_s, this, u"Motori"_s};
    Forma imgLivBattMotori{u"imgLivBattMotori"_s, this};
    Immagine imgBattMotori{u"imgBattMotori"_s, this, Disegni::icona(u"batteria_motori")};
    Etichetta Label10{u"Label10"_s, this, u"Temperatura"_s};
    Immagine imgTermometro{u"imgTermometro"_s, this, Disegni::icona(u"termometro")};
    Etichetta lblTemperatura{u"lblTemperatura"_s, this};
    Etichetta lblProva{u"lblProva"_s, this};

    // What the mouse alone would reach, for the keyboard. The data of an entry is the control whose
    // handler it runs.
    QMenu mnuTastiera{this};

    frmSchermataIniziale splash;
    frmImpostaPorta impostaPorta;
    frmOpzioni opzioni;

    MotoreRicezione motore;

protected:
    void Initialize() override;
    void Load() override;
    void Activate() override;
    void Resize() override;
    void QueryUnload(bool &Cancel, Chiusura UnloadMode) override;
    void MouseMove() override;
    void KeyDown(int KeyCode, int Shift) override;
    void KeyUp(int KeyCode, int Shift) override;
    void changeEvent(QEvent *evento) override;
    bool event(QEvent *evento) override;
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    // How the window looks.
    void disponi();
    void disponiMovimenti();
    void disponiTesta();
    void disponiAttrezzi();
    void disponiVoce();
    void disponiTelemetria();
    void collegaGestori();
    void collegaTesta();
    void collegaVoce();

    // The menu for the keyboard.
    void componiMenu();
    void componiMenuMovimenti();
    void componiMenuTesta();
    void componiMenuVoce();
    void componiMenuFinestre();
    VoceMenu &voce(QMenu *menu, const QString &testo, QWidget &controllo,
                   std::function<void()> azione);
    void voceLista(QMenu *menu, const QString &testo, Combo &combo);
    void aggiornaMenu(QMenu *menu);
    void mnuTastiera_KeyDown(int KeyCode, int Shift);
    void mnuTastiera_KeyUp(int KeyCode);

    void leggiImmagini();
    void colloca();
    // The send-or-list rule; true where the action became a line.
    bool mandaOInserisci(const Azione &azione);

    void BarraPulsanti_ButtonClick(PulsanteBarra &Button) override;
    // What the toolbar button with that picture does.
    void esegui(int Image);
    void apri(Finestra *finestra);
    void opzBase_Click();
    void opzBraccia_Click();
    void opzTesta_Click();
    void sceltaModo(CasellaOpzione &scelta);
    void icona(Immagine &immagine, int numero, const QString &suggerimento, const Combo &accanto);
    void collegaFreccia(int Index);
    void imgFreccia_MouseDown(int Index);
    void imgFreccia_MouseUp(int Index);
    void lblStop_Click();
    // A key goes down, or the mouse on its arrow.
    void premiTasto(int KeyCode, bool ripetuto);
    // The window loses the keys and the mouse, and with them the releases of what is held: it is
    // let go now. The one place for keys, arrows and labels.
    void lasciaTutto();
    void ImgTesta_MouseMove(int Button, int Shift, double X, double Y);
    void ImgTesta_MouseDown(int Button, int Shift, double X, double Y);
    void tmrAnimazFrecce_Timer();
    void mnuComparsa_MouseMove(Elenco &lista, bool acceso, double Y);
    void mnuComparsa_Click(const Elenco &lista, bool acceso);
    void mostraComparsa(const Elenco &lista, bool visibile);
    void collocaComparsa(const QString &lato, Forma &cappello, Etichetta &testo, Elenco &lista);
    static void lasciaNumero(CasellaTesto &testo, ::SuGiu &suGiu);
    void pulFrase_Click();
    void pulSuono_Click();
    void pulCancMex_Click();

    // FinestreSessione.
    void scaricaCamera() override;
    void scaricaEsploraFile() override;
    bool vigilioAvviato() const override;
    void stoppaVigilio() override;

    AmbienteConsole m_ambiente;
    FinestreConsole m_finestre;
    Sessione m_sessione;
    quint8 PassoFrecce = 0;
    // Shown by the Tag of imgFreccia(1), and written through it from outside.
    FermoTasti m_fermo;
    // Whether the key press that is being handed out is an automatic repeat.
    bool m_ripetuto = false;
    // The space bar holds lblStop down.
    bool m_spazioSuStop = false;
    // Waits for the robot's reaction, one within the other.
    int m_attese = 0;
    Targa m_targaStop{lblStop, shpStop, 2490, 3915};
    Targa m_targaAccendi{lblAccLED, Shape3, 60, 240};
    Targa m_targaSpegni{lblSpLED, Shape4, 1140, 240};
    Targa m_targaScatta{lblScattaFoto, Shape12, 4500, 2040};
    // How often a colour list of the head has come up.
    int m_comparse = 0;
    bool m_menuChiesto = false;
    bool m_incorniciata = false;
};
