// Windows knows no limit for a process' files and asks for a right to make links; Wine keeps no
// rights on folders.
#include "tests/support/Sistema.h"

struct DiscoPieno::Prima
{
};

bool DiscoPieno::possibile()
{
    return false;
}

DiscoPieno::DiscoPieno(qsizetype) {}

DiscoPieno::~DiscoPieno() = default;

bool SenzaDiritti::possibile()
{
    return false;
}

SenzaDiritti::SenzaDiritti(const QString &cartella) : m_cartella(cartella) {}

SenzaDiritti::~SenzaDiritti() = default;

bool mettiIlleggibile(const QString &)
{
    return false;
}

bool collega(const QString &, const QString &)
{
    return false; // Qt's links are shell shortcuts here
}

bool virgoletteNeiNomi()
{
    return false;
}

bool permessiContano()
{
    return false;
}
