#include "movelists/frmEditor.h"

#include "base/Cartella.h"
#include "base/Pompa.h"
#include "controls/Messaggi.h"
#include "controls/Tasti.h"
#include "movelists/AspettoEditor.h"
#include "movelists/ModoValore.h"
#include "shell/VisErrori.h"

#include <QDir>
#include <QShowEvent>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

const QString filtroMosse = u"Mosse|*.sqm"_s;
const QString filtroProgrammi = u"Applicazioni|*.exe"_s;

} // namespace

frmEditor::frmEditor(const Finestra &console, ControlloSeriale &COM, const QString &cartella)
    : Finestra(u"frmEditor"_s, u"Sequor"_s),
      corsa({lstMosse, pulEsegui, tmrEseguiMosse, mnuInsRipeti}, COM, cartella),
      m_accanto(*this, console)
{
    disponiEditor(*this);
    setPredefinito(&pulEsegui);
    Disegno();
    collegaGestori();
    collegaMenu();
}

void frmEditor::collegaGestori()
{
    pulEsegui.Click.collega([this] { corsa.comanda(); });
    pulEsegui.MouseMove.collega([this](int, int, double, double) { normali(); });
    opzInsComandi.Click.collega(this, &frmEditor::opzInsComandi_Click);
    lblFile.Change.collega(this, &frmEditor::lblFile_Change);
    imgVigilio.Click.collega([this] { VigilioChiesto(); });
    lstMosse.KeyDown.collega(this, &frmEditor::lstMosse_KeyDown);
    lstMosse.MouseDown.collega([this](int, int, double, double) { lstMosse_MouseDown(); });
    lstMosse.viewport()->installEventFilter(this);
    lstMosse.MouseMove.collega(
        [this](int Button, int, double, double) { lstMosse_MouseMove(Button); });

    pulCanc.Click.collega(this, &frmEditor::pulCanc_Click);
    // A double click moves a line by two places.
    pulSu.conDoppioClick();
    pulGiu.conDoppioClick();
    pulSu.Click.collega(this, &frmEditor::pulSu_Click);
    pulGiu.Click.collega(this, &frmEditor::pulGiu_Click);
    pulPausa.Click.collega([this] {
        pulPausa.setPicture(2);
        inserisciValore(u"Pausa"_s);
    });
    pulFrase.Click.collega([this] {
        pulFrase.setPicture(5);
        inserisciValore(u"Frase"_s);
    });
    pulSuono.Click.collega([this] {
        pulSuono.setPicture(6);
        inserisciValore(u"Suono"_s);
    });
    for (const Disegnato &disegnato : m_disegnati)
        disegnato.pulsante->MouseMove.collega([this, disegnato](int, int, double X, double Y) {
            pulsante_MouseMove(disegnato, X, Y);
        });
}

void frmEditor::collegaMenu()
{
    mnuFileNuovo.Click.collega(this, &frmEditor::mnuFileNuovo_Click);
    mnuFileApri.Click.collega(this, &frmEditor::mnuFileApri_Click);
    mnuFileSalva.Click.collega(this, &frmEditor::mnuFileSalva_Click);
    mnuFileSalvacome.Click.collega(this, &frmEditor::mnuFileSalvacome_Click);
    mnuFileEsci.Click.collega([this] { Scarica(); });
    mnuInsProg.Click.collega(this, &frmEditor::mnuInsProg_Click);
    mnuInsCondizione.Click.collega([this] { CondizioneChiesta(); });

    const auto conValore = [this](VoceMenu &voce, const QString &modo) {
        voce.Click.collega([this, modo] { inserisciValore(modo); });
    };
    conValore(mnuInsPausa, u"Pausa"_s);
    conValore(mnuInsFrase, u"Frase"_s);
    conValore(mnuInsSuono, u"Suono"_s);
    conValore(mnuInsRipeti, u"Ripeti"_s);

    const auto conRiga = [this](VoceMenu &voce, const QString &riga) {
        voce.Click.collega([this, riga] { documento.inserisci(riga); });
    };
    conRiga(mnuInsTDx, u"Testa destra 2"_s);
    conRiga(mnuInsTSx, u"Testa sinistra 2"_s);
    conRiga(mnuInsTSu, u"Testa su 2"_s);
    conRiga(mnuInsTGiu, u"Testa giu 2"_s);
    conRiga(mnuInsBAvanti, u"Avanti veloce"_s);
    conRiga(mnuInsBIndietro, u"Indietro veloce"_s);
    conRiga(mnuInsBDx, u"Destra"_s);
    conRiga(mnuInsBSx, u"Sinistra"_s);
    conRiga(mnuInsBStop, u"Stop"_s);
    conRiga(mnuInsCamera, u"Camera"_s);
}

