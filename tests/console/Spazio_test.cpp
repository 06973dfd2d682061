// The console has room for its texts with every desktop's font, in all that it shows.
#include "console/Parlato.h"
#include "tests/console/TutteLeAzioni.h"
#include "tests/support/Ritaglio.h"

#include <gmock/gmock.h>

using testing::IsEmpty;

TEST(Spazio, TheConsoleHasItInAllItsModes)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        ConsoleInProva c;
        c.mostra();
        EXPECT_THAT(guarda(c.finestra, u"console"_s), IsEmpty()) << punti;
        c.finestra.opzBraccia.setValue(true);
        EXPECT_THAT(guarda(c.finestra, u"console-braccia"_s), IsEmpty()) << punti;
        c.finestra.opzTesta.setValue(true);
        EXPECT_THAT(guarda(c.finestra, u"console-testa"_s), IsEmpty()) << punti;
    }
}

TEST(Spazio, TheConsoleHasItConnectedWithItsListsOpen)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        ConsoleInProva c;
        ASSERT_TRUE(c.mostraCollegata());
        c.finestra.lblTemperatura.setCaption(u"127°"_s);
        for (Forma *segno : {&c.finestra.shpUltrasuoniDx, &c.finestra.shpUltrasuoniCe,
                             &c.finestra.shpUltrasuoniSx})
            segno->show();
        for (const bool accendi : {true, false}) {
            apriComparsa(c, true, accendi);
            EXPECT_THAT(guarda(c.finestra, accendi ? u"console-accendi"_s : u"console-spegni"_s),
                        IsEmpty())
                << punti;
            // The whole list is seen.
            const Elenco &lista = accendi ? c.finestra.mnuComparsaOn : c.finestra.mnuComparsaOff;
            EXPECT_GE(lista.viewport()->height(), 4 * lista.sizeHintForRow(0));
            EXPECT_GE(lista.viewport()->width(), lista.sizeHintForColumn(0));
            c.clicca(c.finestra.ImgTesta, Qt::LeftButton, QPoint(8, 80));
        }
    }
}
