// The Vigilio: which lists take part, under which condition, and the engine that starts them.
#pragma once

#include "link/Ascoltatori.h"
#include "conditional/ConsoleVigilio.h"
#include "controls/Elenco.h"
#include "controls/ElencoFile.h"
#include "controls/Finestra.h"
#include "controls/FinestraFile.h"
#include "conditional/Progetto.h"
#include "conditional/PulsanteAvvia.h"
#include "movelists/Vicini.h"
#include "conditional/Vigilio.h"
#include "controls/VoceMenu.h"
#include "conditional/frmImpCondizioni.h"

using namespace Qt::StringLiterals;

class frmEditor;
class QBoxLayout;

// Its Tag is "AVVIATO" while telemetry and the clock start lists.
class frmProcessor : public Finestra, public AscoltatoreTelemetria
{
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)

public:
    // cartella: the program's folder, whose lists there are.
    frmProcessor(ConsoleVigilio &console, frmEditor &editor, const Orologio &orologio,
                 const QString &cartella);

    bool avviato() const override { return m_vigilio.avviato(); }
    // "AVVIATO" switches the Vigilio on as far as telemetry goes, any other text switches it off.
    void setTag(const QString &tag);
    // Runs the lists whose conditions a telemetry text meets, one after the other. A list that
    // cannot be read is the caller's Errore.
    void VerificaCondizioni(const QString &testo) override;
    void Stoppa();
    // Asks for the condition of the line that is chosen; without one nothing happens.
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

    // Three parallel lists: what the user sees and ticks, the files, the conditions. The Tag of the
    // first tells whether there is nothing to save.
    Elenco lstFile{u"lstFile"_s, this, Elenco::Stile::ConSpunte};
    ElencoFile File;
    Elenco lstCondizioni{u"lstCondizioni"_s, this};
    PulsanteAvvia pulAvvia{u"pulAvvia"_s, this};
    Pulsante pulSalva{u"pulSalva"_s, this, u"Salva"_s};
    Pulsante pulAnnulla{u"pulAnnulla"_s, this, u"Annulla"_s};

    frmImpCondizioni impCondizioni;

protected:
    void Disegno() override;
    void Load() override;
    void Unload(bool &Cancel) override;

private:
    // How the window looks.
    void disponi();
    void collegaGestori();

    bool ChiediSalvataggio();
    void mnuFileNuovo_Click();
    void mnuFileApri_Click();
    void mnuFileSalva_Click();
    void mnuFileSalvacome_Click();
    void mnuOpzCondizionePred_Click();
    void lstFile_Click();
    void lstFile_KeyDown(int &KeyCode);
    void riempi();
    void scriviProgetto() const;
    void leggiProgetto();
    QList<Progetto::Lista> liste() const;
    QString rigaLista(int riga) const;

    // The engine.
    void pulAvvia_Click();
    // Asks the user, and connects; whether there is a connection now.
    bool connetti(const Vigilio::Avvio &avvio);
    bool inContrasto() const;

    ConsoleVigilio &m_console;
    frmEditor &m_editor;
    QString m_cartella;
    Vigilio m_vigilio;
    // Whether the default condition could be read: without it the lists stay empty, and say nothing
    // about a project.
    bool m_riempite = false;
};
