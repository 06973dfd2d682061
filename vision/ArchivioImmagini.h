// Reads the file of the stored pictures.
#pragma once

#include <QByteArray>
#include <QString>

// The name of the file, which lies in the working directory.
QString fileImmagini();

// Reads the record at an index, counted from 0. The file is read again at each call, because it may
// have changed. Throws the errors of opening a file, and Errore::FineDelFile if the file has fewer
// records. The file is closed afterwards in any case.
QByteArray leggiRecord(int indice);
