// Starting a program that a list names.
#pragma once

#include <QString>
#include <QStringList>

// The program and its arguments: the whole text is the program where there is such a file, else a
// command line, its first word or what stands between its first quotes being the program. Empty
// for an empty text.
QStringList programmaEArgomenti(const QString &testo);

// Starts it in a normal window without the focus, by no shell, and does not wait for it. False
// where it cannot be started.
bool avviaProgramma(const QString &testo);
