// Every command over a pseudo-terminal, as the simulated robot reads it.
#include "serial/ControlloSeriale.h"
#include "serial/PortaAsio.h"
#include "simulator/Simulatore.h"
#include "tests/link/TavolaComandi.h"
#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Scritte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ComandoAlRobot : public ::testing::TestWithParam<RigaComando>
{
};

} // namespace

TEST_P(ComandoAlRobot, ArrivesByteForByte)
{
    const CartellaDiProva cartella;
    Simulatore robot;
    ASSERT_TRUE(robot.apri()) << robot.errore().toStdString();
    ASSERT_TRUE(robot.collegaPorta(cartella.percorso(), 5));
    ControlloSeriale COM(u"COM"_s, nullptr, std::make_unique<PortaAsio>(), cartella.percorso());
    COM.setCommPort(5);
    COM.setPortOpen(true);
    GetParam().manda(COM);
    const QByteArray attesi = GetParam().scritture.join();
    ASSERT_TRUE(aspetta([&] { return robot.ricevuti().size() >= attesi.size(); }));
    gira(3);
    EXPECT_EQ(robot.ricevuti(), attesi);
}

INSTANTIATE_TEST_SUITE_P(Tavola, ComandoAlRobot, ::testing::ValuesIn(tavolaComandi()),
                         [](const auto &riga) { return riga.param.nome.toStdString(); });
