#include "shell/VisErrori.h"

#include "base/Errore.h"
#include "controls/Finestra.h"
#include "controls/Messaggi.h"

#include <QApplication>
#include <QWidget>

using namespace Qt::StringLiterals;

QString titoloFinestraAttiva()
{
    const QWidget *attiva = QApplication::activeWindow();
    if (!attiva)
        attiva = Finestra::Ultima();
    return attiva ? attiva->windowTitle() : QString();
}

void MostraErrore(const QString &messaggioErrore, const QString &titolo)
{
    passaErrori([&] {
        messaggio(messaggioErrore, Icona::Stop, Pulsanti::OK,
                  titolo.isEmpty() ? titoloFinestraAttiva() + u" - Errore"_s
                                   : u"Errore - "_s + titolo);
    });
}
