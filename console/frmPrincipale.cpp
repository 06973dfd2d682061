// The window as a whole: start, end, toolbar, control modes, the send-or-list rule.
#include "console/frmPrincipale.h"

#include "base/Archivio.h"
#include "base/Codifica.h"
#include "base/Numeri.h"
#include "base/Pompa.h"
#include "console/Collocazione.h"
#include "controls/Messaggi.h"
#include "shell/Abilita_Disabilita.h"
#include "shell/FileProgDat.h"

#include <QDir>
#include <QScopedValueRollback>
#include <QScreen>

namespace {

// As many as an index of 16 bits counts: a spoilt file must not fill the memory.
constexpr int immaginiMassime = 32768;

// Windows gives a program one megabyte of stack.
constexpr int atteseMassime = 32;

} // namespace

frmPrincipale::frmPrincipale(AmbienteConsole ambiente)
    : Finestra(u"frmPrincipale"_s, u"Lumbra Tessaro"_s),
      COM(u"COM"_s, this, std::move(ambiente.porta), ambiente.cartella),
      motore(COM, tmrElabInput,
             {BarraStato, lblTemperatura, imgBattLogica, imgBattMotori, imgLivBattLogica,
              imgLivBattMotori, shpUltrasuoniDx, shpUltrasuoniCe, shpUltrasuoniSx}),
      m_ambiente(std::move(ambiente)),
      m_sessione(COM,
                 {BarraStato, BarraPulsanti, BarraCaricamento, tmrChiusuraAutomatica,
                  tmrControllaConn, tmrSensori, tmrElabInput},
                 {BarraStato, lblTemperatura, imgBattLogica, imgBattMotori, imgLivBattLogica,
                  imgLivBattMotori, shpUltrasuoniDx, shpUltrasuoniCe, shpUltrasuoniSx},
                 motore, splash, impostaPorta, *this)
{
    tmrElabInput.setInterval(1);
    tmrSensori.setInterval(300);
    tmrControllaConn.setInterval(5000);
    tmrAnimazFrecce.setInterval(100);
    tmrChiusuraAutomatica.setInterval(1000);
    tmrChiusuraAutomatica.setTag(u"0"_s);
    disponi();
    collegaGestori();
    setKeyPreview();
}

void frmPrincipale::collegaGestori()
{
    BarraPulsanti.ButtonClick.collega(this, &frmPrincipale::BarraPulsanti_ButtonClick);
    opzBase.Click.collega(this, &frmPrincipale::opzBase_Click);
    opzBraccia.Click.collega(this, &frmPrincipale::opzBraccia_Click);
    opzTesta.Click.collega(this, &frmPrincipale::opzTesta_Click);
    for (CasellaOpzione *opzione : {&opzBase, &opzBraccia, &opzTesta})
        opzione->MouseUp.collega([this](int, int, double, double) { ImgTesta.SetFocus(); });
    for (Combo *combo : {&cbMex, &cbModGiro, &cbProgrammi, &cbStepO, &cbStepV, &cbVelocità}) {
        combo->Click.collega(this, &frmPrincipale::RidaiFuoco);
        combo->Chiusa.collega(this, &frmPrincipale::RidaiFuoco);
    }
    for (int i = 1; i <= 10; ++i)
        collegaFreccia(i);
    imgFreccia(1).mostraTag([this] { return m_fermo.testo(); },
                            [this](const QString &testo) { m_fermo.scrivi(testo); });
    lblStop.Click.collega(this, &frmPrincipale::lblStop_Click);
    collegaTesta();
    collegaVoce();
    componiMenu();
}

void frmPrincipale::Initialize()
{
    tmrChiusuraAutomatica.setEnabled(true);
    splash.Mostra();
    pompa();
    QDir::setCurrent(m_ambiente.cartella);
}

void frmPrincipale::Load()
{
    for (int i = 1; i <= 10; ++i) {
        cbMex.AddItem(QString::number(i));
        cbProgrammi.AddItem(QString::number(i));
    }
    cbMex.setListIndex(0);
    cbProgrammi.setListIndex(0);
    for (int i = 1; i <= 4; ++i)
        cbStepV.AddItem(QString::number(i));
    cbStepV.setListIndex(1);
    for (int i = 1; i <= 12; ++i)
        cbStepO.AddItem(QString::number(i));
    cbStepO.setListIndex(1);
    cbVelocità.setListIndex(0);
    cbModGiro.setListIndex(0);
    for (int i = 5; i <= 10; ++i)
        imgFreccia(i).setPicture(imgFreccia(i == 5 || i == 7 || i == 8 ? 1 : 4).Picture());

    // A file that cannot be read skips the test and lands on the connection.
    const bool collega = provaPassata([] { return Numeri::Valore(FileProgDat::leggi()) == 1; });
    if (collega) {
        passaErrori([this] { Collega(); });
    } else {
        tmrChiusuraAutomatica.setEnabled(false);
        BarraStato.setPanels(1, u"Non connesso"_s);
    }
    leggiImmagini();
    colloca();
    splash.Scarica();
}

