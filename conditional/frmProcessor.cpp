#include "conditional/frmProcessor.h"

#include "base/Cartella.h"
#include "conditional/AspettoProcessor.h"
#include "conditional/Condizione.h"
#include "conditional/OraDiLista.h"
#include "conditional/Orologio.h"
#include "controls/Messaggi.h"
#include "controls/Tasti.h"
#include "movelists/frmEditor.h"
#include "shell/VisErrori.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QString filtroProgetti = u"Vigilio|*.vgp"_s;
const QString titolo = u"Vigilio"_s;

} // namespace

frmProcessor::frmProcessor(ConsoleVigilio &console, frmEditor &editor, const Orologio &orologio,
                           const QString &cartella)
    : Finestra(u"frmProcessor"_s, titolo),
      File(u"File"_s, this, cartella, u"*.sqm"_s),
      impCondizioni(lstFile, lstCondizioni, orologio),
      m_console(console),
      m_editor(editor),
      m_orologio(orologio),
      m_cartella(cartella)
{
    mostraTag([this] { return m_vigilio.testo(); },
              [this](const QString &testo) { m_vigilio.scrivi(testo); });
    disponiProcessor(*this);
    Disegno();
    collegaGestori();
    collegaEditor();
}

void frmProcessor::collegaGestori()
{
    mnuFileNuovo.Click.collega(this, &frmProcessor::mnuFileNuovo_Click);
    mnuFileApri.Click.collega(this, &frmProcessor::mnuFileApri_Click);
    mnuFileSalva.Click.collega(this, &frmProcessor::mnuFileSalva_Click);
    mnuFileSalvacome.Click.collega(this, &frmProcessor::mnuFileSalvacome_Click);
    mnuFileEsci.Click.collega([this] { Scarica(); });
    for (VoceMenu *opzione : {&mnuOpzRiduci, &mnuOpzDeselezionaAut})
        opzione->Click.collega([opzione] { opzione->setChecked(!opzione->Checked()); });
    mnuOpzCondizionePred.Click.collega(this, &frmProcessor::mnuOpzCondizionePred_Click);
    lstFile.Click.collega(this, &frmProcessor::lstFile_Click);
    lstFile.DblClick.collega(this, &frmProcessor::lstFile_DblClick);
    lstFile.KeyDown.collega([this](int &KeyCode, int) { lstFile_KeyDown(KeyCode); });
    pulAvvia.Click.collega(this, &frmProcessor::pulAvvia_Click);
    pulSalva.Click.collega(this, &frmProcessor::mnuFileSalva_Click);
    pulAnnulla.Click.collega([this] { Scarica(); });
}

void frmProcessor::collegaEditor()
{
    m_editor.VigilioChiesto.collega(this, &frmProcessor::mostraDavanti);
    m_editor.CondizioneChiesta.collega(this, &frmProcessor::chiediCondizione);
    m_editor.InChiusura.collega(this, &frmProcessor::editorInChiusura);
    m_editor.corsa.Comandata.collega(this, &frmProcessor::corsaComandata);
    m_editor.tmrAttivaAut.Timer.collega(this, &frmProcessor::tmrAttivaAut_Timer);
}

void frmProcessor::Disegno()
{
    liste.riposa();
    Finestre.setFileName({});
    Finestre.setFilter({});
    mnuOpzRiduci.setChecked(false);
    mnuOpzDeselezionaAut.setChecked(false);
    pulAvvia.setAzione(PulsanteAvvia::Azione::Avvia, false);
    pulAvvia.setEnabled(false);
}

void frmProcessor::Load()
{
    // Without a default condition the window stays empty.
    passaErrori([this] { liste.riempi(m_cartella); });
}

void frmProcessor::Unload(bool &Cancel)
{
    if (ChiediSalvataggio()) {
        Cancel = true;
        return;
    }
    m_vigilio.chiudi();
    mostraFase(Vigilio::Fase::Spenta);
    m_editor.tmrAttivaAut.setEnabled(false);
}

