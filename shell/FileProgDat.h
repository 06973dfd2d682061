// The settings in "prog.dat" (docs/formats.md), whatever the case of the file's name. Two fields,
// separated by the first semicolon: whether to connect at the start, and the condition that each
// list gets in a new project. Two windows write one field each and keep the other.
#pragma once

#include <QByteArray>
#include <QString>

namespace FileProgDat {

// The file's name in the working directory, as it is spelled there; "prog.dat" if there is none. On
// a case-sensitive system there may be several: then a file that the user has changed is preferred
// to the sample that the first start copies, and of several changed ones the newest. The others are
// not touched.
QString nome();

// Reads the whole file, or writes it. Throws what LeggiFile and ScriviFile throw.
QByteArray leggi();
void scrivi(const QByteArray &impostazione, const QByteArray &condizione);

// The field before the semicolon. Without a semicolon the whole text is both fields.
QByteArray impostazione(const QByteArray &testo);
// The field after the first semicolon.
QByteArray condizione(const QByteArray &testo);

// The text of the file, with both fields.
QByteArray uniti(const QByteArray &impostazione, const QByteArray &condizione);

} // namespace FileProgDat
