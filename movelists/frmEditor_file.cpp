// The file commands, and what they ask.
#include "movelists/frmEditor.h"

#include "base/Archivio.h"
#include "base/Cartella.h"
#include "movelists/FileMosse.h"
#include "shell/Gest_File.h"
#include "movelists/ListaMosse.h"
#include "controls/Messaggi.h"
#include "base/Numeri.h"
#include "shell/VisErrori.h"

#include <QDir>

namespace {

const QString filtroMosse = u"Mosse|*.sqm"_s;
const QString filtroProgrammi = u"Applicazioni|*.exe"_s;

} // namespace

// True where the user cancels.
bool frmEditor::ChiediSalvataggio()
{
    if (Numeri::Logico(lstMosse.Tag()) || ListaVuota(false))
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
    if (lstMosse.ListCount() > 0)
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
        if (tmrEseguiMosse.Enabled())
            pulEsegui_Click();
        lblFile.setCaption({});
        Finestre.setFileName({});
        lstMosse.Clear();
        lstMosse.setTag(Numeri::TestoLogico(true));
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
    if (tmrEseguiMosse.Enabled())
        pulEsegui_Click();
    lstMosse.Clear();
    // A failure leaves the file open: the next one to use its number is told so.
    Archivio::apri(1, percorso, Archivio::Modo::Lettura);
    ListaMosse lista(lstMosse);
    FileMosse::leggi(1, [&lista](const QString &riga) { lista.accoda(riga); });
    Archivio::chiudi();
    lblFile.setCaption(nomeDelFile(percorso));
    lstMosse.setTag(Numeri::TestoLogico(true));
}

void frmEditor::mnuFileSalva_Click()
{
    if (ListaVuota(true))
        return;
    if (Finestre.FileName().isEmpty()) {
        mnuFileSalvacome_Click();
        return;
    }
    QStringList righe;
    for (int i = 0; i < lstMosse.ListCount(); ++i)
        righe += lstMosse.List(i);
    // No failure is told; a file that cannot be written whole stays as it was.
    if (!passaErrori([&] { ScriviFile(Finestre.FileName(), FileMosse::scritto(righe)); }))
        Archivio::abbandona();
    lblFile.setCaption(nomeDelFile(Finestre.FileName()));
    lstMosse.setTag(Numeri::TestoLogico(true));
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
            m_console.AggiungiMossa(u"Programma "_s +
                                    QDir::toNativeSeparators(Finestre.FileName()));
        Finestre.setFileName(prima);
    });
}
