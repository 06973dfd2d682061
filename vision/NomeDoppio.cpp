#include "vision/NomeDoppio.h"

bool nomeDoppio(const QByteArray &s, const QByteArray &nome)
{
    // Positions count from 1; 0 is no quotation mark, and then the text's start is compared.
    qsizetype p = s.indexOf('"') + 1;
    do {
        if (QByteArrayView(s).sliced(qMin(p, s.size())).startsWith(nome))
            return true;
        p = s.indexOf('"', p + nome.size() + 1) + 1;
    } while (p != 0);
    return false;
}
