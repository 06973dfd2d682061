// A label whose text may be longer than its place: it ends in an ellipsis there.
#pragma once

#include "controls/Grafica.h"

class EtichettaAbbreviata : public Etichetta
{
    Q_OBJECT

public:
    using Etichetta::Etichetta;

protected:
    void paintEvent(QPaintEvent *evento) override;
};
