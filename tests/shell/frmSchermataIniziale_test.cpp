#include "shell/frmSchermataIniziale.h"

#include "tests/support/Attesa.h"
#include "tests/support/Scritte.h"

#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SchermataIniziale, ShowsItsFixedTexts)
{
    frmSchermataIniziale splash;
    EXPECT_EQ(splash.Label1.Caption(), u"Programma per il controllo remoto di Tessaro"_s);
    EXPECT_EQ(splash.lblProductName.Caption(), u"Lumbra"_s);
    EXPECT_EQ(splash.lblCompanyProduct.Caption(), u"Per il robot Tessaro"_s);
    EXPECT_EQ(splash.lblColl.Caption(), u"Apertura del programma..."_s);
    EXPECT_EQ(splash.pulNonCollegare.Caption(), u"Non collegare"_s);
}

TEST(SchermataIniziale, FillsInTheVersionWhenItIsLoaded)
{
    frmSchermataIniziale splash;
    EXPECT_EQ(splash.lblVersion.Caption(), QString());
    splash.Mostra();
    EXPECT_EQ(splash.lblVersion.Caption(), u"Versione 5.6.3"_s);
}

TEST(SchermataIniziale, StartsWithTheAnimationOffAndTheFlagAtZero)
{
    frmSchermataIniziale splash;
    EXPECT_EQ(splash.tmrAnimazione.Interval(), 200);
    EXPECT_FALSE(splash.tmrAnimazione.Enabled());
    EXPECT_EQ(splash.pulNonCollegare.Tag(), u"0"_s);
    EXPECT_EQ(splash.imgAttesa.Picture(), 0);
}

TEST(SchermataIniziale, IsInTheMiddleOfTheScreen)
{
    frmSchermataIniziale splash;
    splash.Mostra();
    EXPECT_EQ(splash.geometry().center(), splash.screen()->availableGeometry().center());
}

TEST(SchermataIniziale, NonCollegareSetsItsTagAndNothingElse)
{
    frmSchermataIniziale splash;
    splash.Mostra();
    QTest::mouseClick(&splash.pulNonCollegare, Qt::LeftButton);
    EXPECT_EQ(splash.pulNonCollegare.Tag(), u"True"_s);
    EXPECT_TRUE(splash.Visible());
    EXPECT_TRUE(splash.pulNonCollegare.Enabled());
    EXPECT_EQ(splash.lblColl.Caption(), u"Apertura del programma..."_s);
}

TEST(SchermataIniziale, TheTagOfNonCollegareSurvivesUnloading)
{
    frmSchermataIniziale splash;
    splash.Mostra();
    splash.pulNonCollegare.click();
    splash.Scarica();
    EXPECT_FALSE(splash.Visible());
    EXPECT_EQ(splash.pulNonCollegare.Tag(), u"True"_s);
}

TEST(SchermataIniziale, TheFramesRunFrom1To6AndBackTo1)
{
    frmSchermataIniziale splash;
    QList<int> visti;
    for (int i = 0; i < 13; ++i) {
        splash.tmrAnimazione.Timer();
        visti << splash.imgAttesa.Picture();
    }
    EXPECT_EQ(visti, (QList<int>{1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5, 6, 1}));
}

TEST(SchermataIniziale, TheTimerRunsTheAnimation)
{
    frmSchermataIniziale splash;
    splash.Mostra();
    splash.tmrAnimazione.setInterval(1);
    splash.tmrAnimazione.setEnabled(true);
    EXPECT_TRUE(aspetta([&] { return splash.imgAttesa.Picture() == 6; }));
    EXPECT_TRUE(aspetta([&] { return splash.imgAttesa.Picture() == 1; }));
}

TEST(SchermataIniziale, TheUserCannotCloseIt)
{
    // At the start it is the only window, and message boxes need it as their parent.
    frmSchermataIniziale splash;
    splash.Mostra();
    splash.close();
    EXPECT_TRUE(splash.Visible());
    EXPECT_EQ(splash.pulNonCollegare.Tag(), u"0"_s);
    splash.Scarica();
    EXPECT_FALSE(splash.Caricata());
}

TEST(SchermataIniziale, UnloadingStopsTheAnimation)
{
    frmSchermataIniziale splash;
    splash.Mostra();
    splash.tmrAnimazione.setEnabled(true);
    splash.Scarica();
    EXPECT_FALSE(splash.tmrAnimazione.Enabled());
}
