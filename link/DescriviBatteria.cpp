#include "link/DescriviBatteria.h"

#include <array>

using namespace Qt::StringLiterals;

int LivelloBatteria(quint8 b)
{
    if (b <= 50)
        return 0;
    if (b <= 100)
        return 1;
    if (b <= 150)
        return 2;
    return b <= 200 ? 3 : 4;
}

QString DescriviBatteria(quint8 b)
{
    static const std::array<QString, 5> parole = {u"(Scarichissima)"_s, u"(Scarica)"_s,
                                                  u"(Media)"_s, u"(Carica)"_s, u"(Carichissima)"_s};
    return parole[static_cast<size_t>(LivelloBatteria(b))];
}