// True if the user cancels.
bool frmProcessor::ChiediSalvataggio()
{
    if (liste.salvate())
        return false;
    const QString domanda = Caption() == titolo ? u"Vuoi salvare le impostazioni delle liste?"_s
                                                : u"Vuoi salvare le ultime modifiche?"_s;
    switch (messaggio(domanda, Icona::Domanda, Pulsanti::SiNoAnnulla, titolo)) {
    case Risposta::Si:
        mnuFileSalva_Click();
        return false;
    case Risposta::Annulla:
        return true;
    default:
        return false;
    }
}

void frmProcessor::mnuFileNuovo_Click()
{
    if (ChiediSalvataggio())
        return;
    setCaption(titolo);
    liste.svuota();
    Load();
    liste.segnaSalvate();
}

void frmProcessor::mnuFileApri_Click()
{
    conUscita([this] {
        if (ChiediSalvataggio())
            return;
        liste.segnaSalvate();
        mnuFileNuovo_Click();
        Finestre.setFilter(filtroProgetti);
        Finestre.ShowOpen();
        if (Finestre.FileName().isEmpty())
            return;
        liste.leggiProgetto(Finestre.FileName());
        setCaption(titolo + u"  "_s + nomeDelFile(Finestre.FileName()));
        liste.segnaSalvate();
    });
}

void frmProcessor::mnuFileSalva_Click()
{
    if (Finestre.FileName().isEmpty()) {
        mnuFileSalvacome_Click();
        return;
    }
    liste.scriviProgetto(Finestre.FileName());
    setCaption(titolo + u"  "_s + nomeDelFile(Finestre.FileName()));
}

void frmProcessor::mnuFileSalvacome_Click()
{
    conUscita([this] {
        Finestre.setFilter(filtroProgetti);
        Finestre.ShowSave();
        if (!Finestre.FileName().isEmpty())
            mnuFileSalva_Click();
    });
}

void frmProcessor::mnuOpzCondizionePred_Click()
{
    impCondizioni.setTag(u"Predefinita"_s);
    impCondizioni.MostraModale();
    impCondizioni.Scarica();
}

void frmProcessor::lstFile_Click()
{
    liste.segnaCambiate();
    pulAvvia.setEnabled(liste.qualcunaScelta());
    if (!pulAvvia.isEnabled())
        Stoppa();
}

void frmProcessor::lstFile_DblClick()
{
    // A list that starts during the dialog becomes the selected one.
    const int riga = lstFile.ListIndex();
    if (riga < 0)
        return;
    impCondizioni.MostraModale();
    if (impCondizioni.Tag() != u"OK") {
        liste.scegli(riga, false);
    } else {
        liste.scegli(riga, true);
        liste.descrivi(riga);
    }
    liste.segnaCambiate();
    impCondizioni.Scarica();
}

// Enter is the keyboard's double click.
void frmProcessor::lstFile_KeyDown(int &KeyCode)
{
    if (KeyCode != Tasti::Invio)
        return;
    KeyCode = 0;
    lstFile_DblClick();
}

void frmProcessor::pulAvvia_Click()
{
    if (pulAvvia.azione() == PulsanteAvvia::Azione::Ferma) {
        Stoppa();
        return;
    }
    // The port is open during a connection attempt too, which may still fail.
    if (m_console.staTentando())
        return;
    const Vigilio::Avvio avvio(m_vigilio);
    if (!avvio.valido())
        return;
    if (!m_console.PortOpen() && !connetti(avvio))
        return;
    // The user may have stopped the Vigilio while it was connecting.
    if (!avvio.valido() || inContrasto())
        return;
    if (mnuOpzRiduci.Checked())
        Nascondi();
    mostraFase(Vigilio::Fase::InAttesa);
    m_editor.Mostra();
    m_editor.tmrAttivaAut.setEnabled(true);
    pulAvvia.setAzione(PulsanteAvvia::Azione::Ferma, false);
    m_vigilio.accendi();
}