void frmEditor::Disegno()
{
    corsa.riposa();
    documento.riposa();
    tmrAttivaAut.setEnabled(false);
    tmrAttivaAut.setInterval(1000);
    lblFile.setCaption({});
    lblFile.setToolTip({});
    Finestre.setFileName({});
    Finestre.setFilter({});
    opzInsComandi.setValue(1);
    opzInsComandi_Click();
    imgVigilio.setPicture(1);
    normali();
}

void frmEditor::Load()
{
    documento.segnaSalvata();
    pompa();
    m_accanto.colloca();
}

void frmEditor::Unload(bool &Cancel)
{
    if (ChiediSalvataggio())
        Cancel = true;
    InChiusura(Cancel);
}

void frmEditor::showEvent(QShowEvent *evento)
{
    Finestra::showEvent(evento);
    if (evento->spontaneous())
        return;
    m_accanto.mostrata();
    windowHandle()->installEventFilter(this);
}

void frmEditor::MouseMove()
{
    normali();
}

void frmEditor::inserisciValore(const QString &modo)
{
    valore.setTag(modo);
    valore.MostraModale();
    if (valore.Tag() == u"Annulla")
        return;
    documento.inserisci(
        Modi::riga(modo, valore.txtValore.Text(), valore.cbInfo.ListIndex(), valore.cbInfo.Text()));
}

void frmEditor::pulCanc_Click()
{
    pulCanc.setPicture(1);
    documento.togli();
}

void frmEditor::pulSu_Click()
{
    pulSu.setPicture(3);
    const int riga = lstMosse.ListIndex();
    if (riga > 0)
        documento.scambia(riga, riga - 1);
}

void frmEditor::pulGiu_Click()
{
    pulGiu.setPicture(4);
    const int riga = lstMosse.ListIndex();
    // With nothing selected there is no line to move.
    if (riga >= 0 && riga < lstMosse.ListCount() - 1)
        documento.scambia(riga, riga + 1);
}

void frmEditor::pulsante_MouseMove(const Disegnato &disegnato, double X, double Y)
{
    constexpr double bordo = 50;
    const Immagine &pulsante = *disegnato.pulsante;
    const bool vicinoAlBordo =
        X < bordo || Y < bordo || X > pulsante.Width() - bordo || Y > pulsante.Height() - bordo;
    disegnato.pulsante->setPicture(vicinoAlBordo ? disegnato.normale : disegnato.sotto);
}

// A picture does not notice that the pointer has left it: what the pointer reaches next calls this.
void frmEditor::normali()
{
    for (const Disegnato &disegnato : m_disegnati)
        disegnato.pulsante->setPicture(disegnato.normale);
}

void frmEditor::lstMosse_KeyDown(int &KeyCode, int)
{
    if (KeyCode == Tasti::Canc && !corsa.inCorsa())
        pulCanc_Click();
}

void frmEditor::lstMosse_MouseDown()
{
    if (corsa.inCorsa())
        corsa.riprendiRiga();
}

