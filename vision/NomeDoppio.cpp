#include "vision/NomeDoppio.h"

bool nomeDoppio(const QByteArray &s, const QByteArray &nome)
{
    // p is the offset of the character after a quotation mark. If there is no quotation mark p is
    // 0, and the start of the text is compared.
    qsizetype p = s.indexOf('"') + 1;
    do {
        if (QByteArrayView(s).sliced(qMin(p, s.size())).startsWith(nome))
            return true;
        p = s.indexOf('"', p + nome.size() + 1) + 1;
    } while (p != 0);
    return false;
}
