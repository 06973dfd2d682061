// The two fields of "prog.dat", parted by the first semicolon: whether to connect at the start, and
// the condition that new projects give to every list. Each has its own writer, which keeps the
// other's field.
#pragma once

#include <QByteArray>

namespace CampiProgDat {

// What stands before the semicolon. A text without one is both fields at once.
QByteArray impostazione(const QByteArray &testo);
// What stands behind it.
QByteArray condizione(const QByteArray &testo);

// The file's text, made of both.
QByteArray uniti(const QByteArray &impostazione, const QByteArray &condizione);

} // namespace CampiProgDat
