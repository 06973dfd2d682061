// Bytes and texts: how tests write them, and how a failed test prints them.
#pragma once

#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <ostream>

inline void PrintTo(const QString &testo, std::ostream *uscita)
{
    *uscita << '"' << testo.toStdString() << '"';
}

inline void PrintTo(const QByteArray &byte, std::ostream *uscita)
{
    *uscita << '[' << byte.toHex(' ').toStdString() << ']';
}

// Bytes from their decimal numbers, 0 to 255.
inline QByteArray b(std::initializer_list<int> numeri)
{
    QByteArray byte;
    for (const int numero : numeri)
        byte.append(static_cast<char>(numero));
    return byte;
}
