#include "vision/ArchivioImmagini.h"

#include "base/Archivio.h"
#include "base/Errore.h"

QString fileImmagini()
{
    return QStringLiteral("Immagini.dat");
}

QByteArray leggiRecord(int indice)
{
    Archivio::apri(1, fileImmagini(), Archivio::Modo::Lettura);
    try {
        QByteArray record;
        for (int riga = 0; riga <= indice; ++riga)
            record = Archivio::leggiRiga(1);
        Archivio::chiudi();
        return record;
    } catch (const Errore &) {
        // A number left open would refuse every file of the program from now on.
        Archivio::abbandona();
        throw;
    }
}
