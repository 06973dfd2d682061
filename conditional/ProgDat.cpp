#include "conditional/ProgDat.h"

#include "base/Codifica.h"
#include "conditional/Condizione.h"
#include "shell/FileProgDat.h"

namespace ProgDat {

QString leggiCondizione()
{
    const QString condizione = Codifica::daByte(FileProgDat::condizione(FileProgDat::leggi()));
    return condizione.isEmpty() ? condizionePredefinita.toString() : condizione;
}

void scriviCondizione(const QString &condizione)
{
    const QByteArray impostazione = FileProgDat::impostazione(FileProgDat::leggi());
    FileProgDat::scrivi(impostazione.isEmpty() ? "1" : impostazione, Codifica::inByte(condizione));
}

} // namespace ProgDat