bool frmProcessor::connetti(const Vigilio::Avvio &avvio)
{
    if (messaggio(u"Per avviare il Vigilio è necessario essere connessi ad Tessaro, connettersi "
                  "ora?"_s,
                  Icona::Domanda, Pulsanti::SiNo, titolo) != Risposta::Si)
        return false;
    if (!avvio.valido() || m_console.staTentando())
        return false;
    m_console.Collega();
    return m_console.collegato();
}

bool frmProcessor::inContrasto() const
{
    const auto contrasto = liste.contrasto();
    if (!contrasto)
        return false;
    messaggio(u"\"%1\" e \"%2\"\n%3"_s.arg(contrasto->prima, contrasto->seconda, contrasto->perche),
              Icona::Informazione, Pulsanti::OK, titolo);
    return true;
}

void frmProcessor::VerificaCondizioni(const QString &testo)
{
    const TelemetriaLetta telemetria(testo);
    for (int i = 0; i < liste.quante(); ++i) {
        if (liste.scelta(i) && telemetria.avvera(liste.condizione(i)))
            EseguiLista(static_cast<qint16>(i));
    }
}

void frmProcessor::Stoppa()
{
    mostraFase(Vigilio::Fase::Spenta);
    m_editor.tmrAttivaAut.setEnabled(false);
    pulAvvia.setAzione(PulsanteAvvia::Azione::Avvia, true);
    m_vigilio.spegni();
}

void frmProcessor::mostraFase(Vigilio::Fase fase)
{
    m_vigilio.setFase(fase);
    m_editor.imgVigilio.setPicture(static_cast<int>(fase));
}

void frmProcessor::EseguiLista(qint16 riga)
{
    const QString nome = liste.nome(riga);
    if (m_editor.corsa.inCorsa() &&
        nome.compare(m_editor.Finestre.FileName(), Qt::CaseInsensitive) == 0)
        return;
    m_editor.ApriLista(nome);
    if (mnuOpzDeselezionaAut.Checked())
        liste.scegli(riga, false);
    lstFile.setListIndex(riga);
    m_editor.Finestre.setFileName(nome);
    m_editor.corsa.comanda();
    mostraFase(Vigilio::Fase::ListaInCorsa);
}

// The clock: every list whose time has come, with or without a check mark.
void frmProcessor::tmrAttivaAut_Timer()
{
    for (int i = 0; i < liste.quante(); ++i) {
        const QString adesso = m_orologio.adesso().toString(u"hh:mm:ss"_s);
        if (oraDiLista(liste.condizione(i), adesso))
            EseguiLista(static_cast<qint16>(i));
    }
}

// After a list that a condition had started, the Vigilio waits for the next one, if there is one.
void frmProcessor::corsaComandata()
{
    if (m_vigilio.fase() != Vigilio::Fase::ListaInCorsa)
        return;
    if (liste.qualcunaScelta())
        mostraFase(Vigilio::Fase::InAttesa);
    else
        Stoppa();
}

void frmProcessor::mostraDavanti()
{
    Mostra();
    setWindowState(0);
    // It may be open already, behind another window.
    raise();
    activateWindow();
}

// The condition of the list that is open in the editor, if it is one of these.
void frmProcessor::chiediCondizione()
{
    mostraDavanti();
    const QString aperto = QDir::fromNativeSeparators(m_editor.Finestre.FileName());
    const QString cartella = conSeparatore(QDir::fromNativeSeparators(m_cartella));
    for (int i = 0; i < liste.quante(); ++i) {
        if (aperto.compare(cartella + liste.nome(i), Qt::CaseInsensitive) != 0)
            continue;
        liste.scegli(i, true);
        lstFile.setListIndex(i);
        lstFile_DblClick();
        return;
    }
}

void frmProcessor::editorInChiusura(bool &Cancel)
{
    if (!avviato())
        return;
    if (messaggio(u"Il Vigilio è in esecuzione, se chiudi il Sequor il Vigilio verrà stoppato, "
                  "chiudere?"_s,
                  Icona::Domanda, Pulsanti::SiNo, u"Sequor"_s) == Risposta::Si)
        Stoppa();
    else
        Cancel = true;
}
