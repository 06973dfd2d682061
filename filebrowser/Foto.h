// Reads the photos that the robot has taken.
#pragma once

#include <QPixmap>
#include <QString>

// Whether a file of that name is shown as a photo: the name ends in ".jpg", in small letters.
bool nomeDiFoto(const QString &nome);

// Reads a JPEG file. Throws Errore::ImmagineNonValida if the file is missing, is no JPEG picture,
// or has a side of more than 4096 pixels.
QPixmap leggiFoto(const QString &percorso);

// The photo enlarged in its proportions, so that it fills a place of that size, in logical pixels,
// on a screen with 4 pixels for each logical one. A larger photo stays as it is.
QPixmap ingrandita(const QPixmap &foto, QSize posto);
