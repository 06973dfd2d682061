// Reading and writing whole files.
#pragma once

#include <QByteArray>
#include <QString>

// Returns the bytes of a file and closes all files. modo: 0 text, 1 binary, with the same result;
// any other modo opens nothing and returns an empty text. Throws what Archivio::apri throws.
QByteArray LeggiFile(const QString &nome, quint8 modo);

// Replaces the contents of a file by valore, without a line end, and closes all files. Throws what
// Archivio::apri and chiudi throw; the old file is kept then.
void ScriviFile(const QString &nome, const QByteArray &valore);
