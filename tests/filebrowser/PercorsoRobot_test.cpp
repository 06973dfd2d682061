#include "filebrowser/PercorsoRobot.h"

#include "tests/support/Scritte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PercorsoRobot, TheThreeWordsOfTheTopLevelHaveTheirOwnPaths)
{
    EXPECT_EQ(percorsoCartella(u"disk"_s), QString());
    EXPECT_EQ(percorsoCartella(u"mmc"_s), u"../mmc"_s);
    EXPECT_EQ(percorsoCartella(u"usb"_s), u"../usb"_s);
}

TEST(PercorsoRobot, AnyOtherNameIsItsOwnPath)
{
    for (const QString &nome :
         {u"foto"_s, u"."_s, u".."_s, u"Disk"_s, u"MMC"_s, u"a/b"_s, QString()})
        EXPECT_EQ(percorsoCartella(nome), nome);
}

TEST(PercorsoRobot, ThePrefixIsTheNameWithASlash)
{
    EXPECT_EQ(prefissoCartella(u"foto"_s), u"foto/"_s);
    EXPECT_EQ(prefissoCartella(u"mmc"_s), u"mmc/"_s);
    EXPECT_EQ(prefissoCartella(u".."_s), u"../"_s);
}

TEST(PercorsoRobot, ThePrefixOfTheDiskAndOfTheDotIsEmpty)
{
    EXPECT_EQ(prefissoCartella(u"disk"_s), QString());
    EXPECT_EQ(prefissoCartella(u"."_s), QString());
}
