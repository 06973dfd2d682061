// Windows has no limit for the files of a process and allows links only with a special right; Wine
// does not enforce permissions of folders.
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
    return false; // here QFile::link makes a shell shortcut
}

bool virgoletteNeiNomi()
{
    return false;
}

bool permessiContano()
{
    return false;
}
