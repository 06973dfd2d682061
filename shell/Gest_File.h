// Whole files, read and written at once.
#pragma once

#include <QByteArray>
#include <QString>

// modo 0 opens the file as text, 1 as binary; any other modo gives an empty text and opens nothing.
// Gives the file's bytes and closes all files. Errors are those of opening a file.
QByteArray LeggiFile(const QString &nome, quint8 modo);

// Replaces what the file held by valore, with no line end, and closes all files. Where that fails
// the old file stays whole.
void ScriviFile(const QString &nome, const QByteArray &valore);
