// Message boxes and file dialogs have room for their texts with the usual fonts of desktops.
#include "controls/FinestraFile.h"
#include "controls/Italiano.h"
#include "controls/Messaggi.h"
#include "tests/support/Controlli.h"
#include "tests/support/Modali.h"
#include "tests/support/Ritaglio.h"

#include <QFileDialog>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

using testing::IsEmpty;

TEST(Spazio, MessageBoxesHaveRoomForTheirTextsWithEveryIcon)
{
    installaItaliano(*qApp);
    const struct
    {
        QString nome;
        QString testo;
        Icona icona;
        Pulsanti pulsanti;
    } casi[] = {
        {u"nessuna"_s, u"Collegamento non riuscito!"_s, Icona::Nessuna, Pulsanti::OK},
        {u"informazione"_s,
         u"I file del ROBOT si possono vedere solo se si è collegati ad Tessaro"_s,
         Icona::Informazione, Pulsanti::OK},
        {u"domanda"_s, u"Vuoi salvare la lista?"_s, Icona::Domanda, Pulsanti::SiNoAnnulla},
        {u"stop"_s, u"La lettera non è stata trovata all'interno della stringa"_s, Icona::Stop,
         Pulsanti::OK},
    };
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        for (const auto &caso : casi) {
            RispondiMessaggi risposte;
            int visti = 0;
            risposte.mentreAperto = [&](QMessageBox &box) {
                ++visti;
                EXPECT_THAT(guarda(box, u"messaggio-"_s + caso.nome), IsEmpty()) << punti;
            };
            messaggio(caso.testo, caso.icona, caso.pulsanti);
            EXPECT_EQ(visti, 1);
        }
    }
}

TEST(Spazio, FileDialogsHaveRoomForTheirTexts)
{
    installaItaliano(*qApp);
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        QWidget finestra;
        finestra.show();
        FinestraFile finestre(u"Finestre"_s, &finestra);
        finestre.setFilter(u"Liste|*.sqm"_s);
        int visti = 0;
        for (const bool apre : {true, false}) {
            QTimer utente;
            QObject::connect(&utente, &QTimer::timeout, &utente, [&] {
                auto *dialogo = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
                if (!dialogo || !dialogo->isVisible())
                    return;
                ++visti;
                utente.stop();
                EXPECT_THAT(guarda(*dialogo, apre ? u"dialogo-apri"_s : u"dialogo-salva"_s),
                            IsEmpty())
                    << punti;
                dialogo->reject();
            });
            utente.start(1);
            passaErrori([&] { apre ? finestre.ShowOpen() : finestre.ShowSave(); });
        }
        EXPECT_EQ(visti, 2);
    }
}
