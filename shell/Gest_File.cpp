#include "shell/Gest_File.h"

#include "base/Archivio.h"
#include "base/Errore.h"

QByteArray LeggiFile(const QString &nome, quint8 modo)
{
    if (modo > 1)
        return {};
    Archivio::apri(1, nome, Archivio::Modo::Lettura);
    QByteArray contenuto = Archivio::leggi(1, Archivio::lunghezza(1));
    Archivio::chiudi();
    return contenuto;
}

void ScriviFile(const QString &nome, const QByteArray &valore)
{
    Archivio::apri(1, nome, Archivio::Modo::Scrittura);
    try {
        Archivio::stampa(1, valore);
    } catch (const Errore &) {
        // An incomplete file must not replace the old one.
        Archivio::abbandona();
        throw;
    }
    Archivio::chiudi();
}