void frmPrincipale::leggiImmagini()
{
    if (passaErrori([] { Archivio::apri(1, u"Immagini.dat"_s, Archivio::Modo::Lettura); })) {
        while (!Archivio::fine(1) && lstImgCamera.ListCount() < immaginiMassime)
            lstImgCamera.AddItem(Codifica::daByte(Archivio::leggiRiga(1)));
    } else {
        // The loop's test fails with the file, and what follows the reading is done once.
        lstImgCamera.AddItem({});
    }
    Archivio::abbandona();
    passaErrori([this] { lstImgCamera.setItemData(1, 1); });
}

void frmPrincipale::colloca()
{
    const QRect schermo = screen()->geometry();
    const Posizione posto = collocaConsole(Unita::unita(schermo.width()),
                                           Unita::unita(schermo.height()), Width(), Height());
    Move(Unita::unita(schermo.x()) + posto.Left, Unita::unita(schermo.y()) + posto.Top);
}

void frmPrincipale::Activate()
{
    passaErrori([this] { ImgTesta.SetFocus(); });
}

void frmPrincipale::changeEvent(QEvent *evento)
{
    Finestra::changeEvent(evento);
    // Only when it comes to the front does the window know the frame that it was given.
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && !m_incorniciata) {
        m_incorniciata = true;
        if (frameGeometry() != geometry())
            eseguiGestore([this] { colloca(); });
    }
}

void frmPrincipale::MouseMove()
{
    ImgTesta.setTag({});
}

void frmPrincipale::Resize()
{
    if (!m_finestre.frmEditor)
        return;
    Finestra &frmEditor = *m_finestre.frmEditor;
    if (WindowState() == 0 && frmEditor.Tag() == u"Aperto"_s && !frmEditor.Visible())
        frmEditor.Mostra();
    if (frmEditor.Visible() && WindowState() == 1) {
        frmEditor.Nascondi();
        frmEditor.setTag(u"Aperto"_s);
    }
}

void frmPrincipale::QueryUnload(bool &Cancel, Chiusura UnloadMode)
{
    Finestra *frmEditor = m_finestre.frmEditor;
    if (UnloadMode == Chiusura::Utente && frmEditor && frmEditor->Visible()) {
        frmEditor->Scarica();
        if (frmEditor->Visible()) {
            Cancel = true;
            return;
        }
    }
    ComandiTessaro::ChiudiSessione(COM);
    m_ambiente.fine();
}

bool frmPrincipale::ListaAttiva() const
{
    return m_finestre.frmEditor && m_finestre.frmEditor->Visible() &&
           m_finestre.opzInsComandi->Value() == 1;
}

void frmPrincipale::AggiungiMossa(const QString &riga)
{
    m_finestre.documento->inserisci(riga);
}

void frmPrincipale::RidaiFuoco()
{
    if (isVisible())
        ImgTesta.SetFocus();
}

bool frmPrincipale::mandaOInserisci(const Azione &azione)
{
    if (ListaAttiva()) {
        AggiungiMossa(azione.riga);
        return true;
    }
    azione.comando(COM);
    // Whoever presses on and on without an answer is obeyed, but no longer waited for: each wait
    // lies on the stack of the one before it.
    if (!azione.esito.isEmpty() && m_attese < atteseMassime)
        MostraInvio(azione.esito);
    return false;
}

void frmPrincipale::MostraInvio(const QString &testo)
{
    const QScopedValueRollback attesa(m_attese, m_attese + 1);
    m_sessione.MostraInvio(testo);
}

void frmPrincipale::BarraPulsanti_ButtonClick(PulsanteBarra &Button)
{
    passaErrori([&] { esegui(Button.Image()); });
}

