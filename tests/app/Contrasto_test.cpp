// The contrast of all texts of all windows.
#include "tests/support/Contrasto.h"

#include "tests/app/TutteLeFinestre.h"

#include <gmock/gmock.h>

TEST(ContrastoFinestre, EveryTextHasEnoughContrast)
{
    TutteLeFinestre tutte;
    tutte.perOgnuna([](Finestra &finestra, const QString &) {
        EXPECT_THAT(pocoLeggibili(finestra), testing::IsEmpty());
    });
}

TEST(ContrastoFinestre, TextOnTheVideoSurfaceHasEnoughContrast)
{
    TutteLeFinestre tutte;
    const QPalette tavolozza = tutte.visione.camera.Schermo.palette();
    EXPECT_GE(contrasto(tavolozza.color(QPalette::WindowText), tavolozza.color(QPalette::Window)),
              4.5);
}
