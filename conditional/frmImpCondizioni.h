// Edits the condition of the runner's current list, or the default one: five panels, one for each
// field, of which only those that are active go into the condition.
#pragma once

#include "art/Disegni.h"
#include "conditional/Condizione.h"
#include "conditional/Orologio.h"
#include "conditional/TastoTenuto.h"
#include "controls/ArrayControlli.h"
#include "controls/CasellaTesto.h"
#include "controls/Combo.h"
#include "controls/Cornice.h"
#include "controls/Elenco.h"
#include "controls/Finestra.h"
#include "controls/Grafica.h"
#include "controls/Pulsanti.h"

using namespace Qt::StringLiterals;

class frmImpCondizioni : public Finestra
{
    Q_OBJECT

public:
    // The runner's lists: what stands in a row, and the row's condition. The dialog shows and
    // changes the row that is current in lstFile when it is loaded. With the Tag "Predefinita" it
    // changes the default condition instead. On leaving, its Tag is "OK", or empty where nothing
    // was changed.
    frmImpCondizioni(Elenco &lstFile, Elenco &lstCondizioni, const Orologio &orologio);

    Etichetta lblSpiegazione{u"lblSpiegazione"_s, this};

    // A panel's number is that of its field (CampoCondizione). The Tag tells whether it is active.
    ArrayControlli<Cornice> frame;
    ListaImmagini imgCaselle{Disegni::imgCaselle()};
    // Its Tag is true while a change in the panel may switch the panel on.
    ArrayControlli<Immagine> imgCasella;

    Etichetta lblOre{u"lblOre"_s, &frame(CampoOrario), u"Ore"_s};
    CasellaTesto txtOre{u"txtOre"_s, &frame(CampoOrario)};
    SuGiu SuGiuOre{u"SuGiuOre"_s, &frame(CampoOrario), -1, 24, 0};
    Etichetta lblMinuti{u"lblMinuti"_s, &frame(CampoOrario), u"Minuti"_s};
    CasellaTesto txtMinuti{u"txtMinuti"_s, &frame(CampoOrario)};
    SuGiu SuGiuMinuti{u"SuGiuMinuti"_s, &frame(CampoOrario), -1, 60, 0};
    Etichetta lblSecondi{u"lblSecondi"_s, &frame(CampoOrario), u"Secondi"_s};
    CasellaTesto txtSecondi{u"txtSecondi"_s, &frame(CampoOrario)};
    SuGiu SuGiuSecondi{u"SuGiuSecondi"_s, &frame(CampoOrario), -1, 60, 0};

    ArrayControlli<CasellaSpunta> opzSens;
    Combo cbTemperatura{u"cbTemperatura"_s, &frame(CampoTemperatura)};
    Combo cbBattLogica{u"cbBattLogica"_s, &frame(CampoLogica)};
    Combo cbBattMotori{u"cbBattMotori"_s, &frame(CampoMotori)};

    // Decoration.
    Superficie picOptions{u"picOptions"_s, this};
    Cornice fraSample2{u"fraSample2"_s, &picOptions, u"Esempio 2"_s};
    Cornice fraSample3{u"fraSample3"_s, &picOptions, u"Esempio 3"_s};
    Cornice fraSample4{u"fraSample4"_s, &picOptions, u"Esempio 4"_s};

    Pulsante pulOK{u"pulOK"_s, this, u"OK"_s};
    Pulsante pulAnnulla{u"pulAnnulla"_s, this, u"Annulla"_s};

protected:
    void Disegno() override;
    void Load() override;
    void Activate() override;
    void QueryUnload(bool &Cancel, Chiusura UnloadMode) override;

private:
    // A number of the time: its box, its spin bar, and the first number that is too high for it.
    struct Ora
    {
        CasellaTesto &testo;
        SuGiu &barra;
        int fine;
    };

    // The start of lblSpiegazione, to which the list's name is added.
    static constexpr QStringView spiegazione =
        u"Imposta la condizione che si deve verificare per avviare la lista ";
    // Leaves room for the box before a panel's caption, in logical pixels.
    static constexpr int rientroTitolo = 40;

    void disponi();
    void disponiPannelli();
    void disponiOrario();
    void disponiEsempi();
    void disponiAccanto();
    void ordineTasti();
    void collegaEventi();

    void frame_Click(int Index);
    void opzSens_Click();
    void SuGiu_Change(const Ora &ora);
    void txtOra_LostFocus(const Ora &ora);
    void pulOK_Click();
    void pulAnnulla_Click();

    bool attivo(int pannello);
    // Switches a panel on by its Click, where it is off and its controls may do so.
    void attiva(int pannello);
    void mostra(int pannello, bool acceso);
    // The button has the focus while any panel is active, the first control otherwise.
    void abilitaOK();
    void disabilitaOK();

    QString condizioneCorrente() const;
    void mostraOrario(const QString &condizione);
    void mostraSensori(const QString &condizione);
    // A row that is not there counts as a field that is not set.
    void mostraScelta(int pannello, Combo &combo, const QString &condizione, qsizetype cifre,
                      int seNo);
    QString campo(int pannello);
    QString componi();

    Elenco &m_lstFile;
    Elenco &m_lstCondizioni;
    // The row that was current when the dialog was opened: a list that starts meanwhile moves it.
    int m_riga = -1;
    const Orologio &m_orologio;
    TastoTenuto m_tasto;
    const std::array<Ora, 3> m_ore{
        {{txtOre, SuGiuOre, 24}, {txtMinuti, SuGiuMinuti, 60}, {txtSecondi, SuGiuSecondi, 60}}};
};
