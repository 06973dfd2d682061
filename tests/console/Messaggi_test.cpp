// The recorded messages and their buttons' borders.
#include "tests/console/ConsoleInProva.h"

#include <gmock/gmock.h>

TEST(MessaggiConsole, EverySlotIsPlayedAndRecorded)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (int n = 1; n <= 10; ++n) {
        c.finestra.cbMex.setListIndex(n - 1);
        c.clicca(c.finestra.pulPlayMex);
        c.clicca(c.finestra.pulRegistraMex);
        EXPECT_EQ(c.byteMandati(),
                  b({19, 99, n + 128, 19, 99, n + 128, 19, 99, n + 64, 19, 99, n + 64}));
    }
}

TEST(MessaggiConsole, DeletingAsksFirstAndSendsOnAYes)
{
    RispondiMessaggi messaggi(QMessageBox::Yes);
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.finestra.cbMex.setListIndex(2);
    c.scriviPannello(u"prima"_s);
    c.clicca(c.finestra.pulCancMex);
    ASSERT_EQ(messaggi.visti().size(), 1);
    const MessaggioVisto &visto = messaggi.visti().first();
    EXPECT_EQ(visto.testo, u"Sei sicuro di voler cancellare il messaggio?"_s);
    EXPECT_EQ(visto.icona, QMessageBox::Question);
    EXPECT_EQ(visto.pulsanti, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(c.byteMandati(), b({19, 99, 35}));
    EXPECT_EQ(c.pannello(), u"prima"_s);
}

TEST(MessaggiConsole, ANoSendsNothing)
{
    RispondiMessaggi messaggi(QMessageBox::No);
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.clicca(c.finestra.pulCancMex);
    EXPECT_EQ(messaggi.visti().size(), 1);
    EXPECT_TRUE(c.mandati().isEmpty());
}

TEST(MessaggiConsole, ADeletionThatBecomesALineIsNotAskedFor)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    c.finestra.cbMex.setListIndex(2);
    c.clicca(c.finestra.pulCancMex);
    EXPECT_EQ(c.frmEditor.mosse(), QStringList(u"Mex 3 cancella"_s));
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST(MessaggiConsole, WithoutAConnectionTheConfirmedDeletionSaysSo)
{
    RispondiMessaggi messaggi(QMessageBox::Yes);
    ConsoleInProva c;
    c.mostra();
    messaggi.mentreAperto = [&](QMessageBox &box) {
        messaggi.premi(box.standardButtons() == QMessageBox::Ok ? QMessageBox::Ok
                                                                : QMessageBox::Yes);
    };
    c.clicca(c.finestra.pulCancMex);
    EXPECT_EQ(messaggi.testi(), (QStringList{u"Sei sicuro di voler cancellare il messaggio?"_s,
                                             u"Non sono collegato al robot"_s}));
}

TEST(MessaggiConsole, AButtonHasItsBorderWhileTheMouseIsWellInside)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    for (Immagine *pulsante : {&f.pulPlayMex, &f.pulRegistraMex, &f.pulStopMex, &f.pulCancMex}) {
        SCOPED_TRACE(pulsante->objectName().toStdString());
        EXPECT_EQ(pulsante->BorderStyle(), 0);
        const int fondo = pulsante->width() - 1;
        c.muovi(*pulsante, QPoint(3, 10)); // 45 units
        EXPECT_EQ(pulsante->BorderStyle(), 0);
        c.muovi(*pulsante, QPoint(4, 10)); // 60 units
        EXPECT_EQ(pulsante->BorderStyle(), 1);
        c.muovi(*pulsante, QPoint(fondo, 10));
        EXPECT_EQ(pulsante->BorderStyle(), 0);
        c.muovi(*pulsante, QPoint(10, 4));
        EXPECT_EQ(pulsante->BorderStyle(), 1);
        c.muovi(*pulsante, QPoint(10, 2));
        EXPECT_EQ(pulsante->BorderStyle(), 0);
        // Nothing but its own mouse moves take the border away.
        c.muovi(*pulsante);
        c.muovi(f.Label6);
        EXPECT_EQ(pulsante->BorderStyle(), 1);
    }
}

TEST(MessaggiConsole, TheirFrameIsWhole)
{
    ConsoleInProva c;
    c.mostra();
    const QImage cornice = c.finestra.corMex.grab().toImage();
    const QImage specchiata = cornice.mirrored(true, false);
    // The title stands at its upper left corner, which must look like the right one.
    int massima = 0;
    for (int y = 0; y < 7; ++y) {
        for (int x = 0; x < 7; ++x)
            massima =
                qMax(massima, qAbs(qGray(cornice.pixel(x, y)) - qGray(specchiata.pixel(x, y))));
    }
    EXPECT_LT(massima, 30);
}

TEST(MessaggiConsole, EveryInternalProgramIsStartedAndStopped)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (int n = 1; n <= 10; ++n) {
        c.finestra.cbProgrammi.setListIndex(n - 1);
        c.clicca(c.finestra.imgPlayProg);
        EXPECT_EQ(c.pannello(), u"Programma interno del ROBOT avviato."_s);
        c.clicca(c.finestra.imgStopProg);
        EXPECT_EQ(c.pannello(), u"Programma interno del ROBOT arrestato."_s);
        EXPECT_EQ(c.byteMandati(), b({19, 2, n * 4 - 3, 19, 2, 0}));
    }
}
