#include "controls/UnaRiga.h"

namespace {

bool rottura(QChar c)
{
    switch (c.unicode()) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case 0x85:
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

} // namespace

QValidator::State UnaRiga::validate(QString &testo, int &cursore) const
{
    for (qsizetype i = testo.size() - 1; i >= 0; --i) {
        if (!rottura(testo[i]))
            continue;
        // CR LF is one line break.
        if (testo[i] == u'\n' && i > 0 && testo[i - 1] == u'\r') {
            testo.remove(i, 1);
            if (cursore > i)
                --cursore;
        } else {
            testo[i] = u' ';
        }
    }
    return Acceptable;
}
