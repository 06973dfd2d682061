// The port of every system while it is closed.
#include "tests/support/Controlli.h"
#include "serial/PortaAsio.h"

TEST(PortaAsio, closed_it_reads_nothing_and_closing_again_does_no_harm)
{
    PortaAsio porta;
    porta.chiudi();
    EXPECT_EQ(porta.leggi(10), "");
    EXPECT_EQ(erroreDi([&] { porta.scrivi("x"); }), Errore::LineaPersa);
    porta.sorveglia(true);
    porta.chiudi();
    EXPECT_FALSE(porta.aperta());
}
