// The state of a connection, on a line in memory: one attempt at a time, and handlers that find
// another connection after a wait.
#include "tests/link/BancoSessioneFinta.h"

#include <gtest/gtest.h>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

using enum Sessione::Stato;

const QString nonCollegato = u"Non sono collegato al robot"_s;

// A session whose port cannot be opened.
struct SenzaPorta : BancoSessioneFinta
{
    SenzaPorta()
    {
        porta.apertura = Errore::PortaInUso;
        banco.tmrSensori.setInterval(0);
        banco.tmrControllaConn.setInterval(0);
    }
    qsizetype riferite() const { return messaggi.testi().count(nonCollegato); }
};

} // namespace

TEST(Sessione, ReportsIfAnAttemptHasConnected)
{
    BancoSessioneFinta p;
    EXPECT_EQ(p.sessione.stato(), Scollegata);
    EXPECT_FALSE(p.sessione.collegato());
    p.banco.tmrChiusuraAutomatica.setInterval(1);
    EXPECT_FALSE(p.sessione.Collega());
    EXPECT_FALSE(p.sessione.collegato());
    EXPECT_EQ(p.sessione.stato(), Scollegata);

    p.rispondiAllApertura();
    p.banco.tmrChiusuraAutomatica.setInterval(60000);
    EXPECT_TRUE(p.sessione.Collega());
    EXPECT_TRUE(p.sessione.collegato());
    EXPECT_EQ(p.sessione.stato(), Collegata);
    p.sessione.Scollega();
    EXPECT_FALSE(p.sessione.collegato());
    EXPECT_EQ(p.sessione.stato(), Scollegata);
}

TEST(Sessione, AnAttemptThatEndsWithoutAPortHasNotConnected)
{
    SenzaPorta p;
    EXPECT_FALSE(p.sessione.Collega());
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_EQ(p.sessione.stato(), Collegata);
    EXPECT_FALSE(p.sessione.collegato());
    EXPECT_FALSE(p.sessione.staTentando());
}

TEST(Sessione, IsInAnAttemptFromTheFirstStepToTheAnswerOfTheLastBox)
{
    BancoSessioneFinta p;
    p.banco.tmrChiusuraAutomatica.setInterval(1);
    QStringList diversi;
    const auto guarda = [&] {
        if (!p.sessione.staTentando() || p.sessione.collegato())
            diversi << p.pannello(3);
    };
    p.porta.scritto = [&](const QByteArray &) { guarda(); };
    p.messaggi.mentreAperto = [&](const QMessageBox &) { guarda(); };
    p.sessione.Collega();
    EXPECT_EQ(diversi, QStringList());
    EXPECT_FALSE(p.sessione.staTentando());
}

TEST(Sessione, IsSearchingWhileTheRobotIsSilentAndConnectedAgainWithItsNextByte)
{
    BancoSessioneFinta p;
    p.collega();
    p.banco.tmrControllaConn.Timer();
    EXPECT_EQ(p.sessione.stato(), InRicerca);
    EXPECT_TRUE(p.sessione.collegato());
    p.porta.arriva(b({99}));
    p.banco.tmrControllaConn.Timer();
    EXPECT_EQ(p.sessione.stato(), Collegata);
}

TEST(Sessione, RefusesASecondAttemptDuringAnAttempt)
{
    BancoSessioneFinta p;
    p.banco.tmrChiusuraAutomatica.setInterval(1);
    int chieste = 0;
    const auto chiedi = [&] {
        ++chieste;
        EXPECT_FALSE(p.sessione.Collega());
        EXPECT_TRUE(p.sessione.staTentando());
    };
    bool fatto = false;
    const Durante durante([&] {
        if (!fatto && p.pannello(3) == u"Attendere prego..."_s) {
            fatto = true;
            chiedi();
        }
    });
    p.messaggi.mentreAperto = [&](const QMessageBox &) { chiedi(); };
    p.sessione.Collega();
    EXPECT_EQ(chieste, 2);
    EXPECT_EQ(p.porta.scritti(), b({3, 1, 1, 1}));
    EXPECT_EQ(p.messaggi.testi(), QStringList{u"Collegamento non riuscito!"_s});
    EXPECT_EQ(p.porta.aperture, 1);
}

TEST(Sessione, RefusesADisconnectionDuringAnAttempt)
{
    BancoSessioneFinta p;
    p.porta.scritto = [&](const QByteArray &) {
        if (p.porta.scritture.size() != 3)
            return;
        p.sessione.Scollega();
        p.porta.arriva(b({31, 20}));
    };
    EXPECT_TRUE(p.sessione.Collega());
    EXPECT_TRUE(p.finestre.registro == QStringList{u"RidaiFuoco"_s});
}

TEST(Sessione, AnAttemptWhileConnectedChangesNothing)
{
    BancoSessioneFinta p;
    p.collega();
    EXPECT_TRUE(p.sessione.Collega());
    EXPECT_EQ(p.porta.scritture.size(), 0);
    EXPECT_TRUE(p.banco.COM.PortOpen());
}

TEST(Sessione, AnAttemptFirstEndsAConnectionWithoutAPort)
{
    SenzaPorta p;
    p.sessione.Collega();
    ASSERT_EQ(p.pulsante().Image(), 6);
    p.porta.apertura = 0;
    bool fermiDurante = false;
    p.porta.scritto = [&](const QByteArray &) {
        fermiDurante = fermiDurante || p.fermo();
        if (p.porta.scritti().endsWith(b({3, 1, 1})))
            p.porta.arriva(b({31, 20}));
    };
    EXPECT_TRUE(p.sessione.Collega());
    EXPECT_TRUE(fermiDurante);
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_EQ(p.pulsante().Image(), 6);
}

