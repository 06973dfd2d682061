// A clock that shows the time that a test gives it.
#pragma once

#include "conditional/Orologio.h"

class OrologioFermo : public Orologio
{
public:
    QTime adesso() const override { return ora; }
    QTime ora{12, 0, 0};
};
