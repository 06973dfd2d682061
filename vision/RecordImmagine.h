// The record of a stored picture: its name in quotation marks, width, height, and the colours row
// by row, separated by commas. Nothing is escaped: the fields are found by counting the commas from
// the start of the record, so a comma in the name shifts all fields after it.
#pragma once

#include "vision/Matrice.h"

#include <QByteArray>
#include <QString>

// Width and height of a picture in pixels.
struct Misure
{
    double W = 0;
    double H = 0;
};

// The name: the text before the first comma, without its first and last character, which are the
// quotation marks. Empty if there is no comma or nothing remains.
QString nomeImmagine(const QString &record);

// The numbers after the first and the second comma, unchanged: they can be negative or have
// fractions. If a comma is missing, the number at the start of the record is read.
Misure misureImmagine(const QString &record);

// Reads W times H colours into Modello, row by row, starting at the third comma. Of each colour at
// most 8 characters are used, and fractions are cut off. If there are no more commas, the reading
// continues at the start of the record. Throws Matrice::FuoriIntervallo if the picture is larger
// than Modello.
void leggiModello(QByteArrayView record, qint32 W, qint32 H, Matrice &Modello);

// The name with line breaks replaced by blanks, because a line break ends a record.
QByteArray inUnaRiga(QByteArray nome);

// The new text of the file: s and one more record. s: the old text, empty or without a line end
// after its last record. dati: the record without its name.
QByteArray aggiungiRecord(const QByteArray &s, const QByteArray &nome, const QByteArray &dati);
