// The engine: start and stop, and what telemetry starts. The clock's part is the editor's.
#include "conditional/frmProcessor.h"

#include "conditional/Condizione.h"
#include "controls/Messaggi.h"
#include "movelists/frmEditor.h"

#include <vector>

namespace {

const QString statoAvviato = u"AVVIATO"_s;
const QString titolo = u"Vigilio"_s;

enum Stato { VigilioSpento = 1, VigilioInAttesa };

} // namespace

void frmProcessor::setTag(const QString &tag)
{
    if (tag == statoAvviato)
        m_vigilio.accendi();
    else
        m_vigilio.spegni();
    Finestra::setTag(tag);
}

void frmProcessor::pulAvvia_Click()
{
    if (pulAvvia.azione() == PulsanteAvvia::Azione::Ferma) {
        Stoppa();
        return;
    }
    // An attempt that somebody else has under way may still fail, though the port is open.
    if (m_console.staTentando())
        return;
    const Vigilio::Avvio avvio(m_vigilio);
    if (!avvio.valido())
        return;
    if (!m_console.PortOpen() && !connetti(avvio))
        return;
    // Connecting takes its time, and the user may have been quicker.
    if (!avvio.valido() || inContrasto())
        return;
    if (mnuOpzRiduci.Checked())
        Nascondi();
    m_editor.imgVigilio.setPicture(VigilioInAttesa);
    m_editor.Mostra();
    m_editor.tmrAttivaAut.setEnabled(true);
    pulAvvia.setAzione(PulsanteAvvia::Azione::Ferma, false);
    setTag(statoAvviato);
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

// Whether two lists cannot go together, which is told.
bool frmProcessor::inContrasto() const
{
    struct Scelta
    {
        int riga;
        CondizioneLetta condizione;
    };
    // Only lists that are both selected can clash.
    std::vector<Scelta> scelte;
    for (int i = 0; i < lstFile.ListCount(); ++i) {
        if (lstFile.Selected(i))
            scelte.push_back({i, CondizioneLetta(lstCondizioni.List(i))});
    }
    for (const Scelta &i : scelte) {
        for (const Scelta &j : scelte) {
            if (i.riga == j.riga)
                continue;
            if (const auto perche = i.condizione.contrasto(j.condizione)) {
                messaggio(
                    u"\"%1\" e \"%2\"\n%3"_s.arg(File.List(i.riga), File.List(j.riga), *perche),
                    Icona::Informazione, Pulsanti::OK, titolo);
                return true;
            }
        }
    }
    return false;
}

void frmProcessor::VerificaCondizioni(const QString &testo)
{
    const TelemetriaLetta telemetria(testo);
    for (int i = 0; i < lstCondizioni.ListCount(); ++i) {
        if (lstFile.Selected(i) && telemetria.avvera(lstCondizioni.List(i)))
            m_editor.EseguiLista(static_cast<qint16>(i));
    }
}

void frmProcessor::Stoppa()
{
    m_editor.imgVigilio.setPicture(VigilioSpento);
    m_editor.tmrAttivaAut.setEnabled(false);
    pulAvvia.setAzione(PulsanteAvvia::Azione::Avvia, true);
    setTag({});
}
