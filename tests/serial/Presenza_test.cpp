#include "serial/Presenza.h"

#include "tests/support/Controlli.h"

namespace {

using Scrittura = Presenza::Scrittura;

// A far end whose system answers each write the same way.
struct LineaFinta
{
    int scrivi(Presenza &presenza)
    {
        return erroreDi([&] {
            presenza.scrivi([this] {
                ++tentate;
                return esito;
            });
        });
    }

    Scrittura esito = Scrittura::Presa;
    int tentate = 0;
};

} // namespace

TEST(Presenza, a_write_that_the_line_takes_passes)
{
    Presenza presenza;
    LineaFinta linea;
    EXPECT_EQ(linea.scrivi(presenza), 0);
    EXPECT_FALSE(presenza.persa());
}

TEST(Presenza, a_far_end_that_does_not_read_is_waited_for_once_and_not_at_each_poll)
{
    Presenza presenza;
    LineaFinta linea;
    linea.esito = Scrittura::Mancata;
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(linea.scrivi(presenza), Errore::LineaPersa);
    EXPECT_EQ(linea.tentate, 1);
    EXPECT_TRUE(presenza.persa());
}

TEST(Presenza, a_line_without_room_fails_and_is_tried_again)
{
    Presenza presenza;
    LineaFinta linea;
    linea.esito = Scrittura::SenzaPosto;
    EXPECT_EQ(linea.scrivi(presenza), Errore::LineaPersa);
    EXPECT_FALSE(presenza.persa());
    linea.esito = Scrittura::Presa;
    EXPECT_EQ(linea.scrivi(presenza), 0);
}

TEST(Presenza, a_loss_is_reported_to_who_waits_on_the_line)
{
    Presenza presenza;
    int volte = 0;
    presenza.perduta = [&] { ++volte; };
    LineaFinta linea;
    linea.esito = Scrittura::Mancata;
    linea.scrivi(presenza);
    linea.scrivi(presenza);
    EXPECT_EQ(volte, 1);
}

TEST(Presenza, a_line_opened_anew_is_there_again)
{
    Presenza presenza;
    LineaFinta linea;
    linea.esito = Scrittura::Mancata;
    linea.scrivi(presenza);
    presenza.ricomincia();
    linea.esito = Scrittura::Presa;
    EXPECT_EQ(linea.scrivi(presenza), 0);
}
