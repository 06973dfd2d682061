// The simulator's window has room for its texts with every desktop's font.
#include "simulator/Simulatore.h"
#include "simulator/window/FinestraSimulatore.h"
#include "tests/support/Ritaglio.h"
#include "tests/support/Scritte.h"

#include <QScreen>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

TEST(Spazio, TheSimulatorsWindowHasIt)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        Simulatore sim;
        ASSERT_TRUE(sim.apri());
        FinestraSimulatore finestra(sim);
        finestra.show();
        EXPECT_THAT(guarda(finestra, u"simulatore"_s), IsEmpty()) << punti;
        sim.robot().ricevi(b({3, 1, 1, 19, 65, 2, 19, 2, 5}));
        sim.robot().impostaBatterie(50, 255);
        EXPECT_THAT(guarda(finestra, u"simulatore-in-moto"_s), IsEmpty()) << punti;
        EXPECT_TRUE(finestra.screen()->availableSize().height() >= finestra.height() ||
                    finestra.height() <= finestra.minimumSizeHint().height())
            << finestra.height();
    }
}
