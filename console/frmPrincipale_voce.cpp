// Phrases, sounds, recorded messages, internal programs.
#include "base/Numeri.h"
#include "console/Parlato.h"
#include "console/frmPrincipale.h"
#include "controls/Messaggi.h"

void frmPrincipale::collegaVoce()
{
    const auto casella = [this](CasellaTesto &testo, ::SuGiu &suGiu, auto &&nome) {
        const auto mostraNome = [this, &testo, nome] {
            BarraStato.setPanels(3, nome(testo.Text()));
        };
        testo.Change.collega(mostraNome);
        testo.Click.collega(mostraNome);
        testo.KeyPress.collega(soloCifre);
        testo.LostFocus.collega([&testo, &suGiu] { lasciaNumero(testo, suGiu); });
        suGiu.Change.collega([&testo, &suGiu] { testo.setText(QString::number(suGiu.Value())); });
    };
    casella(txtValFrase, SuGiu1, Parlato::nomeFrase);
    casella(txtValSuono, SuGiu2, Parlato::nomeSuono);
    pulFrase.Click.collega(this, &frmPrincipale::pulFrase_Click);
    pulSuono.Click.collega(this, &frmPrincipale::pulSuono_Click);

    pulPlayMex.Click.collega([this] { mandaOInserisci(Parlato::suonaMessaggio(cbMex.Text())); });
    pulRegistraMex.Click.collega(
        [this] { mandaOInserisci(Parlato::registraMessaggio(cbMex.Text())); });
    pulStopMex.Click.collega([this] { mandaOInserisci(Parlato::fermaMessaggio()); });
    pulCancMex.Click.collega(this, &frmPrincipale::pulCancMex_Click);
    for (Immagine *pulsante : {&pulPlayMex, &pulRegistraMex, &pulStopMex, &pulCancMex}) {
        pulsante->MouseMove.collega([pulsante](int, int, double X, double Y) {
            pulsante->setBorderStyle(Parlato::bordo(X, Y, pulsante->Width(), pulsante->Height()));
        });
    }

    imgPlayProg.Click.collega(
        [this] { mandaOInserisci(Parlato::avviaProgramma(cbProgrammi.Text())); });
    imgStopProg.Click.collega([this] { mandaOInserisci(Parlato::fermaProgramma()); });
}

void frmPrincipale::lasciaNumero(CasellaTesto &testo, ::SuGiu &suGiu)
{
    testo.setText(Parlato::limitato(testo.Text(), suGiu.Max()));
    suGiu.setValue(Numeri::Intero(testo.Text()));
}

void frmPrincipale::pulFrase_Click()
{
    // The box that loses the focus puts its number right before it is read.
    ImgTesta.SetFocus();
    mandaOInserisci(Parlato::frase(txtValFrase.Text()));
}

void frmPrincipale::pulSuono_Click()
{
    ImgTesta.SetFocus();
    mandaOInserisci(Parlato::suono(txtValSuono.Text()));
}

void frmPrincipale::pulCancMex_Click()
{
    const Azione cancella = Parlato::cancellaMessaggio(cbMex.Text());
    if (ListaAttiva())
        AggiungiMossa(cancella.riga);
    else if (messaggio(u"Sei sicuro di voler cancellare il messaggio?"_s, Icona::Domanda,
                       Pulsanti::SiNo) == Risposta::Si)
        cancella.comando(COM);
}
