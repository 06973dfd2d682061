#include "console/Attrezzi.h"
#include "tests/console/AzioneInProva.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Attrezzi::Lato;

static void attesa(const Azione &azione, const QString &riga, const QByteArray &byte,
                   const QString &esito)
{
    EXPECT_EQ(azione.riga, riga);
    EXPECT_EQ(byteDi(azione), byte);
    EXPECT_EQ(azione.esito, esito);
}

TEST(Attrezzi, ThePositionLedsGoOnAndOff)
{
    attesa(Attrezzi::ledPosizione(true), u"LED Posizione ON"_s, b({19, 131, 255}),
           u"LED di posizione accesi"_s);
    attesa(Attrezzi::ledPosizione(false), u"LED Posizione OFF"_s, b({19, 131, 0}),
           u"LED di posizione spenti"_s);
}

TEST(Attrezzi, EachToolGoesOnAndOff)
{
    attesa(Attrezzi::tool(Lato::Destro, true), u"Tool Destro ON"_s, b({19, 140, 255}),
           u"Tool destro acceso"_s);
    attesa(Attrezzi::tool(Lato::Destro, false), u"Tool Destro OFF"_s, b({19, 140, 0}),
           u"Tool destro spento"_s);
    attesa(Attrezzi::tool(Lato::Sinistro, true), u"Tool Sinistro ON"_s, b({19, 139, 255}),
           u"Tool sinistro acceso"_s);
    attesa(Attrezzi::tool(Lato::Sinistro, false), u"Tool Sinistro OFF"_s, b({19, 139, 0}),
           u"Tool sinistro spento"_s);
    EXPECT_EQ(Attrezzi::nomeTool(Lato::Destro), u"Tool destro"_s);
    EXPECT_EQ(Attrezzi::nomeTool(Lato::Sinistro), u"Tool sinistro"_s);
}

TEST(Attrezzi, TheGripperOpensAndClosesWithoutAWord)
{
    attesa(Attrezzi::pinza(true), u"Pinza Apri"_s, b({19, 161, 1}), {});
    attesa(Attrezzi::pinza(false), u"Pinza Chiudi"_s, b({19, 161, 2}), {});
}

TEST(Attrezzi, APhotoIsTaken)
{
    attesa(Attrezzi::foto(), u"Foto"_s, b({19, 3, 1}), u"Tessaro ha scattato una foto!"_s);
}
