// The Vigilio: which lists take part, under which condition, and the engine that starts them.
#pragma once

#include "conditional/ConsoleVigilio.h"
#include "conditional/ListeVigilio.h"
#include "conditional/PulsanteAvvia.h"
#include "conditional/Vigilio.h"
#include "conditional/frmImpCondizioni.h"
#include "controls/Elenco.h"
#include "controls/ElencoFile.h"
#include "controls/Finestra.h"
#include "controls/FinestraFile.h"
#include "controls/VoceMenu.h"
#include "link/Ascoltatori.h"

class frmEditor;
class Orologio;

// Its Tag is "AVVIATO" while telemetry and the clock start lists.
class frmProcessor : public Finestra, public AscoltatoreTelemetria
{
    Q_OBJECT

public:
    // cartella: the program's folder; its lists are the ones that the window shows.
    frmProcessor(ConsoleVigilio &console, frmEditor &editor, const Orologio &orologio,
                 const QString &cartella);

    bool avviato() const override { return m_vigilio.avviato(); }
    // Runs the lists whose conditions a telemetry text meets, one after the other. A list that
    // cannot be read throws the Errore of ListaMosse::leggi.
    void VerificaCondizioni(const QString &testo) override;
    // Loads the list of that row into the editor and runs it, unless it is running already. Errors
    // are those of ListaMosse::leggi.
    void EseguiLista(qint16 riga);
    void Stoppa();
    // Asks for the condition of the selected row; without one nothing happens.
    void lstFile_DblClick();

    FinestraFile Finestre{u"Finestre"_s, this};

    BarraMenu barraMenu{this};
    QMenu *mnuFile = barraMenu.aggiungi(u"mnuFile"_s, u"File"_s);
    VoceMenu mnuFileNuovo{u"mnuFileNuovo"_s, mnuFile, u"Nuovo"_s};
    VoceMenu mnuFileApri{u"mnuFileApri"_s, mnuFile, u"Apri"_s};
    VoceMenu mnuFileSalva{u"mnuFileSalva"_s, mnuFile, u"Salva"_s};
    VoceMenu mnuFileSalvacome{u"mnuFileSalvacome"_s, mnuFile, u"Salva con nome"_s};
    VoceMenu mnuFileEsci{u"mnuFileEsci"_s, mnuFile, u"Esci"_s};
    QMenu *mnuOpz = barraMenu.aggiungi(u"mnuOpz"_s, u"Opzioni"_s);
    VoceMenu mnuOpzRiduci{u"mnuOpzRiduci"_s, mnuOpz, u"Riduci a icona nel Sequor all'avvio"_s};
    VoceMenu mnuOpzDeselezionaAut{u"mnuOpzDeselezionaAut"_s, mnuOpz,
                                  u"Deseleziona le liste una volta eseguite"_s};
    VoceMenu mnuOpzCondizionePred{u"mnuOpzCondizionePred"_s, mnuOpz,
                                  u"Imposta condizione predefinita"_s};

    // Three parallel lists: what the user sees and ticks, the files, the conditions.
    Elenco lstFile{u"lstFile"_s, this, Elenco::Stile::ConSpunte};
    ElencoFile File;
    Elenco lstCondizioni{u"lstCondizioni"_s, this};
    PulsanteAvvia pulAvvia{u"pulAvvia"_s, this};
    Pulsante pulSalva{u"pulSalva"_s, this, u"Salva"_s};
    Pulsante pulAnnulla{u"pulAnnulla"_s, this, u"Annulla"_s};

    frmImpCondizioni impCondizioni;

    ListeVigilio liste{lstFile, File, lstCondizioni};

protected:
    void Disegno() override;
    void Load() override;
    void Unload(bool &Cancel) override;

private:
    void collegaGestori();
    void collegaEditor();

    bool ChiediSalvataggio();
    void mnuFileNuovo_Click();
    void mnuFileApri_Click();
    void mnuFileSalva_Click();
    void mnuFileSalvacome_Click();
    void mnuOpzCondizionePred_Click();
    void lstFile_Click();
    void lstFile_KeyDown(int &KeyCode);
    void mostraDavanti();
    void chiediCondizione();
    void editorInChiusura(bool &Cancel);
    void corsaComandata();
    void tmrAttivaAut_Timer();
    void mostraFase(Vigilio::Fase fase);
    void pulAvvia_Click();
    // Asks the user, and connects; whether there is a connection now.
    bool connetti(const Vigilio::Avvio &avvio);
    // Whether two selected lists cannot go together; a message says which.
    bool inContrasto() const;

    ConsoleVigilio &m_console;
    frmEditor &m_editor;
    const Orologio &m_orologio;
    QString m_cartella;
    Vigilio m_vigilio;
};
