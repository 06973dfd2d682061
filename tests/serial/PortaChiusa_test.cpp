// A closed port, the same on every system.
#include "serial/PortaAsio.h"
#include "tests/support/Controlli.h"

TEST(PortaAsio, WhenClosedItReadsNothingAndCanBeClosedAgain)
{
    PortaAsio porta;
    porta.chiudi();
    EXPECT_EQ(porta.leggi(10), "");
    EXPECT_EQ(erroreDi([&] { porta.scrivi("x"); }), Errore::LineaPersa);
    porta.sorveglia(true);
    porta.chiudi();
    EXPECT_FALSE(porta.aperta());
}
