// Who copies the selection for the naming dialog.
#pragma once

#include "Matrice.h"

class Acquisitore
{
public:
    virtual ~Acquisitore() = default;
    // Copies a slice: of the area given, in pixels of the frame, or, where the table has the marker
    // Acquisizione::Prosegui at (1, 1), of the area begun before.
    virtual void AcquisisciImmagine(const Matrice &matrice, quint8 left, quint8 top, quint8 width,
                                    quint8 height) = 0;
};