bool frmEditor::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (evento->type() == QEvent::Expose && oggetto == windowHandle() &&
        windowHandle()->isExposed())
        m_accanto.rivedi();
    // The second press of a double click raises no MouseDown, but gives the focus to the list.
    if (evento->type() == QEvent::MouseButtonDblClick && oggetto == lstMosse.viewport() &&
        corsa.inCorsa()) {
        eseguiGestore([this] { lstMosse_MouseDown(); });
        return true;
    }
    return Finestra::eventFilter(oggetto, evento);
}

void frmEditor::lstMosse_MouseMove(int Button)
{
    normali();
    // A pointer that is dragged takes the selection along.
    if (Button != 0)
        lstMosse_MouseDown();
}

void frmEditor::opzInsComandi_Click()
{
    const bool attivato = opzInsComandi.Value() == 1;
    opzInsComandi.setCaption(attivato ? u"Inserisci comandi nella lista (Attivato)"_s
                                      : u"Inserisci comandi nella lista (Disattivato)"_s);
    // The bright green would be lost on the light window.
    if (attivato)
        opzInsComandi.setForeColor(QColor(0, 0xC0, 0), QColor(0x1B, 0x2A, 0x20));
    else
        opzInsComandi.setForeColor(QColor(0x80, 0, 0));
}

void frmEditor::lblFile_Change()
{
    lblFile.setToolTip(u"File aperto: "_s + lblFile.Caption());
}

// True if the user cancels.
bool frmEditor::ChiediSalvataggio()
{
    if (documento.salvata() || ListaVuota(false))
        return false;
    const QString domanda = lblFile.Caption().isEmpty() ? u"Vuoi salvare la lista?"_s
                                                        : u"Vuoi salvare le ultime modifiche?"_s;
    switch (messaggio(domanda, Icona::Domanda, Pulsanti::SiNoAnnulla, u"Sequor"_s)) {
    case Risposta::Si:
        mnuFileSalva_Click();
        return false;
    case Risposta::No:
        return false;
    default:
        return true;
    }
}

bool frmEditor::ListaVuota(bool mostra)
{
    if (!documento.vuota())
        return false;
    if (mostra)
        messaggio(u"Non c'è niente da salvare!"_s, Icona::Informazione, Pulsanti::OK, Caption());
    return true;
}

void frmEditor::mnuFileNuovo_Click()
{
    conUscita([this] {
        if (ChiediSalvataggio())
            return;
        corsa.ferma();
        lblFile.setCaption({});
        Finestre.setFileName({});
        documento.svuota();
        documento.segnaSalvata();
    });
}

void frmEditor::mnuFileApri_Click()
{
    conUscita([this] {
        if (ChiediSalvataggio())
            return;
        Finestre.setFilter(filtroMosse);
        Finestre.ShowOpen();
        if (!Finestre.FileName().isEmpty())
            ApriLista(Finestre.FileName());
    });
}

void frmEditor::ApriLista(const QString &percorso)
{
    corsa.ferma();
    documento.leggi(percorso);
    lblFile.setCaption(nomeDelFile(percorso));
}

void frmEditor::mnuFileSalva_Click()
{
    if (ListaVuota(true))
        return;
    if (Finestre.FileName().isEmpty()) {
        mnuFileSalvacome_Click();
        return;
    }
    documento.scrivi(Finestre.FileName());
    lblFile.setCaption(nomeDelFile(Finestre.FileName()));
}

void frmEditor::mnuFileSalvacome_Click()
{
    conUscita([this] {
        if (ListaVuota(true))
            return;
        Finestre.setFilter(filtroMosse);
        Finestre.ShowSave();
        if (!Finestre.FileName().isEmpty())
            mnuFileSalva_Click();
    });
}

void frmEditor::mnuInsProg_Click()
{
    conUscita([this] {
        const QString prima = Finestre.FileName();
        Finestre.setFilter(filtroProgrammi);
        Finestre.ShowOpen();
        if (!Finestre.FileName().isEmpty())
            documento.inserisci(u"Programma "_s + QDir::toNativeSeparators(Finestre.FileName()));
        Finestre.setFileName(prima);
    });
}
