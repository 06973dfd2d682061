// The port dialog has room for its texts with the usual fonts of desktops.
#include "link/frmImpostaPorta.h"
#include "tests/support/Ritaglio.h"
#include "tests/support/Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

TEST(Spazio, ThePortDialogHasRoomForItsTexts)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        frmImpostaPorta finestra;
        finestra.Mostra();
        EXPECT_THAT(guarda(finestra, u"porta"_s), testing::IsEmpty()) << punti;
    }
}
