// Files by number: what is read and written is bytes, in Windows-1252 where it is text.
#pragma once

#include <QByteArray>
#include <QString>

namespace Archivio {

enum class Modo { Lettura, Scrittura };

// A number that is open is Errore::FileGiaAperto, a missing file FileNonTrovato, a missing folder
// PercorsoNonTrovato, no right to it AccessoNegato. A name without a folder means the working
// directory, and one file there whatever the case of its letters, as on Windows.
void apri(int numero, const QString &nome, Modo modo);

// Closes all files. What was written takes the place of the file that was there only now, whole
// (Scrittura says how); if that fails (Errore::DiscoPieno, AccessoNegato) the old file stays as it
// was.
void chiudi();
// Closes all files and drops what was written since they were opened.
void abbandona();

bool fine(int numero);
qsizetype lunghezza(int numero);

// Reading past the end is Errore::FineDelFile.
// One field: leading blanks are skipped, it ends at a comma or at the line's end; a field that
// begins with a double quote runs to the next double quote.
QByteArray leggiCampo(int numero);
// One field as a number; it ends at a blank too.
double leggiNumero(int numero);
// Up to the line's end (CR, LF or both), without it.
QByteArray leggiRiga(int numero);
QByteArray leggi(int numero, qsizetype quanti);

// As it stands, without a line end.
void stampa(int numero, const QByteArray &byte);

} // namespace Archivio
