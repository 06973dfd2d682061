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
        // If the file number stayed open, no file of the program could be opened any more.
        Archivio::abbandona();
        throw;
    }
}
