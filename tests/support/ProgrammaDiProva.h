// A program for lists to start.
#pragma once

#include "tests/support/CartellaDiProva.h"

// A copy of it under that name in the folder: its path. It waits as long as there is a file
// "attendi" in the current folder, and then writes its arguments, one a line, into "esito.txt".
QString programmaDiProva(const CartellaDiProva &cartella, const QString &nome);

// Whether "esito.txt" is there and can be read: on Windows a file that is just being renamed
// cannot.
bool programmaFinito(const CartellaDiProva &cartella);