TEST(Sessione, PeriodicRequestsReportAClosedPortOnceForEachAttempt)
{
    SenzaPorta p;
    p.banco.tmrSensori.setInterval(10);
    for (int tentativo = 1; tentativo <= 2; ++tentativo) {
        p.sessione.Collega();
        EXPECT_EQ(p.riferite(), tentativo);
        p.banco.tmrControllaConn.Timer();
        p.banco.tmrControllaConn.Timer();
        EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
        EXPECT_EQ(p.riferite(), tentativo);
    }
}

TEST(Sessione, ACommandOfTheUserReportsAClosedPortEveryTime)
{
    SenzaPorta p;
    p.sessione.Collega();
    ASSERT_EQ(p.riferite(), 1);
    for (int volta = 1; volta <= 3; ++volta) {
        ComandiTessaro::TestaSu(p.banco.COM, 1);
        p.banco.tmrSensori.Timer();
        EXPECT_EQ(p.riferite(), 1 + volta);
    }
}

TEST(Sessione, AKeepAliveThatFindsAnotherConnectionAfterItsWaitDoesNotEndIt)
{
    BancoSessioneFinta p;
    p.collega();
    p.banco.tmrControllaConn.Timer(); // the first one without an answer
    bool fatto = false;
    const Durante durante([&] {
        if (fatto || p.banco.BarraCaricamento.Value() < 6000 || !p.sessione.collegato())
            return;
        fatto = true;
        p.sessione.Scollega();
        p.rispondiAllApertura();
        EXPECT_TRUE(p.sessione.Collega());
        p.porta.scritto = nullptr;
    });
    p.banco.BarraCaricamento.setValore(1);
    p.banco.tmrControllaConn.Timer();
    EXPECT_TRUE(fatto);
    EXPECT_TRUE(p.sessione.collegato());
    EXPECT_EQ(p.sessione.stato(), Collegata);
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_FALSE(p.finestre.registro.contains(u"ButtonClick"_s));
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
}

namespace {

// A camera that runs a function while it closes: there the user disconnects and connects again.
struct CameraLenta : FinestreFinte
{
    std::function<void()> intanto;
    void scaricaCamera() override
    {
        if (const auto una = std::exchange(intanto, nullptr))
            una();
    }
};

} // namespace

TEST(Sessione, ADisconnectionThatFindsAnotherConnectionAfterItsWaitDoesNotEndIt)
{
    ConPortaFinta con;
    PortaFinta &porta = con.porta;
    BancoSessione p(std::move(con.nuova));
    CameraLenta finestre;
    Sessione sessione(p.banco.COM, p.banco.sessione(), p.banco.telemetria(), p.motore, p.splash,
                      p.impostaPorta, finestre);
    porta.scritto = [&](const QByteArray &) {
        if (porta.scritti().endsWith(b({3, 1, 1})))
            porta.arriva(b({31, 20}));
    };
    p.banco.tmrSensori.setInterval(0);
    p.banco.tmrControllaConn.setInterval(0);
    ASSERT_TRUE(sessione.Collega());
    finestre.intanto = [&] {
        sessione.Scollega();
        EXPECT_TRUE(sessione.Collega());
    };
    sessione.Scollega();
    EXPECT_TRUE(sessione.collegato());
    EXPECT_TRUE(p.collegato());
}

TEST(Sessione, AWaitForAReactionEndsWithItsConnection)
{
    BancoSessioneFinta p;
    p.collega();
    bool fatto = false;
    const Durante durante([&] {
        if (fatto || p.banco.BarraCaricamento.Value() < 100)
            return;
        fatto = true;
        p.sessione.Scollega();
        p.rispondiAllApertura();
        EXPECT_TRUE(p.sessione.Collega());
        p.porta.scritto = nullptr;
    });
    p.sessione.MostraInvio(u"Tessaro sta andando avanti"_s);
    EXPECT_TRUE(fatto);
    EXPECT_EQ(p.pannello(3), QString());
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
}

TEST(Sessione, AnUnhandledErrorSendsTheEndOfTheSessionAfterItsBoxAndNothingDuringIt)
{
    EXPECT_EXIT(
        {
            BancoSessioneFinta p;
            p.collega();
            p.banco.tmrSensori.setInterval(1);
            p.banco.tmrControllaConn.setInterval(1);
            p.porta.scritto = [](const QByteArray &byte) {
                std::cerr << "sent " << byte.toHex().toStdString() << std::endl;
            };
            p.messaggi.mentreAperto = [&](const QMessageBox &box) {
                p.porta.arriva(b({31, 30}));
                gira(200);
                std::cerr << box.text().toStdString() << "|taken "
                          << (p.porta.inArrivo() == 0 ? "yes" : "no") << std::endl;
            };
            eseguiGestore([] { throw Errore(Errore::FineDelFile); });
        },
        ::testing::ExitedWithCode(1), "\\(62\\)[^|]*\\|taken no\nsent 04\n$");
}

TEST(Sessione, AnUnhandledErrorSendsNothingIfThePortIsClosed)
{
    EXPECT_EXIT(
        {
            BancoSessioneFinta p;
            p.porta.scritto = [](const QByteArray &) { std::cerr << "sent" << std::endl; };
            p.messaggi.mentreAperto = [](const QMessageBox &box) {
                std::cerr << box.text().toStdString() << "|" << std::endl;
            };
            eseguiGestore([] { throw Errore(Errore::FineDelFile); });
        },
        ::testing::ExitedWithCode(1), "\\(62\\)[^|]*\\|\n$");
}
