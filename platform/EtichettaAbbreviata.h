// A label whose text may be longer than its place: it ends in an ellipsis there.
#pragma once

#include "Grafica.h"

class EtichettaAbbreviata : public Etichetta
{
    Q_OBJECT

public:
    using Etichetta::Etichetta;

protected:
    void paintEvent(QPaintEvent *evento) override;
};
