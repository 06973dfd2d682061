// The window: its lines, its project, what it asks.
#include "conditional/frmProcessor.h"

#include "base/Archivio.h"
#include "base/Cartella.h"
#include "conditional/Condizione.h"
#include "shell/Gest_File.h"
#include "controls/Messaggi.h"
#include "base/Numeri.h"
#include "conditional/ProgDat.h"
#include "controls/Tasti.h"
#include "shell/VisErrori.h"
#include "movelists/frmEditor.h"

#include <QFileInfo>
#include <QHash>

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
      m_cartella(cartella)
{
    disponi();
    Disegno();
    collegaGestori();
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

void frmProcessor::Load()
{
    // Without a default condition to be read the window stays empty.
    m_riempite = passaErrori([this] { riempi(); });
}

void frmProcessor::riempi()
{
    File.setPath(m_cartella);
    const QString condizione = ProgDat::leggiCondizione();
    for (int i = 0; i < File.ListCount(); ++i) {
        lstCondizioni.AddItem(condizione);
        lstFile.AddItem(rigaLista(i));
    }
}

QString frmProcessor::rigaLista(int riga) const
{
    return NomeLista(File.List(riga)) + DescriviCondizione(lstCondizioni.List(riga));
}

void frmProcessor::Unload(bool &Cancel)
{
    if (ChiediSalvataggio()) {
        Cancel = true;
        return;
    }
    setTag(u"Annulla"_s);
    m_editor.imgVigilio.setPicture(1);
    m_editor.tmrAttivaAut.setEnabled(false);
}

// True where the user cancels.
bool frmProcessor::ChiediSalvataggio()
{
    if (Numeri::Logico(lstFile.Tag()))
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
    // The check marks go, and what follows them with the last one.
    for (int i = 0; i < lstFile.ListCount(); ++i)
        lstFile.setSelected(i, false);
    lstFile.Clear();
    lstCondizioni.Clear();
    Load();
    lstFile.setTag(Numeri::TestoLogico(true));
}

void frmProcessor::mnuFileApri_Click()
{
    conUscita([this] {
        if (ChiediSalvataggio())
            return;
        lstFile.setTag(Numeri::TestoLogico(true));
        mnuFileNuovo_Click();
        Finestre.setFilter(filtroProgetti);
        Finestre.ShowOpen();
        if (Finestre.FileName().isEmpty())
            return;
        leggiProgetto();
        setCaption(titolo + u"  "_s + nomeDelFile(Finestre.FileName()));
        lstFile.setTag(Numeri::TestoLogico(true));
    });
}

void frmProcessor::leggiProgetto()
{
    QHash<QString, int> righe;
    for (int i = 0; i < lstFile.ListCount(); ++i)
        righe.insert(File.List(i), i);
    Progetto::leggi(LeggiFile(Finestre.FileName(), 1), [&](const Progetto::Lista &lista) {
        const int riga = righe.value(lista.nome, -1);
        if (riga < 0)
            return;
        lstFile.setSelected(riga, lista.selezionata);
        lstCondizioni.setList(riga, lista.condizione);
        lstFile.setList(riga, rigaLista(riga));
    });
}

QList<Progetto::Lista> frmProcessor::liste() const
{
    QList<Progetto::Lista> liste;
    for (int i = 0; i < lstFile.ListCount(); ++i)
        liste += {File.List(i), lstFile.Selected(i), lstCondizioni.List(i)};
    return liste;
}

void frmProcessor::mnuFileSalva_Click()
{
    if (Finestre.FileName().isEmpty()) {
        mnuFileSalvacome_Click();
        return;
    }
    // No failure is told.
    if (!passaErrori([this] { scriviProgetto(); }))
        Archivio::abbandona();
    setCaption(titolo + u"  "_s + nomeDelFile(Finestre.FileName()));
    lstFile.setTag(Numeri::TestoLogico(true));
}

void frmProcessor::scriviProgetto() const
{
    // Lists that could not be filled must not take the place of a project that was.
    if (m_riempite || !QFileInfo::exists(Finestre.FileName()))
        ScriviFile(Finestre.FileName(), Progetto::scritto(liste()));
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
    lstFile.setTag(Numeri::TestoLogico(false));
    for (int i = 0; i < lstFile.ListCount(); ++i) {
        if (lstFile.Selected(i)) {
            pulAvvia.setEnabled(true);
            return;
        }
    }
    pulAvvia.setEnabled(false);
    Stoppa();
}

void frmProcessor::lstFile_DblClick()
{
    // A list that starts meanwhile becomes the chosen one.
    const int riga = lstFile.ListIndex();
    if (riga < 0)
        return;
    impCondizioni.MostraModale();
    if (impCondizioni.Tag() != u"OK") {
        lstFile.setSelected(riga, false);
    } else {
        lstFile.setSelected(riga, true);
        lstFile.setList(riga, rigaLista(riga));
    }
    lstFile.setTag(Numeri::TestoLogico(false));
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
