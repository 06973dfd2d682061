// The robot's photos.
#pragma once

#include <QPixmap>
#include <QString>

// Whether a file of that name is shown as a photo: the name ends in ".jpg", exactly so.
bool nomeDiFoto(const QString &nome);

// Reads a JPEG file. Errore::ImmagineNonValida where there is none of that name, where its content
// is something else, or where it claims more pixels than any camera of the robot's has.
QPixmap leggiFoto(const QString &percorso);

// The photo so large that it fills a place of that size, in logical pixels, on the finest screen;
// one that is larger already stays as it is. Its proportions stay.
QPixmap ingrandita(const QPixmap &foto, QSize posto);
