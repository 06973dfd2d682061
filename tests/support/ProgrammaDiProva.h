// A program that move lists start in tests.
#pragma once

#include "tests/support/CartellaDiProva.h"

// Copies the program under this name into the folder and returns its path. It waits while there is
// a file "attendi" in the current folder, then writes its arguments, one a line, into "esito.txt".
QString programmaDiProva(const CartellaDiProva &cartella, const QString &nome);

// True if "esito.txt" exists and can be read; on Windows it cannot while it is being renamed.
bool programmaFinito(const CartellaDiProva &cartella);
