// The splash and the options have room for their texts with the usual fonts of desktops.
#include "shell/frmOpzioni.h"
#include "shell/frmSchermataIniziale.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Ritaglio.h"
#include "tests/support/Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

TEST(Spazio, TheSplashHasRoomForAllItsTexts)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        frmSchermataIniziale splash;
        splash.Mostra();
        EXPECT_THAT(guarda(splash, u"splash"_s), IsEmpty()) << punti;
        splash.lblColl.setCaption(u"Attendere il collegamento..."_s);
        splash.imgAttesa.setPicture(3);
        EXPECT_THAT(guarda(splash, u"splash-attesa"_s), IsEmpty()) << punti;
    }
}

TEST(Spazio, TheOptionsHaveRoomForTheirTextsAlsoForTheWarning)
{
    for (const double punti : caratteriUsuali) {
        const CartellaDiProva cartella;
        const ConCarattere carattere(punti);
        frmOpzioni opzioni;
        opzioni.Mostra();
        ASSERT_TRUE(opzioni.lblAttenzionePorta.isVisible());
        EXPECT_THAT(guarda(opzioni, u"opzioni-avviso"_s), IsEmpty()) << punti;
        opzioni.Scarica();
        cartella.scrivi(u"Porta COM"_s, "12\r\n");
        opzioni.Mostra();
        ASSERT_TRUE(opzioni.lblSpiegazioneCOM.isVisible());
        EXPECT_THAT(guarda(opzioni, u"opzioni"_s), IsEmpty()) << punti;
    }
}
