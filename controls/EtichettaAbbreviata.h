// A label that shortens a text that is too long for it, with an ellipsis at the end.
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
