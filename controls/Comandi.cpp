#include "controls/Comandi.h"

#include "base/Errore.h"
#include "controls/Evento.h"
#include "controls/Messaggi.h"
#include "controls/Temporizzatore.h"

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// An unhandled error is ending the program: no handler runs any more.
bool finisce = false;
std::function<void()> ultimoAtto;

} // namespace

void terminaProgramma(int esito)
{
    std::fflush(nullptr);
    std::_Exit(esito);
}

void impostaUltimoAtto(std::function<void()> atto)
{
    ultimoAtto = std::move(atto);
}

// Nothing else runs while the box is open: a timer tick or an arriving byte would work on the state
// that the error left half changed, and might fail as well.
static void erroreNonGestito(const QString &descrizione)
{
    finisce = true;
    Temporizzatore::fermaTutti();
    messaggio(descrizione + u"\n\nIl programma verrà chiuso."_s, Icona::Stop);
    passaErrori([] {
        if (ultimoAtto)
            ultimoAtto();
    });
    terminaProgramma(1);
}

void eseguiGestore(const std::function<void()> &gestore)
{
    if (finisce)
        return;
    try {
        gestore();
    } catch (const Errore &errore) {
        erroreNonGestito(u"%1 (%2)"_s.arg(errore.descrizione()).arg(errore.numero()));
    } catch (const std::exception &errore) {
        erroreNonGestito(u"Errore imprevisto: %1"_s.arg(QString::fromLocal8Bit(errore.what())));
    }
}
