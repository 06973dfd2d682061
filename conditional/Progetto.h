// The project file, ".vgp": which lists take part, and under which condition.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>

namespace Progetto {

struct Lista
{
    QString nome; // of the file, without a folder
    bool selezionata = false;
    QString condizione;

    bool operator==(const Lista &) const = default;
};

// The file's bytes: the count between two blanks, then a record for each list; CR LF behind each.
// Quotes inside a text stand as they are; a character that Windows-1252 lacks becomes "?".
QByteArray scritto(const QList<Lista> &liste);

// Gives away one record after the other, as many as the count says; what stands behind them is
// nobody's. A record that lacks its end is Errore::FineDelFile, one that lacks a comma, or whose
// flag is no truth value, Errore::TipoNonCorrispondente; the records before it have been given away
// by then. A count beyond 32 bits is Errore::Overflow.
void leggi(const QByteArray &file, const std::function<void(const Lista &)> &aggiungi);

} // namespace Progetto
