// The record of a stored picture: its name in quotation marks, width, height, and the colours row
// by row, between commas. Nothing is escaped: commas are counted from the record's start, so that
// one in the name shifts all that follows.
#pragma once

#include "vision/Matrice.h"

#include <QByteArray>
#include <QString>

struct Misure
{
    double W = 0;
    double H = 0;
};

// What stands between the quotation marks, as far as the first comma tells; empty where it tells
// nothing.
QString nomeImmagine(const QString &record);

// The numbers behind the first and the second comma, as they stand.
Misure misureImmagine(const QString &record);

// Reads W times H colours into Modello, from the third comma on, of at most 8 characters each.
// Where the commas run out the reading goes on at the record's start. A picture larger than Modello
// is Matrice::FuoriIntervallo.
void leggiModello(QByteArrayView record, qint32 W, qint32 H, Matrice &Modello);

// The name as a record can hold it: line breaks, which end a record, become blanks.
QByteArray inUnaRiga(QByteArray nome);

// The file's new text: s, which is empty or ends in the last record, and one record more. dati is
// the record without its name.
QByteArray aggiungiRecord(const QByteArray &s, const QByteArray &nome, const QByteArray &dati);
