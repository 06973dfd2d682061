// Starting a program that a list names.
#pragma once

#include <QString>
#include <QStringList>

// The program and its arguments: the whole text is the program if there is such a file, else it is
// a command line, its first word or what stands between its first quotes being the program. Empty
// for an empty text. A name without a folder means the program's folder first, cartella, and then
// the system's own search.
QStringList programmaEArgomenti(const QString &testo, const QString &cartella);

// Starts it in a normal window without the focus, by no shell, and does not wait for it. False if
// it cannot be started.
bool avviaProgramma(const QString &testo, const QString &cartella);