void frmPrincipale::esegui(int Image)
{
    switch (Image) {
    case 1:
        Collega();
        break;
    case 6:
        m_sessione.Scollega();
        break;
    case 2:
        opzioni.MostraModale();
        break;
    case 3:
        BarraPulsanti.setTag(u"Camera"_s);
        apri(m_finestre.frmCamera);
        break;
    case 4:
        apri(m_finestre.frmEditor);
        break;
    case 5:
        apri(m_finestre.frmProcessor);
        break;
    case 7:
        if (tmrControllaConn.Enabled())
            apri(m_finestre.frmEsploraFile);
        else
            messaggio(u"I file del ROBOT si possono vedere solo se si è collegati ad Tessaro"_s,
                      Icona::Informazione);
        break;
    case 8:
        apri(m_finestre.frmImmaginiAcquisite);
        break;
    default:
        break;
    }
}

void frmPrincipale::apri(Finestra *finestra)
{
    if (finestra)
        finestra->Mostra();
}

void frmPrincipale::sceltaModo(CasellaOpzione &scelta)
{
    for (CasellaOpzione *opzione : {&opzBase, &opzBraccia, &opzTesta})
        opzione->setBackColor(opzione == &scelta ? QColor(0xC0, 0xFF, 0xC0)
                                                 : QColor(0x80, 0xFF, 0x80));
}

void frmPrincipale::icona(Immagine &immagine, int numero, const QString &suggerimento,
                          const Combo &accanto)
{
    immagine.setPicture(numero);
    immagine.setToolTip(suggerimento);
    immagine.setAccessibleName(suggerimento);
    immagine.setTop(accanto.Top());
}

void frmPrincipale::opzBase_Click()
{
    sceltaModo(opzBase);
    ImpostaVisibili(false, cbStepV, cbStepO, imgFreccia(7), imgFreccia(8), imgFreccia(9),
                    imgFreccia(10));
    ImpostaVisibili(true, cbVelocità, cbModGiro, lblStop, shpStop, imgFreccia(1), imgFreccia(2),
                    imgFreccia(3), imgFreccia(4));
    icona(Image1, 10, u"Velocità"_s, cbVelocità);
    icona(Image2, 12, u"Tipo di rotazione su sé stesso"_s, cbModGiro);
    lblOpzioni.setCaption(u"OPZIONI"_s);
    passaErrori([this] { ImgTesta.SetFocus(); });
}

void frmPrincipale::opzBraccia_Click()
{
    sceltaModo(opzBraccia);
    ImpostaVisibili(false, cbVelocità, cbModGiro, cbStepV, cbStepO, imgFreccia(1), imgFreccia(2),
                    imgFreccia(3), imgFreccia(4));
    ImpostaVisibili(true, imgFreccia(7), imgFreccia(8), imgFreccia(9), imgFreccia(10), lblStop,
                    shpStop);
    for (Immagine *immagine : {&Image1, &Image2}) {
        immagine->setPicture(0);
        immagine->setToolTip({});
        immagine->setAccessibleName({});
    }
    // The letters head the columns of the left and the right arm.
    lblOpzioni.setCaption(u"S         D"_s);
    passaErrori([this] { ImgTesta.SetFocus(); });
}

void frmPrincipale::opzTesta_Click()
{
    sceltaModo(opzTesta);
    ImpostaVisibili(false, cbVelocità, cbModGiro, lblStop, shpStop, imgFreccia(7), imgFreccia(8),
                    imgFreccia(9), imgFreccia(10));
    ImpostaVisibili(true, cbStepV, cbStepO, imgFreccia(1), imgFreccia(2), imgFreccia(3),
                    imgFreccia(4));
    icona(Image1, 9, u"STEP verticali"_s, cbStepV);
    icona(Image2, 11, u"STEP orizzontali"_s, cbStepO);
    lblOpzioni.setCaption(u"STEP"_s);
    passaErrori([this] { ImgTesta.SetFocus(); });
}

void frmPrincipale::scaricaCamera()
{
    if (m_finestre.frmCamera && m_finestre.frmCamera->Visible())
        m_finestre.frmCamera->Scarica();
}

void frmPrincipale::scaricaEsploraFile()
{
    if (m_finestre.frmEsploraFile && m_finestre.frmEsploraFile->Visible())
        m_finestre.frmEsploraFile->Scarica();
}

bool frmPrincipale::vigilioAvviato() const
{
    return m_finestre.frmProcessor && m_finestre.frmProcessor->Tag() == u"AVVIATO"_s;
}

void frmPrincipale::stoppaVigilio()
{
    if (m_finestre.Stoppa)
        m_finestre.Stoppa();
}
