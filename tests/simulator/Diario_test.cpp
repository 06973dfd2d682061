#include "tests/simulator/RobotInProva.h"
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DiarioDelRobot, ALineShowsStampBytesTextAndRemark)
{
    const VoceDiario voce{VoceDiario::Tipo::Comando, 1234, u"BaseAvanti v=7"_s, b({19, 65, 7}),
                          u"valore non previsto"_s};
    EXPECT_EQ(voce.riga().simplified(), u"1234 19 65 7 BaseAvanti v=7 [valore non previsto]"_s);
}

TEST(DiarioDelRobot, ALongRunOfBytesIsShortenedInTheLineOnly)
{
    const VoceDiario voce{VoceDiario::Tipo::Comando, 0, u"x"_s, QByteArray(100, 'a'), {}};
    EXPECT_TRUE(voce.riga().contains(u"…(100)"_s));
    EXPECT_EQ(voce.byte.size(), 100);
}

TEST(DiarioDelRobot, PollsAreLeftOutOfTheCommandsUnlessAsked)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({27, 70, 29, 132, 28, 103, 19, 65, 0}));
    EXPECT_EQ(p.diario.comandi(), QStringList{u"BaseStop"_s});
    EXPECT_EQ(p.diario.comandi(true).size(), 4);
}

TEST(DiarioDelRobot, StampsNeverGoBack)
{
    RobotInProva p;
    for (int i = 0; i < 50; ++i)
        p.robot.ricevi(b({200}));
    for (int i = 1; i < p.diario.voci().size(); ++i)
        EXPECT_LE(p.diario.voci().at(i - 1).ms, p.diario.voci().at(i).ms);
}

TEST(DiarioDelRobot, OnlyTheLastEntriesAreKept)
{
    Diario diario;
    for (int i = 0; i < Diario::massimo + 5; ++i)
        diario.aggiungi(VoceDiario::Tipo::Nota, QString::number(i));
    EXPECT_LE(diario.voci().size(), Diario::massimo);
    EXPECT_EQ(diario.voci().constLast().testo, QString::number(Diario::massimo + 4));
}

TEST(DiarioDelRobot, EachEntryIsSignalledOnce)
{
    Diario diario;
    QStringList visti;
    QObject::connect(&diario, &Diario::aggiunta, &diario,
                     [&](const VoceDiario &voce) { visti << voce.testo; });
    diario.aggiungi(VoceDiario::Tipo::Nota, u"uno"_s);
    diario.aggiungi(VoceDiario::Tipo::Nota, u"due"_s);
    EXPECT_EQ(visti, (QStringList{u"uno"_s, u"due"_s}));
}
