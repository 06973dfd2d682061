// The settings in "prog.dat": one file, however its name is spelled. Two fields, parted by the
// first semicolon: whether to connect at the start, and the condition that new projects give to
// every list. Each has its own writer, which keeps the other's field.
#pragma once

#include <QByteArray>
#include <QString>

namespace FileProgDat {

// The file's name in the working directory, in the spelling that is there. If there are several, as
// on a system that tells case apart: the user's own rather than the sample that a first start
// brings, and of several of his own the one written last. The others stay untouched.
QString nome();

// The whole file, and all of it anew. Errors are those of reading and writing a file.
QByteArray leggi();
void scrivi(const QByteArray &impostazione, const QByteArray &condizione);

// What stands before the semicolon. A text without one is both fields at once.
QByteArray impostazione(const QByteArray &testo);
// What stands behind it.
QByteArray condizione(const QByteArray &testo);

// The file's text, made of both.
QByteArray uniti(const QByteArray &impostazione, const QByteArray &condizione);

} // namespace FileProgDat
