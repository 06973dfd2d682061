// The file of the stored pictures.
#pragma once

#include <QByteArray>
#include <QString>

// In the working directory.
QString fileImmagini();

// The record at an index from 0, read anew each time. Errors are those of opening a file, and
// Errore::FineDelFile where it has fewer records; the file is closed in any case.
QByteArray leggiRecord(int indice);
