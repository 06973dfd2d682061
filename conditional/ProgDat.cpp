#include "ProgDat.h"

#include "CampiProgDat.h"
#include "Codifica.h"
#include "Condizione.h"
#include "Gest_File.h"

using namespace Qt::StringLiterals;

namespace {

const QString nomeFile = u"Prog.dat"_s;

} // namespace

namespace ProgDat {

QString leggiCondizione()
{
    const QString condizione = Codifica::daByte(CampiProgDat::condizione(LeggiFile(nomeFile, 0)));
    return condizione.isEmpty() ? condizionePredefinita.toString() : condizione;
}

void scriviCondizione(const QString &condizione)
{
    const QByteArray impostazione = CampiProgDat::impostazione(LeggiFile(nomeFile, 0));
    ScriviFile(nomeFile, CampiProgDat::uniti(impostazione.isEmpty() ? "1" : impostazione,
                                             Codifica::inByte(condizione)));
}

} // namespace ProgDat
