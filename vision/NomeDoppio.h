// Checks whether a name is already used by a stored picture.
#pragma once

#include <QByteArray>

// s: the text of the file; nome: the new name, not empty. Returns true if the text after one of the
// examined quotation marks begins with nome. The first quotation mark is examined; from there the
// search jumps to where the name would end if it were as long as nome, and examines the next
// quotation mark after that place, and so on. So "Pal" is a duplicate of "Pallone", and a stored
// name can be skipped.
bool nomeDoppio(const QByteArray &s, const QByteArray &nome);
