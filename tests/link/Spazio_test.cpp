// The port's question has room for its texts with every desktop's font.
#include "tests/support/Ritaglio.h"
#include "tests/support/Scritte.h"
#include "link/frmImpostaPorta.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

TEST(Spazio, ThePortsQuestionHasIt)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        frmImpostaPorta finestra;
        finestra.Mostra();
        EXPECT_THAT(guarda(finestra, u"porta"_s), testing::IsEmpty()) << punti;
    }
}
