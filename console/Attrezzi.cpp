#include "console/Attrezzi.h"

#include "link/ComandiTessaro.h"

using namespace Qt::StringLiterals;

namespace Attrezzi {

Azione ledPosizione(bool acceso)
{
    return {acceso ? u"LED Posizione ON"_s : u"LED Posizione OFF"_s,
            [acceso](ControlloSeriale &COM) { ComandiTessaro::LedPosizione(COM, acceso ? -1 : 0); },
            u"LED di posizione "_s + (acceso ? u"accesi"_s : u"spenti"_s)};
}

Azione tool(Lato lato, bool acceso)
{
    const bool destro = lato == Lato::Destro;
    return {(destro ? u"Tool Destro "_s : u"Tool Sinistro "_s) + (acceso ? u"ON"_s : u"OFF"_s),
            [destro, acceso](ControlloSeriale &COM) {
                ComandiTessaro::Tool(COM, destro ? 1 : 2, acceso);
            },
            nomeTool(lato) + (acceso ? u" acceso"_s : u" spento"_s)};
}

QString nomeTool(Lato lato)
{
    return lato == Lato::Destro ? u"Tool destro"_s : u"Tool sinistro"_s;
}

Azione pinza(bool apri)
{
    return {apri ? u"Pinza Apri"_s : u"Pinza Chiudi"_s,
            [apri](ControlloSeriale &COM) { ComandiTessaro::Pinza(COM, apri); },
            {}};
}

Azione foto()
{
    return {u"Foto"_s, [](ControlloSeriale &COM) { ComandiTessaro::ScattaFoto(COM); },
            u"Tessaro ha scattato una foto!"_s};
}

} // namespace Attrezzi
