#include "Comandi.h"

#include "Errore.h"
#include "Evento.h"
#include "Messaggi.h"

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

void terminaProgramma(int esito)
{
    std::fflush(nullptr);
    std::_Exit(esito);
}

static void erroreNonGestito(const QString &descrizione)
{
    messaggio(descrizione + u"\n\nIl programma verrà chiuso."_s, Icona::Stop);
    terminaProgramma(1);
}

void eseguiGestore(const std::function<void()> &gestore)
{
    try {
        gestore();
    } catch (const Errore &errore) {
        erroreNonGestito(u"%1 (%2)"_s.arg(errore.descrizione()).arg(errore.numero()));
    } catch (const std::exception &errore) {
        erroreNonGestito(u"Errore imprevisto: %1"_s.arg(QString::fromLocal8Bit(errore.what())));
    }
}
