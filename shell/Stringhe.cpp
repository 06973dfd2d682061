#include "shell/Stringhe.h"

#include "controls/Comandi.h"
#include "controls/Messaggi.h"
#include "shell/VisErrori.h"

using namespace Qt::StringLiterals;

qint32 InStrDx(const QString &testo, const QString &lettera, bool avvisa)
{
    for (qsizetype i = 1; i <= testo.size(); ++i) {
        if (testo.last(i).left(lettera.size()) == lettera)
            return static_cast<qint32>(i);
    }
    if (avvisa) {
        messaggio(u"La lettera non è stata trovata all'interno della stringa"_s, Icona::Stop,
                  Pulsanti::OK, titoloFinestraAttiva() + u" - Istruzione: InStrDx"_s);
        terminaProgramma(1);
    }
    return 0;
}
