// The key latch, without a window.
#include "console/FermoTasti.h"

#include "tests/support/Scritte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int su = 38;
constexpr int sinistra = 37;
constexpr int spazio = 32;

} // namespace

TEST(FermoTasti, APressActsOnceAndCountsAsHeldAfterItsWait)
{
    FermoTasti fermo;
    EXPECT_EQ(fermo.testo(), QString());
    ASSERT_TRUE(fermo.accetta({su}));
    const FermoTasti::Comando comando = fermo.comincia(su);
    EXPECT_FALSE(fermo.accetta({su, true}));
    EXPECT_FALSE(fermo.accetta({su}));
    EXPECT_EQ(fermo.testo(), QString());
    fermo.finito(comando);
    EXPECT_EQ(fermo.testo(), u"Tasto premuto"_s);
    EXPECT_FALSE(fermo.accetta({su, true}));
    EXPECT_FALSE(fermo.accetta({sinistra}));
    fermo.lascia(su);
    EXPECT_EQ(fermo.testo(), u"Tasto rilasciato"_s);
    EXPECT_TRUE(fermo.accetta({su}));
}

TEST(FermoTasti, InTheListEveryRepeatActs)
{
    FermoTasti fermo;
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(fermo.accetta({su, i > 0, true}));
        fermo.finitoInLista(fermo.comincia(su));
    }
    EXPECT_EQ(fermo.testo(), QString());
    fermo.scrivi(u"Tasto premuto"_s);
    EXPECT_FALSE(fermo.accetta({su, true, true}));
}

TEST(FermoTasti, DuringAWaitOtherKeysAndANewPressAct)
{
    FermoTasti fermo;
    ASSERT_TRUE(fermo.accetta({su}));
    const FermoTasti::Comando primo = fermo.comincia(su);
    ASSERT_TRUE(fermo.accetta({sinistra}));
    fermo.finito(fermo.comincia(sinistra));
    fermo.lascia(sinistra);
    EXPECT_FALSE(fermo.accetta({su, true})) << "its own wait still lasts";
    fermo.lascia(su);
    ASSERT_TRUE(fermo.accetta({su}));
    fermo.finito(fermo.comincia(su));
    fermo.lascia(su);
    fermo.finito(primo);
    EXPECT_EQ(fermo.testo(), u"Tasto premuto"_s);
}

TEST(FermoTasti, AfterAllWereLetGoNoWaitShutsTheLatchAndNoRepeatActs)
{
    FermoTasti fermo;
    EXPECT_FALSE(fermo.lasciaTutto());
    EXPECT_EQ(fermo.testo(), QString());
    ASSERT_TRUE(fermo.accetta({su}));
    const FermoTasti::Comando comando = fermo.comincia(su);
    EXPECT_TRUE(fermo.lasciaTutto());
    EXPECT_EQ(fermo.testo(), u"Tasto rilasciato"_s);
    fermo.finito(comando);
    EXPECT_EQ(fermo.testo(), u"Tasto rilasciato"_s);
    EXPECT_FALSE(fermo.accetta({su, true}));
    EXPECT_TRUE(fermo.accetta({su, true, true})) << "in the list every repeat is a line";
    EXPECT_FALSE(fermo.giu(su));
    EXPECT_TRUE(fermo.accetta({su}));
    EXPECT_TRUE(fermo.giu(su));
}

TEST(FermoTasti, AStopPassesTheLatchWhileAnotherCommandWaits)
{
    FermoTasti fermo;
    fermo.scrivi(u"Tasto premuto"_s);
    EXPECT_FALSE(fermo.accetta({spazio}));
    fermo.lascia(spazio);
    fermo.scrivi(u"Tasto premuto"_s);
    EXPECT_TRUE(fermo.accetta({spazio, false, false, true}));
    EXPECT_FALSE(fermo.accetta({spazio, true, false, true})) << "once for each hold";
}

TEST(FermoTasti, SaysWhatWasWrittenFromOutside)
{
    FermoTasti fermo;
    for (const QString &testo : {u"Tasto premuto"_s, u"Tasto rilasciato"_s, QString()}) {
        fermo.scrivi(testo);
        EXPECT_EQ(fermo.testo(), testo);
    }
}
