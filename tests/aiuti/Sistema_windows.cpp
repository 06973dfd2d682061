// Windows knows no limit for a process' files, and Wine keeps no rights on folders.
#include "Sistema.h"

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

bool permessiContano()
{
    return false;
}
