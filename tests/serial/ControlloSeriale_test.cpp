#include "serial/ControlloSeriale.h"

#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

namespace {

// A line in memory that records what is done with it.
struct PortaFinta : Porta
{
    void apri(const QString &percorso) override
    {
        if (erroreAllApertura != 0)
            throw Errore(erroreAllApertura);
        aperture += percorso;
        viva = true;
    }
    void chiudi() override { viva = false; }
    bool aperta() const override { return viva; }
    void scrivi(QByteArrayView byte) override
    {
        if (persa)
            throw Errore(Errore::LineaPersa);
        scritture += byte.toByteArray();
    }
    QByteArray leggi(qsizetype massimo) override
    {
        const qsizetype quanti = qMin(qMin(massimo, inSistema.size()), perLettura);
        const QByteArray letti = inSistema.first(quanti);
        inSistema.remove(0, quanti);
        return letti;
    }
    void sorveglia(bool attiva) override { sorvegliata = attiva; }

    QStringList aperture;
    QList<QByteArray> scritture;
    QByteArray inSistema;
    qsizetype perLettura = 1 << 20;
    int erroreAllApertura = 0;
    bool viva = false;
    bool persa = false;
    bool sorvegliata = false;
};

struct SuPortaFinta : ::testing::Test
{
    SuPortaFinta()
        : porta(new PortaFinta),
          com(u"COM"_s, nullptr, std::unique_ptr<Porta>(porta), u"/cartella"_s)
    {
    }
    void apri()
    {
        com.setPortOpen(true);
        porta->aperture.clear();
    }

    PortaFinta *porta;
    ControlloSeriale com;
};

} // namespace

using ControlloSerialeTest = SuPortaFinta;

TEST_F(ControlloSerialeTest, IsFoundByItsNameAndHasItsProperties)
{
    QObject finestra;
    ControlloSeriale suo(u"COM"_s, &finestra, std::make_unique<PortaFinta>(), u"/cartella"_s);
    auto *trovato = finestra.findChild<QObject *>(u"COM"_s);
    ASSERT_TRUE(trovato);
    EXPECT_EQ(trovato->property("CommPort").toInt(), 1);
    EXPECT_EQ(trovato->property("PortOpen").toBool(), false);
    EXPECT_EQ(trovato->property("InBufferCount").toInt(), 0);
}

TEST_F(ControlloSerialeTest, OpensThePortWithItsNumber)
{
    com.setCommPort(3);
    com.setPortOpen(true);
    EXPECT_TRUE(com.PortOpen());
    EXPECT_EQ(porta->aperture, QStringList{percorsoPorta(3, u"/cartella"_s)});
}

TEST_F(ControlloSerialeTest, RefusesAPortNumberBelow1AndKeepsTheOldOne)
{
    com.setCommPort(3);
    EXPECT_EQ(erroreDi([&] { com.setCommPort(0); }), Errore::PortaInesistente);
    EXPECT_EQ(erroreDi([&] { com.setCommPort(-1); }), Errore::PortaInesistente);
    EXPECT_EQ(com.CommPort(), 3);
}

TEST_F(ControlloSerialeTest, OpeningAnOpenPortDoesNothing)
{
    apri();
    com.setPortOpen(true);
    EXPECT_TRUE(porta->aperture.isEmpty());
}

TEST_F(ControlloSerialeTest, APortThatCannotBeOpenedReportsWhyAndStaysClosed)
{
    porta->erroreAllApertura = Errore::PortaInUso;
    EXPECT_EQ(erroreDi([&] { com.setPortOpen(true); }), Errore::PortaInUso);
    EXPECT_FALSE(com.PortOpen());
}

TEST_F(ControlloSerialeTest, MakesOneWriteForEachAssignment)
{
    apri();
    com.Output("\x13\x25\x01");
    com.Output("\x04");
    EXPECT_EQ(porta->scritture, (QList<QByteArray>{"\x13\x25\x01", "\x04"}));
}

TEST_F(ControlloSerialeTest, EverythingButTheSettingsFailsWith8018WhileItIsClosed)
{
    EXPECT_EQ(erroreDi([&] { com.Output("x"); }), 8018);
    EXPECT_EQ(erroreDi([&] { com.Input(); }), 8018);
    EXPECT_EQ(erroreDi([&] { com.InBufferCount(); }), 8018);
    EXPECT_EQ(erroreDi([&] { com.setPortOpen(false); }), 0);
    EXPECT_TRUE(porta->scritture.isEmpty());
}

TEST_F(ControlloSerialeTest, AWriteThatTheLineRefusesDoesNotFailWith8018)
{
    apri();
    porta->persa = true;
    EXPECT_EQ(erroreDi([&] { com.Output("x"); }), Errore::LineaPersa);
    EXPECT_NE(Errore::LineaPersa, 8018);
    EXPECT_TRUE(com.PortOpen());
}

TEST_F(ControlloSerialeTest, TheCountReadsThePortAtTheCall)
{
    apri();
    EXPECT_EQ(com.InBufferCount(), 0);
    porta->inSistema = "abc";
    EXPECT_EQ(com.InBufferCount(), 3);
    porta->inSistema = "de";
    EXPECT_EQ(com.InBufferCount(), 5);
    EXPECT_EQ(com.property("InBufferCount").toInt(), 5);
}

TEST_F(ControlloSerialeTest, InputReadsThePortAndTakesAllBytesHeld)
{
    apri();
    porta->inSistema = "abc";
    EXPECT_EQ(com.InBufferCount(), 3);
    porta->inSistema = "de";
    EXPECT_EQ(com.Input(), "abcde");
    EXPECT_EQ(com.Input(), "");
    EXPECT_EQ(com.InBufferCount(), 0);
}

TEST_F(ControlloSerialeTest, TakesAllBytesEvenIfEachReadGivesFew)
{
    apri();
    porta->perLettura = 7;
    porta->inSistema = QByteArray(100, 'x');
    EXPECT_EQ(com.InBufferCount(), 100);
}

TEST_F(ControlloSerialeTest, Holds1024BytesAndLeavesTheRestToTheSystem)
{
    apri();
    QByteArray molti;
    for (int i = 0; i < 3000; ++i)
        molti += static_cast<char>(i % 251);
    porta->inSistema = molti;
    EXPECT_EQ(com.InBufferCount(), 1024);
    EXPECT_EQ(porta->inSistema.size(), 3000 - 1024);
    EXPECT_EQ(com.InBufferCount(), 1024);
    QByteArray letti = com.Input();
    EXPECT_EQ(letti.size(), 1024);
    letti += com.Input();
    letti += com.Input();
    EXPECT_EQ(letti, molti);
}

TEST_F(ControlloSerialeTest, ClosingDropsTheBytesHeld)
{
    apri();
    porta->inSistema = "abc";
    com.InBufferCount();
    com.setPortOpen(false);
    com.setPortOpen(true);
    EXPECT_EQ(com.InBufferCount(), 0);
}

TEST_F(ControlloSerialeTest, RaisesItsEventWhenTheLineCallsIt)
{
    int volte = 0;
    com.Arrivo.collega([&] { ++volte; });
    com.avvisa(true);
    EXPECT_TRUE(porta->sorvegliata);
    porta->arrivo();
    EXPECT_EQ(volte, 1);
    com.avvisa(false);
    EXPECT_FALSE(porta->sorvegliata);
}
