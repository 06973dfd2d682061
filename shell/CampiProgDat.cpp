#include "CampiProgDat.h"

namespace CampiProgDat {

QByteArray impostazione(const QByteArray &testo)
{
    const qsizetype posto = testo.indexOf(';');
    return posto < 0 ? testo : testo.first(posto);
}

QByteArray condizione(const QByteArray &testo)
{
    // Nothing found is -1, and what stands behind it is the whole text.
    return testo.sliced(testo.indexOf(';') + 1);
}

QByteArray uniti(const QByteArray &impostazione, const QByteArray &condizione)
{
    return impostazione + ';' + condizione;
}

} // namespace CampiProgDat
