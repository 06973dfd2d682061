// When the clock starts a list.
#include "conditional/OraDiLista.h"

#include <gtest/gtest.h>

TEST(OraDiLista, TheSameSecondStarts)
{
    EXPECT_TRUE(oraDiLista(u"07:05:09,no,no,no,no", u"07:05:09"));
    EXPECT_TRUE(oraDiLista(u"00:00:00,no,no,no,no", u"00:00:00"));
    EXPECT_TRUE(oraDiLista(u"23:59:59,101,no,no,no", u"23:59:59"));
}

TEST(OraDiLista, AnyOtherTimeDoesNot)
{
    EXPECT_FALSE(oraDiLista(u"07:05:09,no,no,no,no", u"07:05:10"));
    EXPECT_FALSE(oraDiLista(u"07:05:09,no,no,no,no", u"07:06:09"));
    EXPECT_FALSE(oraDiLista(u"07:05:09,no,no,no,no", u"19:05:09"));
}

TEST(OraDiLista, WhatIsNoTimeDoesNot)
{
    for (const QStringView condizione :
         {u"no,101,no,no,no", u"no", u"", u",,,,", u"nan", u"in", u"::", u"x0:00:00"})
        EXPECT_FALSE(oraDiLista(condizione, u"00:00:00"));
}

TEST(OraDiLista, NumbersAreComparedAndNotTexts)
{
    EXPECT_TRUE(oraDiLista(u" 7:5 :9 ", u"07:05:09"));
    EXPECT_TRUE(oraDiLista(u"00", u"00:00:00"));
}
