// The window: editing, and the places where a run and the runner meet it.
#include "movelists/frmEditor.h"

#include "base/Cartella.h"
#include "controls/Messaggi.h"
#include "movelists/ModoValore.h"
#include "base/Numeri.h"
#include "base/Pompa.h"
#include "controls/Tasti.h"

#include <QDir>
#include <QWindow>

frmEditor::frmEditor(ConsoleEditor &console, const Orologio &orologio, const QString &cartella)
    : Finestra(u"frmEditor"_s, u"Sequor"_s),
      m_console(console),
      m_orologio(orologio),
      m_cartella(cartella)
{
    disponi();
    Disegno();
    collegaGestori();
    collegaMenu();
}

void frmEditor::collegaGestori()
{
    tmrEseguiMosse.Timer.collega(this, &frmEditor::tmrEseguiMosse_Timer);
    tmrAttivaAut.Timer.collega(this, &frmEditor::tmrAttivaAut_Timer);
    pulEsegui.Click.collega(this, &frmEditor::pulEsegui_Click);
    pulEsegui.MouseMove.collega([this](int, int, double, double) { normali(); });
    opzInsComandi.Click.collega(this, &frmEditor::opzInsComandi_Click);
    lblFile.Change.collega(this, &frmEditor::lblFile_Change);
    imgVigilio.Click.collega(this, &frmEditor::imgVigilio_Click);
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
    mnuInsCondizione.Click.collega(this, &frmEditor::mnuInsCondizione_Click);

    const auto conValore = [this](VoceMenu &voce, const QString &modo) {
        voce.Click.collega([this, modo] { inserisciValore(modo); });
    };
    conValore(mnuInsPausa, u"Pausa"_s);
    conValore(mnuInsFrase, u"Frase"_s);
    conValore(mnuInsSuono, u"Suono"_s);
    conValore(mnuInsRipeti, u"Ripeti"_s);

    const auto conRiga = [this](VoceMenu &voce, const QString &riga) {
        voce.Click.collega([this, riga] { m_console.AggiungiMossa(riga); });
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

void frmEditor::Load()
{
    lstMosse.setTag(Numeri::TestoLogico(true));
    pompa();
    colloca();
}

void frmEditor::Unload(bool &Cancel)
{
    if (ChiediSalvataggio())
        Cancel = true;
    if (!m_vigilio || !m_vigilio->avviato())
        return;
    if (messaggio(u"Il Vigilio è in esecuzione, se chiudi il Sequor il Vigilio verrà stoppato, "
                  "chiudere?"_s,
                  Icona::Domanda, Pulsanti::SiNo, u"Sequor"_s) == Risposta::Si)
        m_vigilio->Stoppa();
    else
        Cancel = true;
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
    m_console.AggiungiMossa(
        Modi::riga(modo, valore.txtValore.Text(), valore.cbInfo.ListIndex(), valore.cbInfo.Text()));
}

void frmEditor::mnuInsCondizione_Click()
{
    if (!m_vigilio)
        return;
    m_vigilio->mostra();
    const QString aperto = QDir::fromNativeSeparators(Finestre.FileName());
    const QString cartella = conSeparatore(QDir::fromNativeSeparators(m_cartella));
    for (int i = 0; i < m_vigilio->ListCount(); ++i) {
        if (aperto.compare(cartella + m_vigilio->File(i), Qt::CaseInsensitive) != 0)
            continue;
        m_vigilio->setSelected(i, true);
        m_vigilio->setListIndex(i);
        m_vigilio->lstFile_DblClick();
        return;
    }
}

void frmEditor::pulCanc_Click()
{
    pulCanc.setPicture(1);
    const int riga = lstMosse.ListIndex();
    passaErrori([&] { lstMosse.RemoveItem(riga); });
    passaErrori([&] { lstMosse.setListIndex(riga); });
    lstMosse.setTag(Numeri::TestoLogico(false));
}

void frmEditor::pulSu_Click()
{
    pulSu.setPicture(3);
    const int riga = lstMosse.ListIndex();
    if (riga > 0)
        scambia(riga, riga - 1);
}

void frmEditor::pulGiu_Click()
{
    pulGiu.setPicture(4);
    const int riga = lstMosse.ListIndex();
    // With nothing selected there is no line to move.
    if (riga >= 0 && riga < lstMosse.ListCount() - 1)
        scambia(riga, riga + 1);
}

void frmEditor::scambia(int riga, int con)
{
    const QString testo = lstMosse.List(riga);
    lstMosse.setList(riga, lstMosse.List(con));
    lstMosse.setList(con, testo);
    lstMosse.setListIndex(con);
}

void frmEditor::pulsante_MouseMove(const Disegnato &disegnato, double X, double Y)
{
    constexpr double bordo = 50;
    const Immagine &pulsante = *disegnato.pulsante;
    const bool vicinoAlBordo =
        X < bordo || Y < bordo || X > pulsante.Width() - bordo || Y > pulsante.Height() - bordo;
    disegnato.pulsante->setPicture(vicinoAlBordo ? disegnato.normale : disegnato.sotto);
}

// A picture is not told that the pointer has left it: whoever the pointer comes to puts all right.
void frmEditor::normali()
{
    for (const Disegnato &disegnato : m_disegnati)
        disegnato.pulsante->setPicture(disegnato.normale);
}

void frmEditor::lstMosse_KeyDown(int &KeyCode, int)
{
    if (KeyCode == Tasti::Canc && !tmrEseguiMosse.Enabled())
        pulCanc_Click();
}

void frmEditor::lstMosse_MouseDown()
{
    if (!tmrEseguiMosse.Enabled())
        return;
    // The row may have been deleted since it was run.
    passaErrori([this] { lstMosse.setListIndex(Numeri::Intero(pulEsegui.Tag())); });
    passaErrori([this] { pulEsegui.SetFocus(); });
}

bool frmEditor::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (evento->type() == QEvent::Expose && oggetto == windowHandle() && m_daRivedere &&
        windowHandle()->isExposed()) {
        m_daRivedere = false;
        rientra();
    }
    // Of a double click the list gets no second MouseDown, though it gets the focus once more.
    if (evento->type() == QEvent::MouseButtonDblClick && oggetto == lstMosse.viewport() &&
        tmrEseguiMosse.Enabled()) {
        eseguiGestore([this] { lstMosse_MouseDown(); });
        return true;
    }
    return Finestra::eventFilter(oggetto, evento);
}

void frmEditor::lstMosse_MouseMove(int Button)
{
    normali();
    // The selection follows a pointer that is dragged along.
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

void frmEditor::imgVigilio_Click()
{
    if (m_vigilio)
        m_vigilio->mostra();
}
