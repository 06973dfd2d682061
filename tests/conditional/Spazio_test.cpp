// The runner and the condition dialog have room for their texts with every desktop's font.
#include "tests/conditional/BancoImpCondizioni.h"
#include "tests/conditional/BancoVigilio.h"
#include "tests/support/Ritaglio.h"

#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {

struct VigilioInMostra : BancoVigilio
{
    void guardaTutto(double punti)
    {
        const QString lungo = u"una lista dal nome lunghissimo.sqm"_s;
        mostraVigilio({u"ballo.sqm"_s, lungo, u"saluto.sqm"_s});
        EXPECT_THAT(guarda(processor, u"vigilio"_s), IsEmpty()) << punti;
        processor.lstFile.setSelected(0, true);
        processor.lstFile.setListIndex(1);
        EXPECT_THAT(guarda(processor, u"vigilio-scelta"_s), IsEmpty()) << punti;
        seriale.apri();
        processor.pulAvvia.click();
        ASSERT_TRUE(processor.avviato());
        EXPECT_THAT(guarda(processor, u"vigilio-avviato"_s), IsEmpty()) << punti;
        processor.Stoppa();
    }
};

struct CondizioniInMostra : BancoImpCondizioni
{
    void TestBody() override {}
    // The examples stand in line with the panels of the same number.
    void guardaEsempi()
    {
        const auto cima = [this](QWidget &w) { return w.mapTo(&dialogo, QPoint()).y(); };
        const std::tuple<Cornice *, int, int> esempi[] = {
            {&dialogo.fraSample2, CampoUltrasuoni, CampoUltrasuoni},
            {&dialogo.fraSample3, CampoTemperatura, CampoTemperatura},
            {&dialogo.fraSample4, CampoLogica, CampoMotori}};
        for (const auto &[esempio, primo, ultimo] : esempi) {
            Cornice &ultimoPannello = dialogo.frame(ultimo);
            EXPECT_EQ(cima(*esempio), cima(dialogo.frame(primo))) << primo;
            EXPECT_EQ(cima(*esempio) + esempio->height(),
                      cima(ultimoPannello) + ultimoPannello.height())
                << ultimo;
            for (const QWidget *disegno : esempio->findChildren<QWidget *>())
                EXPECT_TRUE(esempio->rect().contains(disegno->geometry())) << primo;
        }
    }
    void guardaTutto(double punti)
    {
        apri(u"no,no,no,no,no"_s);
        guardaEsempi();
        EXPECT_THAT(guarda(dialogo, u"condizione-vuota"_s), IsEmpty()) << punti;
        dialogo.Scarica();
        apri(u"23:59:59,1-1-1,25,4,0"_s, u"una lista dal nome lunghissimo.sqm"_s);
        EXPECT_THAT(guarda(dialogo, u"condizione-piena"_s), IsEmpty()) << punti;
        dialogo.Scarica();
        apriPredefinita();
        EXPECT_THAT(guarda(dialogo, u"condizione-predefinita"_s), IsEmpty()) << punti;
    }
};

} // namespace

TEST(Spazio, TheRunnerHasItIdleAndStarted)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        VigilioInMostra().guardaTutto(punti);
    }
}

TEST(Spazio, TheConditionDialogHasItInAllItsPanels)
{
    for (const double punti : caratteriUsuali) {
        const ConCarattere carattere(punti);
        CondizioniInMostra().guardaTutto(punti);
    }
}
