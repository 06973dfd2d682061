// Phrases, sounds, recorded messages, internal programs.
#include "Messaggi.h"
#include "Numeri.h"
#include "Voce.h"
#include "frmPrincipale.h"

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
    casella(txtValFrase, SuGiu1, Voce::nomeFrase);
    casella(txtValSuono, SuGiu2, Voce::nomeSuono);
    pulFrase.Click.collega(this, &frmPrincipale::pulFrase_Click);
    pulSuono.Click.collega(this, &frmPrincipale::pulSuono_Click);

    pulPlayMex.Click.collega([this] { mandaOInserisci(Voce::suonaMessaggio(cbMex.Text())); });
    pulRegistraMex.Click.collega(
        [this] { mandaOInserisci(Voce::registraMessaggio(cbMex.Text())); });
    pulStopMex.Click.collega([this] { mandaOInserisci(Voce::fermaMessaggio()); });
    pulCancMex.Click.collega(this, &frmPrincipale::pulCancMex_Click);
    for (Immagine *pulsante : {&pulPlayMex, &pulRegistraMex, &pulStopMex, &pulCancMex}) {
        pulsante->MouseMove.collega([pulsante](int, int, double X, double Y) {
            pulsante->setBorderStyle(Voce::bordo(X, Y, pulsante->Width(), pulsante->Height()));
        });
    }

    imgPlayProg.Click.collega(
        [this] { mandaOInserisci(Voce::avviaProgramma(cbProgrammi.Text())); });
    imgStopProg.Click.collega([this] { mandaOInserisci(Voce::fermaProgramma()); });
}

void frmPrincipale::lasciaNumero(CasellaTesto &testo, ::SuGiu &suGiu)
{
    testo.setText(Voce::limitato(testo.Text(), suGiu.Max()));
    suGiu.setValue(Numeri::Intero(testo.Text()));
}

void frmPrincipale::pulFrase_Click()
{
    // The box that loses the focus puts its number right before it is read.
    ImgTesta.SetFocus();
    mandaOInserisci(Voce::frase(txtValFrase.Text()));
}

void frmPrincipale::pulSuono_Click()
{
    ImgTesta.SetFocus();
    mandaOInserisci(Voce::suono(txtValSuono.Text()));
}

void frmPrincipale::pulCancMex_Click()
{
    const Azione cancella = Voce::cancellaMessaggio(cbMex.Text());
    if (ListaAttiva())
        AggiungiMossa(cancella.riga);
    else if (messaggio(u"Sei sicuro di voler cancellare il messaggio?"_s, Icona::Domanda,
                       Pulsanti::SiNo) == Risposta::Si)
        cancella.comando(COM);
}
