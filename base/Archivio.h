// Files opened under a number. Contents are bytes; text is Windows-1252. The formats of the
// program's files are in docs/formats.md.
#pragma once

#include <QByteArray>
#include <QString>

namespace Archivio {

enum class Modo { Lettura, Scrittura };

// Throws FileGiaAperto if the number is open already, FileNonTrovato if there is no such file to
// read, PercorsoNonTrovato if its folder is missing, AccessoNegato if the file may not be read or
// written. A name without a folder means the working directory; there the case of the name does not
// matter, as on Windows.
void apri(int numero, const QString &nome, Modo modo);

// Closes all files. Only now what was written replaces the old file, as a whole (see Scrittura). If
// that fails, the old file is kept and DiscoPieno or AccessoNegato is thrown, after all files are
// closed.
void chiudi();
// Closes all files and drops what was written since they were opened.
void abbandona();

// The functions below throw FileNonAperto if the number is not open, and the reading ones
// FineDelFile if the file ends too early.

// True after the last byte was read.
bool fine(int numero);
// Length of a file opened for reading, in bytes.
qsizetype lunghezza(int numero);

// Reads one field: leading blanks are skipped, and it ends at a comma or at the end of the line. A
// field that begins with a double quote ends at the next one; the quotes are left out.
QByteArray leggiCampo(int numero);
// Reads one field as a number, by Numeri::Valore; leading line ends are skipped as well, and a
// blank also ends it.
double leggiNumero(int numero);
// Reads to the end of the line (CR, LF or CR LF) and leaves the line end out.
QByteArray leggiRiga(int numero);
// Reads exactly this number of bytes.
QByteArray leggi(int numero, qsizetype quanti);

// Writes the bytes as they are, without a line end. Throws FileNonAperto if the file was opened for
// reading.
void stampa(int numero, const QByteArray &byte);

} // namespace Archivio
