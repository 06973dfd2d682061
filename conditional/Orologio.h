// The time of day, which a test can hold still.
#pragma once

#include <QTime>

class Orologio
{
public:
    virtual ~Orologio() = default;
    virtual QTime adesso() const = 0;
};

// The machine's local time.
class OrologioVero : public Orologio
{
public:
    QTime adesso() const override { return QTime::currentTime(); }
};
